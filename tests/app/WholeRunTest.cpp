#include "render/FixedFunctionGl.h"
#include "tests/app/ApplicationRig.h"

#include <QQuickItem>
#include <QTest>

#include <chrono>
#include <mutex>

namespace fieldcal::testing {
namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

struct Period {
    Clock::time_point begin, end;
};

/// The times at which the loop processed photos, according to its log.
class DecisionWatch {
public:
    DecisionWatch() { previous() = qInstallMessageHandler(&DecisionWatch::watch); }
    ~DecisionWatch() { qInstallMessageHandler(previous()); }
    DecisionWatch(const DecisionWatch&) = delete;
    DecisionWatch& operator=(const DecisionWatch&) = delete;

    static std::vector<Period> finished() {
        const std::lock_guard lock(mutex());
        std::vector<Period> all = decisions();
        if (!all.empty() && all.back().end < all.back().begin) all.pop_back();
        return all;
    }

private:
    static std::mutex& mutex() {
        static std::mutex ofDecisions;
        return ofDecisions;
    }
    static std::vector<Period>& decisions() {
        static std::vector<Period> noted;
        return noted;
    }
    static QtMessageHandler& previous() {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void watch(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        const bool ends = text == "Continue processing" || text == "Found a good solution!" ||
                          text == "Could not get a sample set from this image..";
        {
            const std::lock_guard lock(mutex());
            if (text == "Adding new infrared color pair...") decisions().push_back({Clock::now(), {}});
            if (ends && !decisions().empty()) decisions().back().end = Clock::now();
        }
        if (type != QtInfoMsg) previous()(type, context, text);
    }
};

/// Records every time that the main thread processes its events.
class Heartbeat {
public:
    Heartbeat() {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, [this] { beats_.push_back(Clock::now()); });
        timer_.start(2);
    }
    /// Counted within a period.
    double longestGapMs(const Period& period) const {
        Clock::duration longest{};
        for (std::size_t i = 1; i < beats_.size(); ++i)
            longest = std::max(longest, std::min(beats_[i], period.end) - std::max(beats_[i - 1], period.begin));
        return milliseconds(longest);
    }

private:
    QTimer timer_;
    std::vector<Clock::time_point> beats_;
};

/// The product's own interface in a window that is drawn, with a module that plays at its own rate.
class WholeRunTest : public ApplicationTest {
protected:
    WholeRunTest() {
        set("QT_QPA_PLATFORM", "xcb");
        qunsetenv("QT_QUICK_BACKEND");
        set("KXSIM_SPEED", "1");
        requestDesktopOpenGL();
    }
    void startInWindow() {
        start({}, [](ApplicationEnvironment& environment) {
            environment.rootDocument = ApplicationEnvironment().rootDocument;
        });
        heartbeat = std::make_unique<Heartbeat>();
        manager->window()->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(manager->window()));
    }
    QQuickItem* find(const char* name) const { return manager->window()->findChild<QQuickItem*>(name); }
    /// Sleeps between events, so that the loop under test gets the processor.
    template <typename Condition>
    static bool comes(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < kPatienceMs)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return condition();
    }
    bool waitForItem(const char* item) {
        return comes([&] { return find(item)->isVisible(); });
    }
    void pressReturn() { QTest::keyClick(manager->window(), Qt::Key_Return); }
    /// The thumbnails of photos that the interface has loaded, within an item.
    static int photosSeen(const QQuickItem* item) {
        const bool photo = item->property("source").toString().startsWith("image://photos/");
        int count = photo && item->property("status") == 1 ? 1 : 0;
        for (const QQuickItem* child : item->childItems())
            count += photosSeen(child);
        return count;
    }
    void dragAcross() {
        const QPoint middle(manager->window()->width() / 2, manager->window()->height() / 2);
        QTest::mousePress(manager->window(), Qt::LeftButton, {}, middle);
        for (int x = 0; x <= 100; x += 10)
            QTest::mouseMove(manager->window(), middle + QPoint(x, 0), 10);
        QTest::mouseRelease(manager->window(), Qt::LeftButton, {}, middle + QPoint(100, 0));
    }

    const DecisionWatch decisions;
    std::unique_ptr<Heartbeat> heartbeat;
};

TEST_F(WholeRunTest, TheInterfaceAnswersWhilePhotosAreWorkedOnAndTwoCamerasAreStored) {
    startInWindow();
    const auto begin = Clock::now();
    ASSERT_TRUE(waitForItem("introContinueButton"));
    pressReturn();
    ASSERT_TRUE(waitForItem("lightingContinueButton"));
    pressReturn();
    int photos = 0;
    ASSERT_TRUE(comes([&] {
        photos = std::max(photos, photosSeen(find("capturePage")));
        return find("foundPage")->isVisible();
    }));
    EXPECT_GE(photos, 2);
    EXPECT_TRUE(find("foundProof")->isVisible());
    pressReturn();
    ASSERT_TRUE(waitForItem("tutorialPage"));
    QTest::qWait(500);
    pressReturn();
    ASSERT_TRUE(waitForItem("refinementPage"));
    dragAcross();
    const QObject* overlay = manager->window()->findChild<QObject*>("refinementView");
    ASSERT_TRUE(comes([&] { return overlay->property("correctionDeg").toDouble() > 0.6; })) << "100 of 1280 pixels";
    pressReturn();
    ASSERT_TRUE(waitForItem("betweenPage"));
    pressReturn();
    ASSERT_TRUE(waitForItem("foundPage"));
    pressReturn();
    ASSERT_TRUE(waitForItem("refinementPage"));
    const Period wholeRun{begin, Clock::now()};

    std::vector<double> lengths, gaps, shares;
    for (const Period& decision : DecisionWatch::finished()) {
        lengths.push_back(milliseconds(decision.end - decision.begin));
        gaps.push_back(heartbeat->longestGapMs(decision));
        shares.push_back(gaps.back() / lengths.back());
    }
    ASSERT_GE(lengths.size(), 5U);
    // A delay caused by a decision would appear in each of them; a busy machine delays only a few.
    EXPECT_LT(median(shares), 0.6) << ::testing::PrintToString(shares);
    std::printf(
        "Longest gap between the main thread's events: %.0f ms in all, %.0f ms in the worst and %.0f ms in the "
        "median decision; decisions took %.0f ms (median)\n",
        heartbeat->longestGapMs(wholeRun), *std::max_element(gaps.begin(), gaps.end()), median(gaps), median(lengths));
    runUntilEnd([this] { pressReturn(); });
    EXPECT_EQ(manager->exitCode(), 0);
    EXPECT_THAT(boxes, ::testing::IsEmpty());
}

}  // namespace
}  // namespace fieldcal::testing
