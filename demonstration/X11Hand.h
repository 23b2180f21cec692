#pragma once

#include <memory>

namespace fieldcal::demonstration {

/// Presses keys and drags on the X display that DISPLAY names, as a person would; every other process sees real events.
class X11Hand {
public:
    X11Hand();
    ~X11Hand();

    bool connected() const;
    /// Gives the keyboard to the largest window if none has it; without a window manager nobody else does. A program
    /// whose own focus is inside its window would take this for the loss of it.
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
