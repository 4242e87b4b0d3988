#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::tools {

// Tells at every tick of the magnifier's timer what is to be done: the screen is copied when the
// pointer has moved, and otherwise four times a second.
class MagnifierClock {
  public:
    // In milliseconds.
    static constexpr int kTick = 50;
    static constexpr int kRenewal = 250;

    struct Due {
        bool draw;
        // The window's place above all others is to be taken again.
        bool renew;
    };

    Due Tick(gdi::Point pointer) {
        elapsed_ += kTick;
        const bool renew = elapsed_ >= kRenewal;
        const bool draw = renew || pointer != last_;
        if (renew) elapsed_ = 0;
        last_ = pointer;
        return {draw, renew};
    }
    // The next tick draws.
    void Redraw() { last_ = kNowhere; }
    // The next tick does everything.
    void Restart() { elapsed_ = kRenewal; }

  private:
    static constexpr gdi::Point kNowhere{-100, -100};

    gdi::Point last_ = kNowhere;
    int elapsed_ = 0;
};

}  // namespace kestrel::tools
