#include "tests/tools/SessionTool.h"

#include <QFile>

#include <set>
#include <string>

namespace fieldcal::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

/// Five stills of the square with the rear camera, from a module without drift.
QString undriftedRecording() {
    QString folder =
        renderedRecording("undrifted", {"--world", "square", "--seed", "11", "--stills", "5", "--platform"});
    session::SessionDescription session;
    std::string why;
    EXPECT_TRUE(session::readDescription(folder.toStdString(), &session, &why)) << why;
    session.third.rotation = *session.truthThird;
    session.platform->rotation = *session.truthPlatform;
    EXPECT_TRUE(session::writeDescription(folder.toStdString(), session, &why)) << why;
    return folder;
}

class CheckTest : public SessionToolTest {
protected:
    Result check(const QString& faults, const QStringList& options = {}) {
        QFile::remove(flash);
        return run(QStringList{"check", "--stills", "5", "--json", "-"} + options,
                   {{"SESSION", undriftedRecording()}, {"SPEED", "0"}, {"FLASH", flash}, {"FAULTS", faults}});
    }
    static std::set<std::string> withVerdict(const Result& result, const char* verdict) {
        std::set<std::string> ids;
        for (const QJsonValue line : result.json()["lines"].toArray()) {
            if (line["verdict"].toString() == verdict) ids.insert(line["id"].toString().toStdString());
        }
        return ids;
    }

    const QString flash = path("checked-flash");
};

TEST_F(CheckTest, EverythingFitsButWhatARecordingCannotTell) {
    const QString folder = path("home");
    const Result unchanged = check("", {"--out", folder, "--write-back-unchanged"});
    EXPECT_EQ(unchanged.status, 3) << unchanged.error.constData();
    EXPECT_THAT(withVerdict(unchanged, "does not fit"), ElementsAre());
    EXPECT_THAT(withVerdict(unchanged, "cannot tell"),
                ElementsAre("stream-depth", "stream-left", "stream-rear", "stream-right", "stream-third"))
        << "it repeats its images";
    EXPECT_EQ(unchanged.json()["serial"].toInt(), 700011);
    for (const QJsonValue operation : unchanged.json()["operations"].toArray())
        EXPECT_GT(operation["calls"].toInt(), 0) << operation["name"].toString().toStdString();
    // The recording in the folder can be calibrated elsewhere.
    const Result recalibrated = run({"calibrate", folder + "/recording", "--seed", "1", "--json", "-"});
    EXPECT_EQ(recalibrated.status, 0) << recalibrated.error.constData();
    for (const char* file : {"/block.fcbackup", "/report.json", "/report.txt", "/check.log"})
        EXPECT_GT(QFile(folder + file).size(), 0) << file;
    EXPECT_EQ(check("", {"--out", folder}).status, 1) << "nothing is overwritten";
}

/// Faults that do not affect each other share a run.
TEST_F(CheckTest, EachFaultIsBlamedOnItsOwnLine) {
    const std::pair<const char*, std::set<std::string>> faults[] = {
        {"padded-rows,hardwareControl:2:6", {"operations", "packed-rows"}},
        {"swapped-imagers", {"imagers"}},
        {"lower-right-rows", {"stereo-rows"}},
        {"depth-in-centimetres,rectParameters:2:garble+300", {"baseline", "block-twice"}},
        {"corner-pixels,meddling-companion,setGain:1:late+3500", {"call-times", "companion", "principal-point-third"}},
        {"transposed-rotation", {"rotation-rear", "rotation-third"}},
        {"opposite-translation", {"translation-rear", "translation-third"}},
        {"metre-translation,right:1:late+6", {"same-moment", "translation-unit"}},
        {"other-rear-lens", {"model-rear"}},
        {"wrong-size,third:1:freeze", {"intrinsics", "stream-third"}},
    };
    for (const auto& [fault, ids] : faults) {
        const Result result = check(fault);
        EXPECT_EQ(result.status, 1) << fault;
        EXPECT_EQ(withVerdict(result, "does not fit"), ids) << fault;
    }
}

TEST_F(CheckTest, AnUnchangedBlockThatIsNotKeptIsNamed) {
    EXPECT_THAT(withVerdict(check("rectParameters:5:garble+300", {"--write-back-unchanged"}), "does not fit"),
                ElementsAre("write-back"));
    const Result living = check("living-block", {"--write-back-unchanged"});
    EXPECT_THAT(withVerdict(living, "fits"), Contains("write-back")) << "the module's own bytes may change";
    EXPECT_TRUE(living.out.contains("the module changed 5 bytes of its own, the first one at 2040"));
}

/// When the module has drifted, the scene shows neither direction of its rotation.
TEST_F(CheckTest, UndeterminedResultsAreNotClaimed) {
    const Result far = run({"check", "--stills", "6", "--json", "-"}, {{"SESSION", recording()}, {"SPEED", "0"}});
    EXPECT_THAT(withVerdict(far, "does not fit"), ElementsAre());
    EXPECT_EQ(far.status, 3) << far.error.constData();
    const auto undetermined = withVerdict(far, "cannot tell");
    for (const char* id : {"rotation-third", "rotation-rear", "translation-third", "imagers", "baseline"})
        EXPECT_THAT(undetermined, Contains(id));
    const Result none = run({"check"}, {{"FAULTS", "openDevice:1:5"}});
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.error, "The depth camera was not found.\n");
    EXPECT_EQ(run({"check", "--stills", "2"}).status, 2);
}

}  // namespace
}  // namespace fieldcal::testing
