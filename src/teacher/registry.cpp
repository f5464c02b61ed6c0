#include "shell/screens.h"
#include "teacher/edit_list.h"
#include "teacher/gate.h"
#include "teacher/make_new_list.h"
#include "teacher/manager.h"
#include "teacher/teacher_kit.h"

namespace wm {

void RegisterTeacherScreens() {
    RegisterScreen("Manager", [] { return new Manager; });
    RegisterScreen("MakeNewList", [] { return new MakeNewList; });
    RegisterScreen("EditList", [] { return new EditList; });
    // The prompt is a modal box over the title, not a screen: it opens the manager itself and
    // leaves the title in place when the password is wrong.
    RegisterScreen("PasswordForm", []() -> QWidget* {
        OpenTeacherGate(CurrentScreen());
        return nullptr;
    });
}

}  // namespace wm
