#include "tests/devices/LogCapture.h"
#include "tests/update/DownloadServer.h"
#include "tests/update/FakeStarter.h"
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

HttpAnswer failure(const char* status) {
    return {status, "", kHtml};
}
/// Zeros without end; in chunks, unless a length is announced.
HttpAnswer endless(qint64 announced = -1, const char* status = "200 OK") {
    return {status, "", "", announced, -1, true};
}
HttpAnswer silence() {
    HttpAnswer answer;
    answer.none = true;
    return answer;
}
HttpAnswer redirect(const QUrl& target) {
    return {"302 Found", "Location: " + target.toEncoded() + "\r\n", ""};
}

/// The server's files and the environment of the program.
struct Course {
    DownloadServer server;
    std::shared_ptr<FakeStarter> starter = std::make_shared<FakeStarter>();
    UpdateEnvironment environment;
    const QByteArray installer = theInstaller();
    QByteArray version = "1.10", url, more, manifest;
    std::optional<HttpAnswer> manifestAnswer;
    std::function<HttpAnswer(const HttpRequest&)> installerAnswer = [this](const HttpRequest&) {
        return completeInstaller();
    };

    Course() {
        environment.manifest = server.url("/Version.json");
        environment.running = Version::parse("1.9.3");
        environment.authorities = {DownloadServer::authority()};
        environment.starter = starter;
        environment.retryPause = std::chrono::milliseconds(1);
        environment.retries = 2;
        url = server.url("/Setup.exe").toString().toLatin1();
        server.answer = [this](const HttpRequest& request) {
            return request.path == "/Version.json" ? answerManifest() : installerAnswer(request);
        };
    }
    HttpAnswer answerManifest() const {
        if (manifestAnswer) return *manifestAnswer;
        const QByteArray written = R"({"version":")" + version + R"(","url":")" + url + '"' + more + '}';
        return {"200 OK", "", manifest.isEmpty() ? written : manifest};
    }
    HttpAnswer completeInstaller() const { return {"200 OK", "ETag: \"one\"\r\n", installer}; }
    HttpAnswer firstHalf() const {
        return {"200 OK", completeInstaller().headers, installer, installer.size(), installer.size() / 2};
    }
    HttpAnswer remainder(qint64 from) const {
        const QString range = "Content-Range: bytes %1-%2/%3\r\n";
        const QByteArray contentRange = range.arg(from).arg(installer.size() - 1).arg(installer.size()).toLatin1();
        return {"206 Partial Content", completeInstaller().headers + contentRange,
                installer.mid(static_cast<int>(from))};
    }
    /// The first half, followed by whatever the program requests.
    HttpAnswer firstHalfThenRemainder(const HttpRequest& request) const {
        return request.rangeStart() > 0 ? remainder(request.rangeStart()) : firstHalf();
    }
};

using Arrange = std::function<void(Course&)>;

Arrange version(const char* text) {
    return [text](Course& c) { c.version = text; };
}
Arrange manifest(const char* text) {
    return [text](Course& c) { c.manifest = text; };
}
Arrange manifest(const HttpAnswer& answer) {
    return [answer](Course& c) { c.manifestAnswer = answer; };
}
Arrange digest(const QByteArray& hexadecimal) {
    return [hexadecimal](Course& c) { c.more = R"(,"sha256":")" + hexadecimal + '"'; };
}
Arrange installer(HttpAnswer (*answer)(Course&, const HttpRequest&)) {
    return [answer](Course& c) { c.installerAnswer = [&c, answer](const HttpRequest& r) { return answer(c, r); }; };
}
Arrange installer(const HttpAnswer& answer) {
    return [answer](Course& c) { c.installerAnswer = [answer](const HttpRequest&) { return answer; }; };
}

struct Case {
    const char* name;
    Arrange arrange;
    std::vector<std::string> events;
    const char* logged;  ///< in its last line; before an offer there is no other line
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
    ASSERT_TRUE(waitUntil([&] { return owner.ended || (owner.events.empty() && !LogCapture::lines().empty()); }))
        << ::testing::PrintToString(owner.events);
    EXPECT_THAT(owner.events, ElementsAreArray(GetParam().events));
    const std::vector<std::string>& lines = LogCapture::lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_THAT(lines.back(), HasSubstr(GetParam().logged)) << ::testing::PrintToString(lines);
    EXPECT_TRUE(!owner.events.empty() || lines.size() == 1) << ::testing::PrintToString(lines);
    const bool started = !owner.events.empty() && owner.events.back() == "started";
    EXPECT_EQ(onDisk().size(), started ? 1 : 0);
    if (started) {
        EXPECT_TRUE(course.starter->started == course.installer);
        EXPECT_EQ(course.starter->command, "FieldCalibratorSetup.exe /S /AUTOSTART");
        EXPECT_EQ(course.starter->others, QFile::Permissions());
        EXPECT_TRUE(course.starter->expected.offered == *Version::parse("1.10"));
        EXPECT_TRUE(course.starter->expected.running == *course.environment.running);
    } else if (!course.starter->startFailure) {
        EXPECT_TRUE(course.starter->started.isEmpty());
    }
}

const std::vector<std::string> kNothing;
const Case kNotOffered[] = {
    {"same version", version("1.9.3.0"), kNothing, "1.9.3 is no newer than this one"},
    {"downgrade", version("1.9.2"), kNothing, "1.9.2 is no newer"},
    {"version with a suffix", version("2.0-beta"), kNothing, "no version"},
    {"version is a number", manifest(R"({"version":2,"url":"https://a/b"})"), kNothing, "\"version\" is no version"},
    {"installer by HTTP", [](Course& c) { c.url.replace("https:", "http:"); }, kNothing, "no HTTPS address"},
    {"installer's address is a list", manifest(R"({"version":"2","url":["https://a"]})"), kNothing, "no HTTPS address"},
    {"bad digest", digest("12"), kNothing, "no digest"},
    {"HTML", manifest(kHtml), kNothing, "no JSON"},
    {"a list", manifest("[]"), kNothing, "no JSON object"},
    {"endless manifest", manifest(endless()), kNothing, "too long"},
    {"manifest of 10 GB", manifest(endless(kTenGigabytes)), kNothing, "too long"},
    {"not found", manifest(failure("404 Not Found")), kNothing, "Not Found"},
    {"not found, endlessly", manifest(endless(-1, "404 Not Found")), kNothing, "too long"},
    {"no answer",
     [](Course& c) { c.manifestAnswer = silence(), c.environment.manifestTimeout = std::chrono::milliseconds(300); },
     kNothing, "no answer in time"},
    {"nobody listens", [](Course& c) { c.server.close(); }, kNothing, "refused"},
    {"authority not trusted", [](Course& c) { c.environment.authorities.clear(); }, kNothing, "SSL handshake failed"},
    {"certificate of another name", [](Course& c) { c.environment.manifest.setHost("127.0.0.1"); }, kNothing,
     "SSL handshake failed"},
    {"manifest by HTTP", [](Course& c) { c.environment.manifest.setScheme("http"); }, kNothing, "not HTTPS"},
    {"manifest redirected to HTTP", [](Course& c) { c.manifestAnswer = redirect(c.server.url("/x", "http")); },
     kNothing, "nsecure redirect"},
    {"own version unknown", [](Course& c) { c.environment.running.reset(); }, kNothing, "own version"}};
INSTANTIATE_TEST_SUITE_P(NotOffered, UpdateTableTest, ::testing::ValuesIn(kNotOffered));

const std::vector<std::string> kDone{"offered 1.10", "progress", "received", "started"};
const std::vector<std::string> kDoneAfterBreak{"offered 1.10", "progress", "interrupted",
                                               "progress",     "received", "started"};
const Case kFetched[] = {
    {"in one go", [](Course&) {}, kDone, "is offered"},
    {"broken, with its digest",
     [](Course& c) {
         digest(QCryptographicHash::hash(c.installer, QCryptographicHash::Sha256).toHex().toUpper())(c);
         c.installerAnswer = [&c](const HttpRequest& request) { return c.firstHalfThenRemainder(request); };
     },
     kDoneAfterBreak, "is offered"}};
INSTANTIATE_TEST_SUITE_P(Fetched, UpdateTableTest, ::testing::ValuesIn(kFetched));

std::vector<std::string> offered(std::vector<std::string> then, UpdateFailure failure) {
    then.insert(then.begin(), "offered 1.10");
    then.push_back("failed " + std::to_string(static_cast<int>(failure)));
    return then;
}
const std::vector<std::string> kRefusedAtOnce = offered({}, UpdateFailure::Server);
const Case kNotFetched[] = {
    {"always broken", installer([](Course& c, const HttpRequest&) { return c.firstHalf(); }),
     offered({"progress", "interrupted", "progress", "interrupted", "progress"}, UpdateFailure::Connection), "closed"},
    {"wrong digest", digest(QByteArray(64, 'a')), offered({"progress"}, UpdateFailure::Damaged), "another digest"},
    {"10 GB", installer(endless(kTenGigabytes)), kRefusedAtOnce, "too large"},
    {"redirected to HTTP",
     installer([](Course& c, const HttpRequest&) { return redirect(c.server.url("/x", "http")); }), kRefusedAtOnce,
     "nsecure redirect"},
    {"no room on the disk", [](Course& c) { c.environment.temporaryFolder += "/missing"; },
     offered({}, UpdateFailure::Disk), "no file"},
    {"signed by somebody else", [](Course& c) { c.starter->startFailure = UpdateFailure::NotTrusted; },
     offered({"progress", "received"}, UpdateFailure::NotTrusted), "is offered"},
    {"unsigned program",
     [](Course& c) {
         c.starter->obstacleFound = UpdateFailure::Unsigned;
         c.installerAnswer = [](const HttpRequest&) {
             ADD_FAILURE() << "asked for";
             return HttpAnswer();
         };
     },
     offered({}, UpdateFailure::Unsigned), "is offered"}};
INSTANTIATE_TEST_SUITE_P(NotFetched, UpdateTableTest, ::testing::ValuesIn(kNotFetched));

TEST_F(SoftwareUpdateTest, WhatIsGivenUpAtATenthIsGoneFromTheDiskAndTheLine) {
    const std::vector<std::function<void()>> waysOut{[this] { update->abort(); }, [this] { update->release(); },
                                                     [this] { update.reset(); }};
    for (const auto& leave : waysOut) {
        owner.events.clear();
        HttpAnswer tenth = course.firstHalf();
        tenth.breakAfter = course.installer.size() / 10;
        tenth.silent = true;
        installer(tenth)(course);
        start();
        ASSERT_TRUE(waitUntil([&] { return owner.share >= 0.1; }));
        EXPECT_EQ(onDisk().size(), 1);
        leave();
        EXPECT_THAT(onDisk(), IsEmpty());
        EXPECT_TRUE(waitUntil([&] { return course.server.openConnections == 0; }));
        EXPECT_THAT(owner.events, ElementsAre("offered 1.10", "progress"));
        owner.share = 0;
    }
}

TEST_F(SoftwareUpdateTest, LeavingBeforeTheServerAnswersSaysNothing) {
    course.manifestAnswer = silence();
    const LogCapture log;
    start();
    ASSERT_TRUE(waitUntil([&] { return !course.server.requests.empty(); }));
    update->release();
    EXPECT_TRUE(waitUntil([&] { return course.server.openConnections == 0; }));
    EXPECT_THAT(LogCapture::lines(), IsEmpty());
}

TEST_F(SoftwareUpdateTest, AfterAFailureItCanBeTriedAgain) {
    installer(failure("404 Not Found"))(course);
    start();
    ASSERT_TRUE(waitUntil([&] { return owner.ended; }));
    installer(course.completeInstaller())(course);
    owner.ended = false;
    update->download();
    update->download();  // has no effect during a download
    ASSERT_TRUE(waitUntil([&] { return owner.ended; }));
    EXPECT_EQ(owner.events.back(), "started");
    ASSERT_EQ(onDisk().size(), 1) << "the installer needs it";
    start();
    EXPECT_THAT(onDisk(), IsEmpty()) << "what the installer left, before anything else is asked for";
}

TEST_F(SoftwareUpdateTest, LeftoversAreRemovedWithoutFollowingALink) {
    const QDir folder(temporary.path());
    const QString stem = "field-calibrator-update-", digits(32, 'a'), other(32, 'b'), third(32, 'c');
    const auto fill = [&](const QString& within, const QString& file) {
        ASSERT_TRUE(folder.mkpath(within));
        QFile made(folder.filePath(within + '/' + file));
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    };
    fill(stem + digits, "FieldCalibratorSetup.exe");
    fill("victim", "FieldCalibratorSetup.exe");
    ASSERT_TRUE(QFile::link(folder.filePath("victim"), folder.filePath(stem + other)));
    fill(stem + third, "document.txt");
    fill(stem + "of-the-user", "FieldCalibratorSetup.exe");
    ASSERT_TRUE(folder.mkpath(stem + third + "/FieldCalibratorSetup.exe"));
    start();
    EXPECT_FALSE(folder.exists(stem + digits));
    EXPECT_TRUE(folder.exists("victim/FieldCalibratorSetup.exe")) << "behind a link with our name";
    EXPECT_TRUE(folder.exists(stem + third + "/document.txt")) << "not our file";
    EXPECT_TRUE(folder.exists(stem + "of-the-user/FieldCalibratorSetup.exe")) << "not our name";
}

TEST_F(SoftwareUpdateTest, WithoutAnAddressNothingIsAskedAndNothingIsSaid) {
    course.environment.manifest.clear();
    const LogCapture log;
    start();
    update->download();
    EXPECT_THAT(LogCapture::lines(), ElementsAre("No update was offered."));
    EXPECT_TRUE(owner.findChildren<QObject*>().isEmpty());
    EXPECT_THAT(owner.events, IsEmpty());
}

}  // namespace
}  // namespace fieldcal::testing
