#include "core/shared_state.h"

namespace wm {

SharedState::SharedState()
    : GameNames(201), VisibleGames(201), Words(kMaxWords + 2), Meanings(kMaxWords + 2) {}

SharedState& Shared() {
    static SharedState state;
    return state;
}

}  // namespace wm
