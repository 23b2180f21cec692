#include "tests/views/InterfaceLanguages.h"
#include "tests/views/ViewsStory.h"

#include <QGuiApplication>
#include <QTranslator>
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

namespace fieldcal::testing {
namespace {

constexpr int kSmallestTarget = 48;
constexpr double kSmallestShrink = 0.6;  // of a text that would not fit otherwise

/// Lengthens every text by the amount that verbose languages need over English.
class LongWinded : public QTranslator {
public:
    QString translate(const char* /*context*/, const char* source, const char* /*comment*/, int /*n*/) const override {
        const QString text = QString::fromUtf8(source);
        return text + QStringLiteral(" and so on and so on and so on and so on").left(text.size() * 2 / 5);
    }
    bool isEmpty() const override { return false; }
};

struct Look {
    QSize size;
    bool leftToRight;
    QString language = {};  ///< empty: lengthened English
};
void PrintTo(const Look& look, std::ostream* out) {
    *out << look.size.width() << 'x' << look.size.height() << (look.leftToRight ? "" : " right to left");
    *out << ' ' << look.language.toStdString();
}

class FitTest : public ::testing::TestWithParam<Look> {
protected:
    FitTest() : leftToRight_(GetParam().leftToRight) {
        if (GetParam().language.isEmpty()) {
            QCoreApplication::installTranslator(&longWinded_);
        } else {
            leftToRight_ = installTranslation(GetParam().language, &translator_);
            EXPECT_TRUE(translator_.filePath().endsWith(GetParam().language + ".qm"));
        }
    }
    ~FitTest() override { QLocale::setDefault(QLocale::c()); }

    /// Checks what a user sees: no text or button may be cut off, too small or covered by another.
    static void check(ViewsStage& stage, const char* name) {
        stage.window()->grabWindow();  // afterwards everything is at its place
        QQuickItem* instruction = stage.find("movementText");
        ASSERT_TRUE(QTest::qWaitFor([&] { return instruction->property("text") == instruction->property("wanted"); }));
        const QQuickItem* slides = stage.find("howToMoveView");
        ASSERT_TRUE(QTest::qWaitFor([&] {
            const auto* slide = slides->property("currentItem").value<QQuickItem*>();
            return !slides->isVisible() || seen(slides).adjusted(-1, -1, 1, 1).contains(seen(slide));
        }));
        const QQuickItem* notice = stage.find("updateNotice");
        ASSERT_TRUE(QTest::qWaitFor([&] { return notice->isEnabled() || !notice->isVisible(); }));
        SCOPED_TRACE(name);
        std::vector<QQuickItem*> buttons;
        checkBelow(stage, stage.window()->contentItem(), &buttons);
        const bool endsByItself =
            (stage.find("savingPage")->isVisible() && !stage.find("savedHistoryButton")->isVisible()) ||
            name == QString("update-starting");
        EXPECT_EQ(buttons.empty(), endsByItself);
        for (const QQuickItem* one : buttons)
            for (const QQuickItem* other : buttons)
                EXPECT_TRUE(one == other || !seen(one).intersects(seen(other))) << nameOf(one) << ", " << nameOf(other);
    }

    bool leftToRight_;

private:
    static QRectF seen(const QQuickItem* item) { return item->mapRectToScene({0, 0, item->width(), item->height()}); }
    static std::string nameOf(const QQuickItem* item) {
        return (item->objectName() + " \"" + item->property("text").toString() + '"').toStdString();
    }
    static void checkBelow(ViewsStage& stage, QQuickItem* item, std::vector<QQuickItem*>* buttons) {
        const QRectF window(QPointF(0, 0), stage.window()->size());
        if (!item->isVisible()) return;
        if (item->clip() && item->inherits("QQuickSwipeView")) {
            return checkBelow(stage, item->property("currentItem").value<QQuickItem*>(), buttons);
        }
        if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty()) checkText(item, window);
        if (item->inherits("QQuickAbstractButton") && item->isEnabled()) {
            EXPECT_GE(std::min(item->width(), item->height()), kSmallestTarget) << nameOf(item);
            EXPECT_TRUE(window.contains(seen(item))) << nameOf(item);
            buttons->push_back(item);
        }
        for (QQuickItem* child : item->childItems())
            checkBelow(stage, child, buttons);
    }
    static void checkText(const QQuickItem* text, const QRectF& window) {
        EXPECT_TRUE(window.adjusted(-1, -1, 1, 1).contains(seen(text))) << nameOf(text);
        EXPECT_LE(text->property("contentWidth").toReal(), text->width() + 1) << nameOf(text);
        EXPECT_LE(text->property("contentHeight").toReal(), text->height() + 1) << nameOf(text);
        const double wanted = text->property("font").value<QFont>().pixelSize();
        const double shown = text->property("fontInfo").value<QJSValue>().property("pixelSize").toNumber();
        EXPECT_GE(shown, kSmallestShrink * wanted) << nameOf(text);
    }

    LongWinded longWinded_;
    QTranslator translator_;
};

TEST_P(FitTest, NothingIsCutOffOnAnyPage) {
    for (const auto& scenes : {story(), endings()}) {
        ViewsStage stage;
        ASSERT_NE(stage.window(), nullptr) << stage.problem().toStdString();
        stage.resize(GetParam().size);
        stage.tell("setLeftToRightLanguage", leftToRight_);
        for (const Scene& scene : scenes) {
            scene.enter(stage);
            check(stage, scene.name);
        }
    }
}

// The third one is the largest screen with two device pixels per logical pixel.
INSTANTIATE_TEST_SUITE_P(Looks, FitTest,
                         ::testing::Values(Look{{1024, 600}, true}, Look{{1024, 600}, false}, Look{{1368, 912}, true},
                                           Look{{2736, 1824}, true}, Look{{2736, 1824}, false}));

std::vector<Look> inEveryLanguage() {
    std::vector<Look> looks;
    for (const QString& language : kInterfaceLanguages)
        looks.push_back({{1024, 600}, true, language});
    for (const char* language : {"German", "Greek", "Japanese", "Thai", "Arabic"})
        looks.push_back({{1280, 800}, true, language});
    return looks;
}
INSTANTIATE_TEST_SUITE_P(Languages, FitTest, ::testing::ValuesIn(inEveryLanguage()));

TEST(ThemeTest, TextCanBeReadInTheSun) {
    ViewsStage stage;
    QQmlComponent probe(&stage.engine());
    probe.setData("import QtQuick 2.15\nimport \"theme\"\nQtObject { property var theme: Theme }",
                  QUrl::fromLocalFile(FIELDCAL_VIEWS "/Probe.qml"));
    const std::unique_ptr<QObject> object(probe.create());
    ASSERT_NE(object, nullptr) << probe.errorString().toStdString();
    const auto* theme = object->property("theme").value<QObject*>();
    const auto contrast = [theme](const char* text, const char* ground) {
        const double a = luminance(theme->property(text).value<QColor>());
        const double b = luminance(theme->property(ground).value<QColor>());
        return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
    };
    for (const char* text : {"text", "quietText", "now", "done"})
        for (const char* ground : {"ground", "panel"})
            EXPECT_GE(contrast(text, ground), 7) << text << " on " << ground;
    for (const char* ground : {"now", "nowPressed"})
        EXPECT_GE(contrast("textOnColour", ground), 7) << ground;
    EXPECT_GE(contrast("text", "pressed"), 7) << "a quiet button that is pressed";
}

}  // namespace
}  // namespace fieldcal::testing
