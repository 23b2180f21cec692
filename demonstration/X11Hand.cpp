#include "demonstration/X11Hand.h"

#include <QThread>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace fieldcal::demonstration {
namespace {

/// No user is faster, and a system that considers a key pressed must see its release.
constexpr unsigned long kHeldMs = 60;
constexpr unsigned long kFocusMs = 300;

KeySym symbolOf(X11Hand::Key key) {
    switch (key) {
        case X11Hand::Key::Escape:
            return XK_Escape;
        case X11Hand::Key::Tab:
            return XK_Tab;
        case X11Hand::Key::Space:
            return XK_space;
        default:
            return XK_Return;
    }
}

}  // namespace

struct X11Hand::Connection {
    Display* display = XOpenDisplay(nullptr);
};

X11Hand::X11Hand() : connection_(std::make_unique<Connection>()) {
    // Auto-repeat would report a held key as pressed repeatedly.
    if (connected()) XAutoRepeatOff(connection_->display);
}

X11Hand::~X11Hand() {
    if (connected()) XCloseDisplay(connection_->display);
}

bool X11Hand::connected() const {
    return connection_->display != nullptr;
}

void X11Hand::focusWindow() {
    if (someWindowHasFocus()) return;
    const Window largest = largestWindow();
    if (largest == None) return;
    XSetInputFocus(connection_->display, largest, RevertToParent, CurrentTime);
    XSync(connection_->display, False);
    QThread::msleep(kFocusMs);
}

bool X11Hand::someWindowHasFocus() const {
    Window focused = None;
    int revertTo = 0;
    XGetInputFocus(connection_->display, &focused, &revertTo);
    return focused != None && focused != PointerRoot && focused != DefaultRootWindow(connection_->display);
}

unsigned long X11Hand::largestWindow() const {
    Window root = None;
    Window parent = None;
    Window* windows = nullptr;
    unsigned int count = 0;
    if (XQueryTree(connection_->display, DefaultRootWindow(connection_->display), &root, &parent, &windows, &count) ==
        0)
        return None;
    Window largest = None;
    int largestArea = 0;
    for (unsigned int i = 0; i < count; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(connection_->display, windows[i], &attributes) == 0 ||
            attributes.map_state != IsViewable)
            continue;
        if (attributes.width * attributes.height <= largestArea) continue;
        largest = windows[i];
        largestArea = attributes.width * attributes.height;
    }
    XFree(windows);
    return largest;
}

void X11Hand::press(Key key) {
    hold(key);
    QThread::msleep(kHeldMs);
    release(key);
}

void X11Hand::hold(Key key) {
    sendKey(key, true);
}

void X11Hand::release(Key key) {
    sendKey(key, false);
}

void X11Hand::sendKey(Key key, bool down) {
    const KeyCode code = XKeysymToKeycode(connection_->display, symbolOf(key));
    XTestFakeKeyEvent(connection_->display, code, down ? True : False, CurrentTime);
    XSync(connection_->display, False);
}

void X11Hand::moveTo(int x, int y) {
    XTestFakeMotionEvent(connection_->display, -1, x, y, CurrentTime);
    XSync(connection_->display, False);
}

void X11Hand::buttonDown() {
    XTestFakeButtonEvent(connection_->display, 1, True, CurrentTime);
    XSync(connection_->display, False);
}

void X11Hand::buttonUp() {
    XTestFakeButtonEvent(connection_->display, 1, False, CurrentTime);
    XSync(connection_->display, False);
}

}  // namespace fieldcal::demonstration
