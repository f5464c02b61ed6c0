// What the program asks of the machine, in one place. The program installs the real ones at
// start; tests install doubles.
#pragma once

#include <QString>

namespace wm {

class Dialogs;
class Sound;
class Music;

struct Services {
    Dialogs* dialogs = nullptr;
    Sound* sound = nullptr;
    Music* music = nullptr;
};

Services& services();
Dialogs& dialogs();
Sound& sound();
Music& music();

// A path inside the application folder ("sounds/x.wav").
QString appFile(const QString& relative);

}  // namespace wm
