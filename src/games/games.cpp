#include "games/games.h"

#include "games/study/scramble/scramble_screen.h"

namespace wm {

void RegisterGameScreens() {
    RegisterScrambleScreen();
}

}  // namespace wm
