#include "shell/black_back.h"
#include "shell/choose_list.h"
#include "shell/flash_card_options.h"
#include "shell/game_options.h"
#include "shell/quiz_options.h"
#include "shell/screens.h"
#include "shell/title.h"

namespace wm {

void RegisterShellScreens() {
    RegisterSplashScene();
    RegisterScreen("BlackBack", [] { return new BlackBack; });
    RegisterScreen("Title", [] { return new Title; });
    RegisterScreen("ChooseList", [] { return new ChooseList; });
    RegisterScreen("GameOptions", [] { return new GameOptions; });
    RegisterScreen("QuizOptions", [] { return new QuizOptions; });
    RegisterScreen("FlashCardOptions", [] { return new FlashCardOptions; });
}

}  // namespace wm
