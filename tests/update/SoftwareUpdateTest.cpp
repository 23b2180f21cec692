#include "tests/devices/LogCapture.h"
#include "tests/update/DownloadServer.h"
#include "tests/update/UpdateOwner.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>

#include <ostream>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr qint64 kTenGigabytes = 10LL * 1000 * 1000 * 1000;
constexpr const char* kHtml = "<!DOCTYPE html><html><body>Please sign in.</body></html>";

QByteArray theInstaller() {
    QByteArray bytes(400 * 1000, '\0');
    for (int i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>((i * 2654435761U) >> 13);
    return bytes;
}

/// What the server has, and the environment of the program that asks it.
struct Course {
    DownloadServer server;
    std::shared_ptr<FakeStarter> starter = std::make_shared<FakeStarter>();
    UpdateEnvironment environment;
    const QByteArray installer = theInstaller();
    QByteArray version = "1.10", url, more, manifest;
    std::function<HttpAnswer(const HttpRequest&)> manifestAnswer, installerAnswer;

    Course() {
        environment.manifest = server.url("/Version.json");
        environment.running = Version::parse("1.9.3");
        environment.authorities = {DownloadServer::authority()};
        environment.starter = starter;
        environment.retryPause = std::chrono::milliseconds(1);
        environment.retries = 2;
        url = server.url("/Setup.exe").toString().toLatin1();
        server.answer = [this](const HttpRequest& request) {
            return request.path == "/Version.json" ? answerManifest(request) : answerInstaller(request);
        };
    }
    HttpAnswer answerManifest(const HttpRequest& request) const {
        if (manifestAnswer) return manifestAnswer(request);
        HttpAnswer answer;
        answer.body = manifest;
        if (manifest.isEmpty()) answer.body = R"({"version":")" + version + R"(","url":")" + url + '"' + more + '}';
        return answer;
    }
    HttpAnswer answerInstaller(const HttpRequest& request) const {
        if (installerAnswer) return installerAnswer(request);
        return whole();
    }
    HttpAnswer whole() const {
        HttpAnswer answer;
        answer.body = installer;
        answer.headers = "ETag: \"one\"\r\n";
        return answer;
    }
    HttpAnswer half() const {
        HttpAnswer answer = whole();
        answer.announced = installer.size();
        answer.breakAfter = installer.size() / 2;
        return answer;
    }
    HttpAnswer rest(qint64 from) const {
        HttpAnswer answer = whole();
        answer.status = "206 Partial Content";
        answer.body = installer.mid(static_cast<int>(from));
        answer.headers += QString("Content-Range: bytes %1-%2/%3\r\n")
                              .arg(from)
                              .arg(installer.size() - 1)
                              .arg(installer.size())
                              .toLatin1();
        return answer;
    }
    static HttpAnswer redirect(const QUrl& target) {
        HttpAnswer answer;
        answer.status = "302 Found";
        answer.headers = "Location: " + target.toEncoded() + "\r\n";
        return answer;
    }
    static HttpAnswer tooLong(qint64 announced) {
        HttpAnswer answer;
        answer.announced = announced;
        answer.endless = true;
        return answer;
    }
    static HttpAnswer status(const char* text) {
        HttpAnswer answer;
        answer.status = text;
        answer.body = kHtml;
        return answer;
    }
    bool isFirstForInstaller() const { return server.requests.size() == 2; }
};

struct Case {
    const char* name;
    std::function<void(Course&)> arrange;
    std::vector<std::string> told;
    const char* logged;  ///< in its last line, and before an offer there is no other
};
void PrintTo(const Case& one, std::ostream* out) {
    *out << one.name;
}

class SoftwareUpdateTest : public ::testing::Test {
protected:
    SoftwareUpdateTest() { course.environment.temporaryFolder = temporary.path(); }

    void start() {
        update = std::make_unique<SoftwareUpdate>(course.environment, owner);
        owner.update = update.get();
        update->start(&owner);
    }
    template <typename Condition>
    static bool waitUntil(Condition condition) {
        QEventLoop loop;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (condition()) loop.quit();
        });
        poll.start(2);
        QTimer patience;
        QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
        patience.start(20000);
        loop.exec();
        return condition();
    }
    QStringList onDisk() const { return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    QTemporaryDir temporary;
    Course course;
    Owner owner;
    std::unique_ptr<SoftwareUpdate> update;
};

class UpdateTableTest : public SoftwareUpdateTest, public ::testing::WithParamInterface<Case> {};

TEST_P(UpdateTableTest, WhatTheUserIsToldAndWhatIsLeftOnTheDisk) {
    GetParam().arrange(course);
    const LogCapture log;
    start();
    ASSERT_TRUE(waitUntil([&] { return owner.ended || (owner.told.empty() && !LogCapture::lines().empty()); }))
        << ::testing::PrintToString(owner.told);
    EXPECT_THAT(owner.told, ElementsAreArray(GetParam().told));
    const std::vector<std::string>& lines = LogCapture::lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_THAT(lines.back(), HasSubstr(GetParam().logged)) << ::testing::PrintToString(lines);
    EXPECT_TRUE(!owner.told.empty() || lines.size() == 1) << ::testing::PrintToString(lines);
    const bool started = !owner.told.empty() && owner.told.back() == "started";
    EXPECT_EQ(onDisk().size(), started ? 1 : 0);
    if (started) {
        EXPECT_TRUE(course.starter->started == course.installer);
        EXPECT_EQ(course.starter->command, "FieldCalibratorSetup.exe /S /AUTOSTART");
        EXPECT_EQ(course.starter->others, QFile::Permissions());
    } else if (!course.starter->startFailure) {
        EXPECT_TRUE(course.starter->started.isEmpty());
    }
}

std::string failed(UpdateFailure failure) {
    return "failed " + std::to_string(static_cast<int>(failure));
}

const std::vector<std::string> kNothing;
const std::vector<std::string> kDone{"offered 1.10", "progress", "received", "started"};
const std::vector<std::string> kDoneAfterBreak{"offered 1.10", "progress", "interrupted",
                                               "progress",     "received", "started"};
const std::vector<std::string> kRefusedAtOnce{"offered 1.10", failed(UpdateFailure::Server)};

INSTANTIATE_TEST_SUITE_P(
    NotOffered, UpdateTableTest,
    ::testing::Values(
        Case{"same version", [](Course& c) { c.version = "1.9.3.0"; }, kNothing, "1.9.3 is no newer than this one"},
        Case{"downgrade", [](Course& c) { c.version = "1.9.2"; }, kNothing, "1.9.2 is no newer"},
        Case{"version with a suffix", [](Course& c) { c.version = "2.0-beta"; }, kNothing, "no version"},
        Case{"version is a number", [](Course& c) { c.manifest = R"({"version":2,"url":"https://a/b"})"; }, kNothing,
             "\"version\" is no version"},
        Case{"installer by HTTP", [](Course& c) { c.url.replace("https:", "http:"); }, kNothing, "no HTTPS address"},
        Case{"installer's address is a list",
             [](Course& c) { c.manifest = R"({"version":"2.0","url":["https://a"]})"; }, kNothing, "no HTTPS address"},
        Case{"bad digest", [](Course& c) { c.more = R"(,"sha256":"12")"; }, kNothing, "no digest"},
        Case{"HTML", [](Course& c) { c.manifest = kHtml; }, kNothing, "no JSON"},
        Case{"a list", [](Course& c) { c.manifest = "[]"; }, kNothing, "no JSON object"},
        Case{"endless manifest",
             [](Course& c) { c.manifestAnswer = [](const HttpRequest&) { return Course::tooLong(-1); }; }, kNothing,
             "too long"},
        Case{"manifest of 10 GB",
             [](Course& c) { c.manifestAnswer = [](const HttpRequest&) { return Course::tooLong(kTenGigabytes); }; },
             kNothing, "too long"},
        Case{"not found",
             [](Course& c) { c.manifestAnswer = [](const HttpRequest&) { return Course::status("404 Not Found"); }; },
             kNothing, "Not Found"},
        Case{"not found, endlessly",
             [](Course& c) {
                 c.manifestAnswer = [](const HttpRequest&) {
                     HttpAnswer answer = Course::tooLong(-1);
                     answer.status = "404 Not Found";
                     return answer;
                 };
             },
             kNothing, "too long"},
        Case{"no answer",
             [](Course& c) {
                 c.environment.manifestTimeout = std::chrono::milliseconds(300);
                 c.manifestAnswer = [](const HttpRequest&) {
                     HttpAnswer answer;
                     answer.none = true;
                     return answer;
                 };
             },
             kNothing, "no answer in time"},
        Case{"nobody listens", [](Course& c) { c.server.close(); }, kNothing, "refused"},
        Case{"authority not trusted", [](Course& c) { c.environment.authorities.clear(); }, kNothing,
             "SSL handshake failed"},
        Case{"certificate of another name", [](Course& c) { c.environment.manifest.setHost("127.0.0.1"); }, kNothing,
             "SSL handshake failed"},
        Case{"manifest by HTTP", [](Course& c) { c.environment.manifest.setScheme("http"); }, kNothing, "not HTTPS"},
        Case{"manifest redirected to HTTP",
             [](Course& c) {
                 c.manifestAnswer = [&c](const HttpRequest&) { return Course::redirect(c.server.url("/x", "http")); };
             },
             kNothing, "nsecure redirect"},
        Case{"own version unknown", [](Course& c) { c.environment.running.reset(); }, kNothing, "own version"}));

INSTANTIATE_TEST_SUITE_P(
    Fetched, UpdateTableTest,
    ::testing::Values(Case{"in one go", [](Course&) {}, kDone, "is offered"},
                      Case{"with its digest",
                           [](Course& c) {
                               const QByteArray digest =
                                   QCryptographicHash::hash(c.installer, QCryptographicHash::Sha256).toHex();
                               c.more = R"(,"sha256":")" + digest.toUpper() + '"';
                               c.installerAnswer = [&c](const HttpRequest& request) {
                                   return request.rangeStart() > 0 ? c.rest(request.rangeStart()) : c.half();
                               };
                           },
                           kDoneAfterBreak, "is offered"},
                      Case{"redirected",
                           [](Course& c) {
                               c.installerAnswer = [&c](const HttpRequest& request) {
                                   return request.path == "/Setup.exe" ? Course::redirect(c.server.url("/moved"))
                                                                       : c.whole();
                               };
                           },
                           kDone, "is offered"},
                      Case{"broken, then another file",
                           [](Course& c) {
                               c.installerAnswer = [&c](const HttpRequest& request) {
                                   HttpAnswer other = c.half();
                                   other.body.fill('x');
                                   return request.rangeStart() > 0 ? c.whole() : other;
                               };
                           },
                           kDoneAfterBreak, "is offered"},
                      Case{"broken, and nothing to know it again by",
                           [](Course& c) {
                               c.installerAnswer = [&c](const HttpRequest&) {
                                   HttpAnswer answer = c.isFirstForInstaller() ? c.half() : c.whole();
                                   answer.headers.clear();
                                   return answer;
                               };
                           },
                           kDoneAfterBreak, "is offered"},
                      Case{
                          "broken, then another part than was asked for",
                          [](Course& c) {
                              c.installerAnswer = [&c](const HttpRequest& request) {
                                  if (request.rangeStart() > 0) return c.rest(request.rangeStart() - 1);
                                  return c.isFirstForInstaller() ? c.half() : c.whole();
                              };
                          },
                          {"offered 1.10", "progress", "interrupted", "interrupted", "progress", "received", "started"},
                          "is offered"},
                      Case{"stalled",
                           [](Course& c) {
                               c.environment.stallTimeout = std::chrono::seconds(1);
                               c.installerAnswer = [&c](const HttpRequest& request) {
                                   HttpAnswer answer = c.half();
                                   answer.silent = true;
                                   return request.rangeStart() > 0 ? c.rest(request.rangeStart()) : answer;
                               };
                           },
                           kDoneAfterBreak, "is offered"}));

INSTANTIATE_TEST_SUITE_P(
    NotFetched, UpdateTableTest,
    ::testing::Values(
        Case{"always broken",
             [](Course& c) { c.installerAnswer = [&c](const HttpRequest&) { return c.half(); }; },
             {"offered 1.10", "progress", "interrupted", "progress", "interrupted", "progress",
              failed(UpdateFailure::Connection)},
             "closed"},
        Case{"wrong digest",
             [](Course& c) { c.more = R"(,"sha256":")" + QByteArray(64, 'a') + '"'; },
             {"offered 1.10", "progress", failed(UpdateFailure::Damaged)},
             "another digest"},
        Case{"10 GB",
             [](Course& c) { c.installerAnswer = [](const HttpRequest&) { return Course::tooLong(kTenGigabytes); }; },
             kRefusedAtOnce, "too large"},
        Case{"endless", [](Course& c) { c.installerAnswer = [](const HttpRequest&) { return Course::tooLong(-1); }; },
             kRefusedAtOnce, "size is not told"},
        Case{"redirected to HTTP",
             [](Course& c) {
                 c.installerAnswer = [&c](const HttpRequest&) { return Course::redirect(c.server.url("/x", "http")); };
             },
             kRefusedAtOnce, "nsecure redirect"},
        Case{"redirected in a circle",
             [](Course& c) {
                 c.installerAnswer = [&c](const HttpRequest&) { return Course::redirect(c.server.url("/Setup.exe")); };
             },
             kRefusedAtOnce, "redirect"},
        Case{"gone",
             [](Course& c) { c.installerAnswer = [](const HttpRequest&) { return Course::status("410 Gone"); }; },
             kRefusedAtOnce, "status 410"},
        Case{"server in trouble",
             [](Course& c) { c.installerAnswer = [](const HttpRequest&) { return Course::status("503 Busy"); }; },
             {"offered 1.10", "interrupted", "interrupted", failed(UpdateFailure::Connection)},
             "status 503"},
        Case{"no room on the disk",
             [](Course& c) { c.environment.temporaryFolder += "/missing"; },
             {"offered 1.10", failed(UpdateFailure::Disk)},
             "no file"},
        Case{"signed by somebody else",
             [](Course& c) { c.starter->startFailure = UpdateFailure::NotTrusted; },
             {"offered 1.10", "progress", "received", failed(UpdateFailure::NotTrusted)},
             "is offered"},
        Case{"unsigned program",
             [](Course& c) {
                 c.starter->obstacleFound = UpdateFailure::Unsigned;
                 c.installerAnswer = [](const HttpRequest&) {
                     ADD_FAILURE() << "asked for";
                     return HttpAnswer();
                 };
             },
             {"offered 1.10", failed(UpdateFailure::Unsigned)},
             "is offered"}));

TEST_F(SoftwareUpdateTest, WhatIsGivenUpAtATenthIsGoneFromTheDiskAndTheLine) {
    const std::vector<std::function<void()>> waysOut{[this] { update->abort(); }, [this] { update->release(); },
                                                     [this] { update.reset(); }};
    for (const auto& leave : waysOut) {
        owner.told.clear();
        course.installerAnswer = [this](const HttpRequest&) {
            HttpAnswer answer = course.half();
            answer.breakAfter = course.installer.size() / 10;
            answer.silent = true;
            return answer;
        };
        start();
        ASSERT_TRUE(waitUntil([&] { return owner.share >= 0.1; }));
        EXPECT_EQ(onDisk().size(), 1);
        leave();
        EXPECT_THAT(onDisk(), IsEmpty());
        EXPECT_TRUE(waitUntil([&] { return course.server.openConnections == 0; }));
        EXPECT_THAT(owner.told, ElementsAre("offered 1.10", "progress"));
        owner.share = 0;
    }
}

TEST_F(SoftwareUpdateTest, LeavingBeforeTheServerAnswersSaysNothing) {
    course.manifestAnswer = [](const HttpRequest&) {
        HttpAnswer answer;
        answer.none = true;
        return answer;
    };
    const LogCapture log;
    start();
    ASSERT_TRUE(waitUntil([&] { return !course.server.requests.empty(); }));
    update->release();
    EXPECT_TRUE(waitUntil([&] { return course.server.openConnections == 0; }));
    EXPECT_THAT(LogCapture::lines(), IsEmpty());
}

TEST_F(SoftwareUpdateTest, AfterAFailureItCanBeTriedAgain) {
    course.installerAnswer = [](const HttpRequest&) { return Course::status("404 Not Found"); };
    start();
    ASSERT_TRUE(waitUntil([&] { return owner.ended; }));
    course.installerAnswer = nullptr;
    owner.ended = false;
    update->download();
    update->download();  // is under way
    ASSERT_TRUE(waitUntil([&] { return owner.ended; }));
    EXPECT_EQ(owner.told.back(), "started");
    ASSERT_EQ(onDisk().size(), 1) << "the installer needs it";
    start();
    EXPECT_THAT(onDisk(), IsEmpty()) << "what the installer left, before anything else is asked for";
}

TEST_F(SoftwareUpdateTest, WithoutAnAddressNothingIsAskedAndNothingIsSaid) {
    course.environment.manifest.clear();
    const LogCapture log;
    start();
    update->download();
    EXPECT_THAT(LogCapture::lines(), ElementsAre("No update was offered."));
    EXPECT_TRUE(owner.findChildren<QObject*>().isEmpty());
    EXPECT_THAT(owner.told, IsEmpty());
}

}  // namespace
}  // namespace fieldcal::testing
