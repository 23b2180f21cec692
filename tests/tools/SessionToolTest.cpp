#include "tests/tools/SessionTool.h"

namespace fieldcal::testing {
namespace {

TEST_F(SessionToolTest, SolvesARenderedRecordingForBothCameras) {
    for (const QString camera : {"third", "platform"}) {
        const QStringList arguments{"calibrate", recording(), "--camera", camera, "--seed", "3", "--json", "-"};
        const Result result = run(arguments);
        ASSERT_EQ(result.status, 0) << result.error.constData();
        const QJsonObject json = result.json();
        EXPECT_TRUE(json["solved"].toBool());
        EXPECT_EQ(json["camera"].toString(), camera);
        EXPECT_LE(json["errorDeg"].toDouble(1.0), 0.05);
        EXPECT_EQ(json["rotation"].toArray().size(), 9);
        EXPECT_EQ(json["perPair"].toArray().size(), json["pairs"].toInt());
        EXPECT_EQ(json["perPair"].toArray().last().toObject()["code"].toInt(), 8);
        EXPECT_GT(json["seconds"].toObject()["total"].toDouble(), 0.0);
        EXPECT_EQ(run(arguments).json()["rotation"], json["rotation"]) << "the same seed gives the same answer";
    }
}

TEST_F(SessionToolTest, FramesMayLackTheRearCamerasPicture) {
    const QString gaps = changed(
        "gaps", [](session::SessionDescription* session, const QString&) { session->frames[0].platform.clear(); });
    EXPECT_EQ(run({"calibrate", gaps, "--seed", "1"}).status, 0);
    const Result platform = run({"calibrate", gaps, "--camera", "platform", "--seed", "1", "--json", "-"});
    EXPECT_EQ(platform.status, 0) << platform.error.constData();
    EXPECT_LE(platform.json()["errorDeg"].toDouble(1.0), 0.05);
}

TEST_F(SessionToolTest, PlaysToTheEndWithoutAnAnswerWhenThereIsNone) {
    const QString mismatched = changed("mismatched", [](session::SessionDescription* session, const QString&) {
        const std::string first = session->frames.front().third;
        for (std::size_t i = 0; i + 1 < session->frames.size(); ++i) {
            session->frames[i].third = session->frames[i + 1].third;
        }
        session->frames.back().third = first;
    });
    const Result wrong = run({"calibrate", mismatched, "--seed", "1", "--json", "-"});
    EXPECT_EQ(wrong.status, 3);
    EXPECT_FALSE(wrong.json()["solved"].toBool(true));
    EXPECT_TRUE(wrong.json()["errorDeg"].isNull());
    EXPECT_EQ(wrong.json()["rotation"], wrong.json()["factoryRotation"]);

    const Result night = run({"calibrate", nightRecording(), "--json", "-"});
    EXPECT_EQ(night.status, 3);
    EXPECT_EQ(night.json()["pairs"].toInt(-1), 0) << "a dark frame must not be taken";
    EXPECT_EQ(night.json()["framesUsed"].toInt(), 52);
}

TEST_F(SessionToolTest, DeviceFailuresEndWithOneLineAndStatusOne) {
    const auto expectLine = [](const QString& played, const QString& faults, const char* end) {
        const Result failed = run({"calibrate", played, "--seed", "1"}, {{"FAULTS", faults}});
        EXPECT_EQ(failed.status, 1);
        EXPECT_EQ(failed.errorLines(), 1) << failed.error.constData();
        EXPECT_TRUE(failed.error.endsWith(end)) << failed.error.constData();
    };
    const QString invalid = changed("invalid", [](session::SessionDescription* session, const QString&) {
        session->module.calibrationValid = false;
    });
    expectLine(recording(), "grab:40:6", " - Something bad has happened with the Tarnex Deepvane camera.\n");
    expectLine(recording(), "openDevice:1:5", "The depth camera was not found.\n");
    expectLine(invalid, "", " - The device has not been calibrated or has invalid calibration data.\n");
}

TEST_F(SessionToolTest, UnreadableRecordingsAreNamedWithFileAndReason) {
    const Result nowhere = run({"calibrate", path("nowhere")});
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_EQ(nowhere.errorLines(), 1) << nowhere.error.constData();
    EXPECT_TRUE(nowhere.error.contains("session.json"));

    const QString cut = changed("cut", [](session::SessionDescription* session, const QString& folder) {
        QFile picture(folder + '/' + QString::fromStdString(session->frames[2].infrared));
        picture.resize(picture.size() / 2);
    });
    for (const char* verb : {"calibrate", "info"}) {
        const Result truncated = run({verb, cut});
        EXPECT_EQ(truncated.status, 1);
        EXPECT_EQ(truncated.errorLines(), 1) << truncated.error.constData();
        EXPECT_TRUE(truncated.error.contains("002_infrared")) << truncated.error.constData();
    }
}

TEST_F(SessionToolTest, WrongUsageIsRefusedWithStatusTwo) {
    const QList<QStringList> wrong{{},
                                   {"fly", "x"},
                                   {"calibrate"},
                                   {"calibrate", recording(), "--camera", "left"},
                                   {"calibrate", recording(), "--seed", "-1"},
                                   {"calibrate", recording(), "--colour"},
                                   {"synthesize", "x", "--world", "atlantis"},
                                   {"synthesize", "x", "--stills", "0"},
                                   {"info", "a", "b"},
                                   {"record", "x"},
                                   {"record", "--frames", "1"},
                                   {"record", "x", "--frames", "0"}};
    for (const QStringList& arguments : wrong) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.error.contains("usage:"));
    }
    EXPECT_FALSE(QDir("x").exists());
}

}  // namespace
}  // namespace fieldcal::testing
