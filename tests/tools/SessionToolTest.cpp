#include "tests/tools/SessionTool.h"

#include <QDateTime>
#include <QDirIterator>

#include <cmath>

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

/// Rotates the true extrinsics by a degree about the vertical axis.
void turnTruth(session::SessionDescription* session, const QString&) {
    session::Matrix3& truth = *session->truthThird;
    const double c = std::cos(kRadiansPerDegree), s = std::sin(kRadiansPerDegree);
    for (std::size_t row = 0; row < 9; row += 3) {
        const double x = truth[row], z = truth[row + 2];
        truth[row] = c * x - s * z;
        truth[row + 2] = s * x + c * z;
    }
}

TEST_F(SessionToolTest, TellsDistancesAndRemembersTheBaselineForTheModule) {
    const auto calibrate = [](const QString& folder) {
        const Result result = run({"calibrate", folder, "--seed", "1", "--json", "-"});
        EXPECT_EQ(result.status, 0) << result.error.constData();
        return result.json();
    };
    const QString turned = changed("turned-truth", turnTruth);
    const QJsonObject unknown = calibrate(turned)["parallax"].toObject();
    EXPECT_EQ(unknown["baselineFrom"].toString(), "none") << "the mountains are too far to tell";
    EXPECT_TRUE(unknown["baselineMm"].isNull());

    const QJsonObject square = calibrate(squareRecording());
    const QJsonObject measured = square["parallax"].toObject();
    EXPECT_EQ(measured["baselineFrom"].toString(), "depth");
    EXPECT_NEAR(measured["baselineMm"].toDouble(), 55, 1);
    EXPECT_GT(measured["withDistance"].toInt(), 200);
    EXPECT_NEAR(measured["medianDistanceM"].toDouble(), 9, 5);

    const QJsonObject mountains = calibrate(turned);
    const QJsonObject remembered = mountains["parallax"].toObject();
    EXPECT_EQ(remembered["baselineFrom"].toString(), "remembered");
    EXPECT_NEAR(remembered["baselineMm"].toDouble(), measured["baselineMm"].toDouble(), 1e-3);
    EXPECT_GT(remembered["withDistance"].toInt(), 200);
    EXPECT_TRUE(remembered["medianDistanceM"].isNull());
    const QByteArray text = run({"calibrate", turned, "--seed", "1"}).out;
    EXPECT_TRUE(text.contains(" mm (remembered)\n") && text.contains(" px at 20 m\n")) << text.constData();

    const double focalPx = described(turned).infrared.fx;
    for (const char* metres : {"1", "2", "5", "20"}) {
        EXPECT_LT(square["registrationPx"].toObject()[metres].toDouble(9), 0.1);
        const double px = mountains["registrationPx"].toObject()[metres].toDouble();
        EXPECT_NEAR(px / (focalPx * kRadiansPerDegree), 1.05, 0.06) << "a little more towards the sides";
    }
    const QString flat = changed("no-depth", [](session::SessionDescription* session, const QString&) {
        for (session::FrameEntry& frame : session->frames)
            frame.depth.clear();
    });
    EXPECT_FALSE(calibrate(flat).contains("registrationPx"));
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
    EXPECT_EQ(night.json()["parallax"].toObject()["withDistance"].toInt(-1), 0);
    EXPECT_EQ(night.json()["pairs"].toInt(-1), 0) << "a dark frame must not be taken";
    EXPECT_EQ(night.json()["framesUsed"].toInt(), 52);
}

TEST_F(SessionToolTest, AReportTellsTheSolutionAndOneThatCannotBeWrittenFails) {
    const auto calibrate = [](const QString& folder, const QString& report) {
        return run({"calibrate", folder, "--seed", "1", "--json", "-", "--report", report});
    };
    const QString file = path("report & 1.html");
    const Result solved = calibrate(recording(), file);
    EXPECT_EQ(solved.status, 0) << solved.error.constData();
    QFile page(file);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray html = page.readAll();
    EXPECT_TRUE(html.contains("Nothing was written into the camera."));
    EXPECT_EQ(html.count("<img"), 2);
    const QJsonArray anglesDeg = solved.json()["anglesDeg"].toArray();
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_TRUE(html.contains('>' + QByteArray::number(anglesDeg[axis].toDouble(), 'f', 4)));
    QDirIterator history(data.path(), {"history.csv"}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_FALSE(history.hasNext()) << "nothing was saved";

    const QString nowhere = path("no folder/report.html");
    const Result failed = calibrate(recording(), nowhere);
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.errorLines(), 1);
    EXPECT_TRUE(failed.error.contains(nowhere.toUtf8())) << failed.error.constData();
    EXPECT_EQ(calibrate(nightRecording(), nowhere).status, 3) << "without a solution there is no report";
}

TEST_F(SessionToolTest, ResultsTellWhatTheyAreMadeFromAndFailuresWhy) {
    const QString file = path("result.json");
    const QDateTime start = QDateTime::currentDateTimeUtc().addSecs(-1);
    ASSERT_EQ(run({"calibrate", recording() + "/.", "--json", file}).status, 0);
    const auto read = [&file] {
        QFile result(file);
        EXPECT_TRUE(result.open(QIODevice::ReadOnly));
        return QJsonDocument::fromJson(result.readAll()).object();
    };
    const QJsonObject solved = read();
    EXPECT_EQ(solved["schema"].toInt(), 1);
    EXPECT_EQ(solved["program"].toString(), FIELDCAL_VERSION);
    EXPECT_EQ(solved["serial"].toInt(), 700010);
    EXPECT_EQ(solved["recording"].toString(), QDir(recording()).absolutePath());
    const QDateTime time = QDateTime::fromString(solved["time"].toString(), Qt::ISODate);
    EXPECT_TRUE(time.timeSpec() == Qt::UTC && time >= start && time <= QDateTime::currentDateTimeUtc());
    const QString seed = QString::number(solved["seed"].toDouble(), 'f', 0);
    EXPECT_EQ(run({"calibrate", recording(), "--seed", seed, "--json", "-"}).json()["rotation"], solved["rotation"]);

    const Result failed =
        run({"calibrate", recording(), "--seed", "5", "--json", file}, {{"FAULTS", "openDevice:1:5"}});
    EXPECT_EQ(failed.status, 1);
    const QJsonObject failure = read();
    EXPECT_EQ(failure["error"].toString() + '\n', QString(failed.error));
    EXPECT_FALSE(failure["solved"].toBool(true));
    EXPECT_EQ(failure["serial"], solved["serial"]);
    EXPECT_EQ(failure["seed"].toInt(), 5);
    const Result nowhere = run({"calibrate", path("nowhere"), "--json", "-"});
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_TRUE(nowhere.error.contains("session.json")) << nowhere.error.constData();
    EXPECT_EQ(nowhere.json()["error"].toString() + '\n', QString(nowhere.error));
    EXPECT_FALSE(nowhere.json().contains("serial"));
    EXPECT_EQ(run({"calibrate", nightRecording(), "--json", path("nowhere") + "/result.json"}).status, 1);
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
    const QString cut = changed("cut", [](session::SessionDescription* session, const QString& folder) {
        QFile image(folder + '/' + QString::fromStdString(session->frames[2].infrared));
        image.resize(image.size() / 2);
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
                                   {"record", "x", "--frames", "0"},
                                   {"export", "--format", "tf"},
                                   {"export", recording()},
                                   {"export", recording(), "--format", "pdf"}};
    for (const QStringList& arguments : wrong) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.error.contains("usage:"));
        EXPECT_TRUE(result.out.isEmpty());
    }
    EXPECT_FALSE(QDir("x").exists());
    const Result refused = run({"calibrate", "x", "--seed", "-1"});
    EXPECT_TRUE(
        refused.error.startsWith("fieldcal-session: --seed takes a whole number from 0 to 4294967295, not '-1'"));
    EXPECT_TRUE(run({"calibrate", "info"}).error.startsWith("info/session.json: ")) << "a folder named like a verb";
}

TEST_F(SessionToolTest, HelpIsThereForEveryVerb) {
    for (const char* verb : {"calibrate", "synthesize", "record", "info", "backup", "restore", "export"}) {
        const Result help = run({verb, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_TRUE(help.error.isEmpty());
        EXPECT_TRUE(help.out.contains(QByteArray("usage: fieldcal-session ") + verb)) << help.out.constData();
    }
    EXPECT_EQ(run({"--version"}).out, "fieldcal-session " FIELDCAL_VERSION "\n");
}

}  // namespace
}  // namespace fieldcal::testing
