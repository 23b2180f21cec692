#include "camera/Rotation.h"
#include "tests/views/ViewsStory.h"

#include <QQmlProperty>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>

namespace fieldcal::testing {
namespace {

// A bright tablet in the sun: what the screen emits for white, and what its surface reflects on top of everything.
constexpr double kWhite = 400;  // cd/m²
constexpr double kIlluminance = 20000;
constexpr double kReflectance = 0.045;
constexpr double kGlare = kIlluminance * kReflectance / kPi;

// Nothing can exceed 2.4, white on black.
constexpr double kMinTextContrast = 1.65;
constexpr double kMinOutlineContrast = 1.3;
constexpr int kMinTextPx = 16;

double contrastInTheSun(const QColor& one, const QColor& other) {
    const double a = kWhite * luminance(one) + kGlare, b = kWhite * luminance(other) + kGlare;
    return std::max(a, b) / std::min(a, b);
}

/// Smallest values over all pages, with the page and the text where they occur.
struct Worst {
    double value = 1e9;
    std::string where;
    void take(double other, const std::string& place) {
        if (other >= value) return;
        value = other;
        where = place;
    }
};

class GlareTest : public ::testing::Test {
protected:
    void walk(QQuickItem* item, double opacity) {
        // A page that is covered by a question is disabled.
        if (!item->isVisible() || !item->isEnabled() || item->objectName() == "flash") return;
        opacity *= item->opacity();
        if (opacity < 0.99) return;
        if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty()) judgeText(*item);
        if (item->inherits("QQuickRectangle")) judgeOutline(*item);
        for (QQuickItem* child : item->childItems())
            walk(child, opacity);
    }

    /// The colour that most pixels of the picture have within the item.
    QColor groundOf(const QQuickItem& item) const {
        std::map<QRgb, int> counts;
        const QRectF scene = item.mapRectToScene({0, 0, item.width(), item.height()});
        const QRect area = scene.toAlignedRect().intersected(picture.rect());
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                ++counts[picture.pixel(x, y)];
        const auto most = std::max_element(counts.begin(), counts.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
        return most != counts.end() ? QColor(most->first) : QColor();
    }
    void judgeText(const QQuickItem& item) {
        const std::string place = std::string(page) + ", " + item.property("text").toString().left(30).toStdString();
        const auto colour = item.property("color").value<QColor>();
        text[colour.name().toStdString()].take(contrastInTheSun(colour, groundOf(item)), place);
        size.take(item.property("fontInfo").value<QJSValue>().property("pixelSize").toNumber(), place);
    }
    void judgeOutline(const QQuickItem& item) {
        const double width = QQmlProperty::read(&item, "border.width").toDouble();
        const auto colour = QQmlProperty::read(&item, "border.color").value<QColor>();
        const auto fill = item.property("color").value<QColor>();
        const auto ground = QColor("#12161a");
        const bool none = colour == QColor(Qt::black);  // of a rectangle without an outline
        if (width < 1 || colour.alpha() < 255 || colour == ground || none) return;
        outline[colour.name().toStdString()].take(contrastInTheSun(colour, fill.alpha() == 255 ? fill : ground), page);
    }

    const char* page = "";
    QImage picture;
    std::map<std::string, Worst> text, outline;  ///< for each colour
    Worst size;
};

TEST_F(GlareTest, EveryPageCanBeReadInTheSun) {
    for (const auto& scenes : {story(), endings()}) {
        ViewsStage stage;
        ASSERT_NE(stage.window(), nullptr);
        stage.resize({1280, 800});
        for (const Scene& scene : scenes) {
            scene.enter(stage);
            QTest::qWait(600);  // until the page has faded in
            page = scene.name;
            picture = stage.window()->grabWindow();
            ASSERT_FALSE(picture.isNull());
            walk(stage.window()->contentItem(), 1);
        }
    }
    for (const auto& [colour, worst] : text) {
        std::printf("text %s: %.2f (%s)\n", colour.c_str(), worst.value, worst.where.c_str());
        EXPECT_GE(worst.value, kMinTextContrast) << colour << " in " << worst.where;
    }
    for (const auto& [colour, worst] : outline) {
        std::printf("outline %s: %.2f (%s)\n", colour.c_str(), worst.value, worst.where.c_str());
        EXPECT_GE(worst.value, kMinOutlineContrast) << colour << " in " << worst.where;
    }
    std::printf("smallest text: %.0f px (%s)\n", size.value, size.where.c_str());
    EXPECT_GE(size.value, kMinTextPx) << size.where;
    EXPECT_GE(text.size(), 4U);
    EXPECT_GE(outline.size(), 3U);
}

}  // namespace
}  // namespace fieldcal::testing
