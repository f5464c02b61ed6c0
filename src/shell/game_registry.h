// How a game joins the program: its screen file names its catalogue card, the class of its
// screen and the assets it loads, in one line:
//
//     WM_REGISTER_GAME("Scramble", Scramble, "images/scramble-back.jpg", "sounds/fall.wav")
//
// The card then carries the factory, the navigator knows the screen by the card's screen name,
// and the game matrix and the asset check find it without further lists.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <initializer_list>

namespace wm {

class GameRegistrar {
public:
    GameRegistrar(const char* card, std::function<QWidget*()> make,
                  std::initializer_list<const char*> assets);
};

// Registrations that named no card, for the test that keeps them honest.
QStringList GameRegistrationErrors();

}  // namespace wm

#define WM_REGISTER_GAME(card, Screen, ...)                   \
    static const ::wm::GameRegistrar wmGameRegistrar##Screen( \
        card, [] { return static_cast<QWidget*>(new Screen); }, {__VA_ARGS__})
