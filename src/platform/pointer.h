// Hiding the mouse pointer during play, with the platform's show counter.
#pragma once

namespace wm {

// The pointer is hidden while the count is below zero. show(false) counts down, show(true) up,
// so nested hides need as many shows; the count is returned, as the design's code expects.
class Pointer {
public:
    static int show(bool visible);
    static int count();
    static bool isHidden();
};

// Held by a screen that hides the pointer: however the screen ends, the count goes back to what
// it was when the screen opened.
class PointerScope {
public:
    PointerScope();
    ~PointerScope();
    PointerScope(const PointerScope&) = delete;
    PointerScope& operator=(const PointerScope&) = delete;

private:
    int saved_;
};

}  // namespace wm
