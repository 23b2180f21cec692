#include "render/FixedFunctionGl.h"

#include <QGuiApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv) {
    fieldcal::requestDesktopOpenGL();
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
