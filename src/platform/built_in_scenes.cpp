// The films the player finds without being told: every timeline file in the program folder's
// movies/. Screens register their own drawn scenes (the splash, a game's animations) by name.
#include "platform/movie.h"
#include "platform/timeline_scene.h"

namespace wm {

void RegisterBuiltInScenes() {
    static bool done = false;
    if (done) return;
    done = true;  // set first: RegisterScene calls back here
    UseTimelineFiles();
}

}  // namespace wm
