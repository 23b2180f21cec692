// A picture of every page of the interface, with pictures of a recording in its views and nobody behind it.
//   film-strip RECORDING FOLDER [WIDTHxHEIGHT] [rtl]        (on an X display)
#include "render/FixedFunctionGl.h"
#include "session/RecordedSession.h"
#include "tests/views/ViewsStory.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace fieldcal::testing {
namespace {

constexpr int kSettleMs = 2200;  // longer than any text is held back or any confirmation lasts

ImageFrame32 colourFrame(const QString& file) {
    const QImage image = QImage(file).convertToFormat(QImage::Format_RGBA8888);
    ImageFrame32 frame;
    frame.assign(static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
                 image.constBits());
    return frame;
}

ImageFrame16 greyFrame(const QString& file) {
    const QImage image = QImage(file).convertToFormat(QImage::Format_Grayscale16);
    ImageFrame16 frame;
    frame.resize(static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(reinterpret_cast<const std::uint16_t*>(image.constScanLine(y)), image.width(),
                    frame.pixels() + y * image.width());
    return frame;
}

/// In the application, the code shows one or two views at a time; here the interface's page tells which.
void fillViews(ViewsStage& stage, const QString& recording) {
    const ImageFrame32 colour = colourFrame(recording + "/000_third.png");
    for (const char* name : {"introImageView", "calibColorView"})
        stage.window()->findChild<ColorImageRendererItem*>(name)->setFrame(colour);
    stage.window()
        ->findChild<InfraredImageRendererItem*>("calibInfraredView")
        ->setFrame(greyFrame(recording + "/000_infrared.png"));
    for (const char* name : {"refinementWalkthroughView", "refinementView"})
        stage.window()->findChild<DepthColorOverlayRenderer*>(name)->setFrames(colour,
                                                                               greyFrame(recording + "/000_depth.png"));
}

void showViews(ViewsStage& stage, const QString& page) {
    const auto show = [&](const char* name, bool shown) {
        auto* view = stage.window()->findChild<ImageItem*>(name);
        shown ? view->show() : view->hide();
    };
    const bool walkthrough = page == "tutorial", refinement = page.startsWith("refinement");
    show("introImageView", page == "introduction");
    show("calibColorView", page != "introduction" && !walkthrough && !refinement);
    show("calibInfraredView", page != "introduction" && !walkthrough && !refinement);
    show("refinementWalkthroughView", walkthrough);
    show("refinementView", refinement);
}

int run(const QStringList& arguments) {
    const QString recording = arguments[1], folder = arguments[2];
    QDir().mkpath(folder);
    qputenv("STORY_PICTURES", recording.toLocal8Bit());
    ViewsStage stage;
    if (stage.window() == nullptr) {
        std::fprintf(stderr, "film-strip: %s\n", qPrintable(stage.problem()));
        return 1;
    }
    const QStringList size = arguments.value(3, "1280x800").split('x');
    stage.resize({size[0].toInt(), size[1].toInt()});
    stage.tell("setLeftToRightLanguage", !arguments.contains("rtl"));
    fillViews(stage, recording);
    int number = 0;
    for (const Scene& scene : story()) {
        scene.enter(stage);
        showViews(stage, scene.name);
        QTest::qWait(kSettleMs);
        stage.window()->update();
        const QString file = QString("%1/%2-%3.png").arg(folder).arg(++number, 2, 10, QChar('0')).arg(scene.name);
        if (!stage.window()->grabWindow().save(file)) return 1;
    }
    return 0;
}

}  // namespace
}  // namespace fieldcal::testing

int main(int argc, char** argv) {
    fieldcal::requestDesktopOpenGL();
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().size() < 3) {
        std::fprintf(stderr, "usage: film-strip RECORDING FOLDER [WIDTHxHEIGHT] [rtl]\n");
        return 2;
    }
    return fieldcal::testing::run(QCoreApplication::arguments());
}
