// Updates from servers that follow random scripts. Every update has to end with the real installer, or with an empty
// folder.
//
//   FIELDCAL_UPDATE_SCRIPTS   how many scripts are played (default 200), and half as many on small disks
//   FIELDCAL_UPDATE_SEED      the seed of the first script; the others count from there
#include "tests/devices/LogCapture.h"
#include "tests/update/RandomServer.h"
#include "tests/update/UpdateOwner.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <sys/mount.h>

namespace fieldcal::testing {
namespace {

constexpr std::size_t kAtOnce = 32;
constexpr qint64 kPatienceMs = 120000;

/// Accepts the real installer only, as the check of its signature does.
struct SignatureCheck : InstallerStarter {
    std::optional<UpdateFailure> obstacle() override { return std::nullopt; }
    std::optional<UpdateFailure> start(const QString& installer, const QString&, const ExpectedInstaller&) override {
        QFile file(installer);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        offered = file.readAll();
        return offered == real ? std::nullopt : std::optional(UpdateFailure::NotTrusted);
    }
    QByteArray real;
    std::optional<QByteArray> offered;
};

/// A file system in memory, which ends with this object.
class SmallDisk {
public:
    SmallDisk(const QString& folder, int pages, int files) : folder_(folder.toLocal8Bit()) {
        const std::string options =
            "mode=700,size=" + std::to_string(4096 * pages) + ",nr_inodes=" + std::to_string(files);
        mounted_ = mount("tmpfs", folder_.constData(), "tmpfs", 0, options.c_str()) == 0;
    }
    ~SmallDisk() {
        if (mounted_) umount2(folder_.constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    bool isMounted() const { return mounted_; }

private:
    const QByteArray folder_;
    bool mounted_ = false;
};

class Trial {
public:
    Trial(std::uint32_t seed, bool onSmallDisk) : seed_(seed), server_(seed) {
        if (onSmallDisk) {
            disk_ = std::make_unique<SmallDisk>(folder_.path(), 1 + server_.below(40), 1 + server_.below(8));
            EXPECT_TRUE(disk_->isMounted());
        }
        starter_->real = server_.installer();
        UpdateEnvironment environment;
        environment.manifest = server_.manifest();
        environment.running = Version::parse("1.9");
        environment.authorities = {DownloadServer::authority()};
        environment.starter = starter_;
        environment.temporaryFolder = folder_.path();
        environment.stallTimeout = std::chrono::milliseconds(server_.isTruthful() ? 1500 : 300);
        environment.retryPause = std::chrono::milliseconds(1);
        environment.retries = server_.isTruthful() ? 12 : 3;
        update_ = std::make_unique<SoftwareUpdate>(environment, owner_);
        owner_.update = update_.get();
        update_->start(&owner_);
        age_.start();
    }

    bool isOver() const { return owner_.ended || age_.hasExpired(kPatienceMs); }
    std::string end() const { return owner_.events.empty() ? "nothing" : owner_.events.back(); }
    int requests() const { return server_.requests(); }

    void check() {
        SCOPED_TRACE("FIELDCAL_UPDATE_SEED=" + std::to_string(seed_) + (server_.isTruthful() ? ", truthful" : "") +
                     (server_.statesDigest() ? ", with a digest" : "") + "; at last " + end());
        EXPECT_TRUE(owner_.ended);
        const std::optional<QByteArray>& offered = starter_->offered;
        const bool isReal = offered && *offered == server_.installer();
        EXPECT_TRUE(isReal || !server_.isTruthful() || disk_ != nullptr);
        EXPECT_TRUE(isReal || !offered || !(server_.isTruthful() || server_.statesDigest())) << "a wrong file";
        EXPECT_EQ(isReal, end() == "started");
        checkFolder(isReal);
        update_.reset();
        checkFolder(isReal);
    }

private:
    void checkFolder(bool isFull) const {
        std::vector<QString> found;
        QDirIterator all(folder_.path(), QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (all.hasNext())
            found.push_back(all.next());
        ASSERT_EQ(found.size(), isFull ? 2U : 0U);
        if (!isFull) return;
        QFile file(found.back());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == server_.installer());
    }

    const std::uint32_t seed_;
    RandomServer server_;
    QTemporaryDir folder_;
    std::unique_ptr<SmallDisk> disk_;
    std::shared_ptr<SignatureCheck> starter_ = std::make_shared<SignatureCheck>();
    Owner owner_;
    std::unique_ptr<SoftwareUpdate> update_;
    QElapsedTimer age_;
};

class RandomServerTest : public ::testing::Test {
protected:
    void play(bool onSmallDisks) {
        bool isNumber = false;
        const int given = qEnvironmentVariableIntValue("FIELDCAL_UPDATE_SCRIPTS", &isNumber);
        const int wanted = isNumber ? given : 200;
        left = onSmallDisks ? wanted / 2 : wanted;
        seed = static_cast<std::uint32_t>(qEnvironmentVariableIntValue("FIELDCAL_UPDATE_SEED"));
        const LogCapture log;
        QEventLoop loop;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            endSome();
            for (; running.size() < kAtOnce && left > 0; --left)
                running.push_back(std::make_unique<Trial>(seed++, onSmallDisks));
            if (!HasFailure()) LogCapture::lines().clear();
            if (running.empty()) loop.quit();
        });
        poll.start(2);
        loop.exec();
        for (const auto& [end, count] : ends)
            std::printf("%6d ended with %s\n", count, end.c_str());
        std::printf("%6d requests\n", requests);
        EXPECT_TRUE(ends.size() > 2 || wanted < 100) << "the servers are all the same";
    }

    int left = 0;
    std::uint32_t seed = 0;
    std::deque<std::unique_ptr<Trial>> running;
    std::map<std::string, int> ends;
    int requests = 0;

private:
    void endSome() {
        for (std::size_t i = 0; i < running.size();) {
            if (!running[i]->isOver()) {
                ++i;
                continue;
            }
            running[i]->check();
            ++ends[running[i]->end()];
            requests += running[i]->requests();
            running.erase(running.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
};

TEST_F(RandomServerTest, AnUpdateEndsWithTheRealInstallerOrWithNothing) {
    play(false);
}

TEST_F(RandomServerTest, AlsoOnADiskThatIsTooSmall) {
    const QTemporaryDir folder;
    if (!SmallDisk(folder.path(), 1, 4).isMounted()) GTEST_SKIP() << "no file system can be mounted here";
    play(true);
}

}  // namespace
}  // namespace fieldcal::testing
