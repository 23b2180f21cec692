#include "tests/app/demo/X11Hand.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace fieldcal::testing {

X11Hand::X11Hand() : display_(XOpenDisplay(nullptr)) {}

X11Hand::~X11Hand() {
    if (display_ != nullptr) XCloseDisplay(display_);
}

bool X11Hand::focusLargestWindow() {
    Window root = 0;
    Window parent = 0;
    Window* windows = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display_, DefaultRootWindow(display_), &root, &parent, &windows, &count) == 0) return false;
    Window largest = 0;
    int largestArea = 0;
    for (unsigned int i = 0; i < count; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(display_, windows[i], &attributes) == 0 || attributes.map_state != IsViewable)
            continue;
        if (attributes.width * attributes.height <= largestArea) continue;
        largest = windows[i];
        largestArea = attributes.width * attributes.height;
    }
    XFree(windows);
    if (largest == 0) return false;
    XSetInputFocus(display_, largest, RevertToParent, CurrentTime);
    XSync(display_, False);
    return true;
}

void X11Hand::pressReturn() {
    const KeyCode key = XKeysymToKeycode(display_, XK_Return);
    XTestFakeKeyEvent(display_, key, True, CurrentTime);
    XTestFakeKeyEvent(display_, key, False, CurrentTime);
    XSync(display_, False);
}

void X11Hand::moveTo(int x, int y) {
    XTestFakeMotionEvent(display_, -1, x, y, CurrentTime);
    XSync(display_, False);
}

void X11Hand::buttonDown() {
    XTestFakeButtonEvent(display_, 1, True, CurrentTime);
    XSync(display_, False);
}

void X11Hand::buttonUp() {
    XTestFakeButtonEvent(display_, 1, False, CurrentTime);
    XSync(display_, False);
}

}  // namespace fieldcal::testing
