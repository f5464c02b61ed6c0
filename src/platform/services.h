// What the program asks of the machine, in one place. The program installs the real ones at
// start; tests install doubles.
#pragma once

#include <QString>

namespace wm {

class Dialogs;
class Sound;
class Music;
class Speech;

struct Services {
    Dialogs* dialogs = nullptr;
    Sound* sound = nullptr;
    Music* music = nullptr;
    Speech* speech = nullptr;
};

Services& services();
Dialogs& dialogs();
Sound& sound();
Music& music();
Speech& speech();

// A path inside the asset folder ("sounds/x.wav"; "\sounds\x.wav" works too): the application
// folder in a build, the installed assets once installed.
QString appFile(const QString& relative);
// An asset by the name the design gives it: the exact file, else a picture with the same stem
// (.png, .jpg, .jpeg, .bmp), matched without regard to case as a last resort; "" when none.
QString findAsset(const QString& relative);

}  // namespace wm
