#pragma once

#include <memory>

namespace fieldcal::testing {

/// Presses keys and drags on the X display that DISPLAY names, as a person would; every other process sees real events.
class X11Hand {
public:
    X11Hand();
    ~X11Hand();

    bool connected() const;
    /// Gives the keyboard to the largest window; without a window manager nobody else does. False: there is none.
    bool focusLargestWindow();
    void pressReturn();
    void moveTo(int x, int y);
    void buttonDown();
    void buttonUp();

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace fieldcal::testing
