// Takes a picture of every page of the interface without the application, with images of a recording in its views.
//   film-strip RECORDING FOLDER [WIDTHxHEIGHT] [rtl | LANGUAGE]     (on an X display)
// LANGUAGE: a name of resources/Files, such as Chinese_Taiwan; "rtl": English in the other direction.
#include "render/FixedFunctionGl.h"
#include "render/OverlayCalibration.h"
#include "session/RecordedSession.h"
#include "tests/views/InterfaceLanguages.h"
#include "tests/views/ViewsStory.h"

#include <QDir>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

static void initPictures() {
    Q_INIT_RESOURCE(Pictures);
}

namespace fieldcal::demonstration {
namespace {

using testing::Scene;
using testing::ViewsStage;

constexpr int kSettleMs = 2700;  // longer than any text is delayed or any confirmation is shown

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

CameraModel modelOf(const session::Intrinsics& camera) {
    return {camera.width,
            camera.height,
            static_cast<float>(camera.fx),
            static_cast<float>(camera.fy),
            static_cast<float>(camera.cx),
            static_cast<float>(camera.cy)};
}

/// The colour camera of a recording with its true rotation as the result.
OverlayCalibration calibrationOf(const session::SessionDescription& recorded) {
    OverlayCalibration cameras;
    cameras.depth = modelOf(recorded.depth);
    cameras.colour = modelOf(recorded.third);
    for (int i = 0; i < 9; ++i) {
        cameras.stored.rotation[i] = static_cast<float>(recorded.third.rotation[i]);
        cameras.estimated[i] = static_cast<float>(recorded.truthThird.value_or(recorded.third.rotation)[i]);
    }
    for (int i = 0; i < 3; ++i)
        cameras.stored.translation[i] = static_cast<float>(0.001 * recorded.third.translation[i]);
    return cameras;
}

/// In the application, code shows one or two views at a time; here the page of the interface decides.
void fillViews(ViewsStage& stage, const QString& recording) {
    const ImageFrame32 colour = colourFrame(recording + "/000_third.png");
    for (const char* name : {"introImageView", "calibColorView"})
        stage.window()->findChild<ColorImageRendererItem*>(name)->setFrame(colour);
    stage.window()
        ->findChild<InfraredImageRendererItem*>("calibInfraredView")
        ->setFrame(greyFrame(recording + "/000_infrared.png"));
    session::SessionDescription recorded;
    std::string why;
    if (!readDescription(recording.toStdString(), &recorded, &why)) std::fprintf(stderr, "%s\n", why.c_str());
    auto* refinement = stage.window()->findChild<DepthColorOverlayRenderer*>("refinementView");
    refinement->setCalibration(calibrationOf(recorded));
    refinement->setFrames(colour, greyFrame(recording + "/000_depth.png"));
    stage.window()->findChild<DepthColorOverlayRenderer*>("refinementWalkthroughView")->setTutorialMode(true);
}

void showViews(ViewsStage& stage, const QString& page) {
    const auto show = [&](const char* name, bool shown) {
        auto* view = stage.window()->findChild<ImageItem*>(name);
        shown ? view->show() : view->hide();
    };
    const bool introduction = page == "introduction" || page == "history" || page.startsWith("update");
    const bool walkthrough = page == "tutorial", refinement = page.startsWith("refinement");
    show("introImageView", introduction);
    show("calibColorView", !introduction && !walkthrough && !refinement);
    show("calibInfraredView", !introduction && !walkthrough && !refinement);
    show("refinementWalkthroughView", walkthrough);
    show("refinementView", refinement);
}

/// The size and language of the pages, and the folder for their pictures.
struct Strip {
    QString recording;
    QString folder;
    QSize size;
    bool leftToRight = true;
    int count = 0;
};

bool shoot(ViewsStage& stage, const Scene& scene, Strip* strip) {
    scene.enter(stage);
    showViews(stage, scene.name);
    QTest::qWait(kSettleMs);
    const QString number = QString::number(++strip->count).rightJustified(2, '0');
    return stage.window()->grabWindow().save(QString("%1/%2-%3.png").arg(strip->folder, number, scene.name));
}

bool shootAll(const std::vector<Scene>& scenes, Strip* strip) {
    ViewsStage stage;
    if (stage.window() == nullptr) {
        std::fprintf(stderr, "film-strip: %s\n", qPrintable(stage.problem()));
        return false;
    }
    stage.resize(strip->size);
    stage.tell("setLeftToRightLanguage", strip->leftToRight);
    fillViews(stage, strip->recording);
    return std::all_of(scenes.begin(), scenes.end(), [&](const Scene& scene) { return shoot(stage, scene, strip); });
}

int run(const QStringList& arguments) {
    const QStringList size = arguments.value(3, "1280x800").split('x');
    const QString language = arguments.value(4, "English");
    QTranslator translator;
    const bool leftToRight = language != "rtl" && testing::installTranslation(language, &translator);
    Strip strip{arguments[1], arguments[2], {size.value(0).toInt(), size.value(1).toInt()}, leftToRight};
    QDir().mkpath(strip.folder);
    initPictures();
    qputenv("STORY_PICTURES", strip.recording.toLocal8Bit());
    return shootAll(testing::story(), &strip) && shootAll(testing::endings(), &strip) ? 0 : 1;
}

}  // namespace
}  // namespace fieldcal::demonstration

int main(int argc, char** argv) {
    fieldcal::requestDesktopOpenGL();
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const QGuiApplication application(argc, argv);
    if (QCoreApplication::arguments().size() < 3) {
        std::fprintf(stderr, "usage: film-strip RECORDING FOLDER [WIDTHxHEIGHT] [rtl | LANGUAGE]\n");
        return 2;
    }
    return fieldcal::demonstration::run(QCoreApplication::arguments());
}
