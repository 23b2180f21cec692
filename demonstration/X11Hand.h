#pragma once

#include <memory>

namespace fieldcal::demonstration {

/// Presses keys and drags on the X display named by DISPLAY. All other processes receive real events.
class X11Hand {
public:
    X11Hand();
    ~X11Hand();

    bool connected() const;
    /// Gives the keyboard focus to the largest window if no window has it; without a window manager it is not set
    /// otherwise. If the program's own focus is inside its window, it would treat this as a loss of focus.
    void focusWindow();
    enum class Key { Return, Escape, Tab, Space };
    void press(Key key);
    void hold(Key key);
    void release(Key key);
    void moveTo(int x, int y);
    void buttonDown();
    void buttonUp();

private:
    void sendKey(Key key, bool down);
    bool someWindowHasFocus() const;
    unsigned long largestWindow() const;

    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace fieldcal::demonstration
