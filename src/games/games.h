// The game screens the program knows, registered by the names the chooser opens.
#pragma once

namespace wm {
void RegisterGameScreens();
}
