#include "tests/app/ApplicationRig.h"
#include "tests/update/DownloadServer.h"
#include "tests/update/FakeStarter.h"

#include <QDir>
#include <QSemaphore>
#include <QThread>

namespace fieldcal::testing {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;

/// The server outlives the applications of the test, so it needs its own event loop.
class ServerThread : public QThread {
public:
    ServerThread() {
        start();
        ready_.acquire();
    }
    ~ServerThread() override {
        quit();
        wait();
    }
    QUrl url(const QString& path) const { return QUrl(base_ + path); }

    // To be called before anything is requested.
    QByteArray manifest;
    bool unending = false;

private:
    void run() override {
        DownloadServer server;
        server.answer = [this](const HttpRequest& request) {
            if (request.path == "/Version.json") return HttpAnswer{"200 OK", "", manifest};
            HttpAnswer answer{"200 OK", "", QByteArray(100000, 'x')};
            answer.silent = unending;
            answer.announced = unending ? 200000 : -1;
            return answer;
        };
        base_ = server.url("").toString();
        ready_.release();
        exec();
    }
    QString base_;
    QSemaphore ready_;
};

class UpdateTest : public ApplicationTest {
protected:
    UpdateTest() { server.manifest = R"({"version":"1.1","url":")" + server.url("/Setup.exe").toEncoded() + "\"}"; }
    void startAsking() {
        start({}, [this](ApplicationEnvironment& environment) {
            environment.update.manifest = server.url("/Version.json");
            environment.update.running = Version::parse("1.0");
            environment.update.authorities = {DownloadServer::authority()};
            environment.update.temporaryFolder = temporary.path();
            environment.update.starter = starter;
        });
    }
    QStringList onDisk() const { return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    ServerThread server;
    QTemporaryDir temporary;
    std::shared_ptr<FakeStarter> starter = std::make_shared<FakeStarter>();
};

TEST_F(UpdateTest, TheInstallerIsStartedAndTheProgramEnds) {
    startAsking();
    ASSERT_TRUE(waitFor("updateOffer|1.1"));
    const LogCapture log;
    runUntilEnd([this] { press("startDownloadingUpdate"); });
    EXPECT_EQ(starter->started.size(), 100000);
    EXPECT_THAT(calls(), Contains("updateProgress|100000|100000"));
    EXPECT_TRUE(wasCalled("updateStarting"));
    EXPECT_TRUE(LogCapture::has("slot_userAskedToExit - cleaning up resources"));
    EXPECT_EQ(manager->exitCode(), 0);
    EXPECT_EQ(control.startType, 2U) << "the camera is handed back";
    EXPECT_EQ(onDisk().size(), 1) << "the installer needs its file";
}

TEST_F(UpdateTest, LeavingOrGivingUpRemovesWhatThereIs) {
    server.unending = true;
    for (const char* way : {"userAskedToExit", "quit"}) {
        startAsking();
        ASSERT_TRUE(waitFor("updateOffer|1.1"));
        for (const char* end : {"abortDownloadingUpdate", way}) {
            forget();
            press("startDownloadingUpdate");
            ASSERT_TRUE(waitUntil([&] { return wasCalled("updateProgress|100000|200000"); }));
            EXPECT_EQ(onDisk().size(), 1);
            manager->window()->setProperty("latest", QVariantMap());
            if (end == way) {
                EXPECT_LT(runUntilEnd([&] { press(end); }), 2000) << way;
            } else {
                press(end);
            }
            EXPECT_THAT(onDisk(), IsEmpty()) << end;
        }
    }
}

}  // namespace
}  // namespace fieldcal::testing
