#include "report/Overlay.h"
#include "report/ReportFile.h"
#include "report/ReportPage.h"
#include "tests/devices/LogCapture.h"
#include "tests/report/Reports.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

/// The text that a browser shows, and the addresses that it would load.
struct Page {
    explicit Page(const QByteArray& html) {
        QXmlStreamReader reader(html);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isCharacters()) text += reader.text();
            if (reader.isEndElement() && reader.name() != QStringLiteral("b")) text += '|';
            if (!reader.isStartElement()) continue;
            if (reader.name() == QStringLiteral("style")) reader.skipCurrentElement();
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                if (attribute.name() == "src" || attribute.name() == "href") loaded << attribute.value().toString();
            if (reader.name() == QStringLiteral("line") &&
                reader.attributes().value("class").startsWith(QStringLiteral("median")))
                ++medians;
        }
        error = reader.errorString();
    }
    bool says(const QString& words) const { return text.contains(words); }

    QString text, error;
    QStringList loaded;
    int medians = 0;
};

double meanColour(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += std::abs(qRed(image.pixel(x, y)) - qGreen(image.pixel(x, y)));
    return sum / (image.width() * image.height());
}

TEST(ReportPageTest, StandsAloneAndStaysSmall) {
    // Noise is the content that compresses worst.
    std::vector<ReportedCamera> cameras{cameraOf(ColourCamera::Third), cameraOf(ColourCamera::Platform)};
    for (ReportedCamera& camera : cameras)
        for (cv::Mat* image : {&camera.evidence->infrared, &camera.evidence->grey})
            cv::randu(*image, 0, 256);
    for (const std::size_t count : {std::size_t{1}, std::size_t{2}}) {
        cameras.resize(count);
        const QByteArray html = reportPage(reportOf(cameras));
        EXPECT_LT(html.size(), 2000000);
        for (const char* loader : {"http", "url(", "@import", "<script", "<link", "<iframe", "xlink"})
            EXPECT_FALSE(html.contains(loader)) << loader;
        const Page page(html);
        EXPECT_EQ(page.error, QString());
        EXPECT_EQ(page.loaded.size(), 3 * static_cast<int>(count));
        for (const QString& uri : page.loaded) {
            ASSERT_TRUE(uri.startsWith("data:image/png;base64,"));
            EXPECT_FALSE(QImage::fromData(QByteArray::fromBase64(uri.mid(22).toLatin1())).isNull());
        }
        cameras.push_back(cameraOf(ColourCamera::Platform));
    }
}

TEST(ReportPageTest, TellsTheFiguresThatItWasGiven) {
    ReportedCamera moved = cameraOf(ColourCamera::Platform);
    moved.accepted = rotationOfDeg(0.9876, -1.5987, 1.2109);
    const QByteArray html = reportPage(reportOf({cameraOf(ColourCamera::Third), moved}));
    const Page page(html);
    const QString degree(QChar(0xB0)), about(QChar(0xB1));
    const auto row = [&](const QString& name, const QString& sign, const QStringList& angles) {
        QString text = name;
        for (const QString& angle : angles)
            text += '|' + sign + angle + degree;
        return text;
    };
    for (const QString& words :
         {QString("Module 550101, firmware 1.27.11"), QString("2026-07-01 12:34 UTC, Field Calibrator 9.8.7"),
          QString("Written into the camera and read back. The flash holds it."), QString("/data/backups/1.fcbackup"),
          row("Stored", "", {"0.1234", "-0.2345", "0.3456"}), row("New", "", {"0.9876", "-1.0987", "1.2109"}),
          row("Change", "", {"0.8642", "-0.8642", "0.8653"}), row("New", "", {"0.9876", "-1.5987", "1.2109"}),
          row("One deviation", about, {"0.0041", "0.0052", "0.0063"}),
          row("Moved by hand", "", {"0.0000", "-0.5000", "0.0000"}), QString("10.13 px with the stored calibration"),
          QString("0.21 px with the new one: median distance of 1215 matches in 4 photos"),
          QString("does not explain the photos: they speak for a changed distortion as well (p = 1e-09)"),
          QString("1180 matches with a distance, median 18.0 m; stereo baseline 54.7 mm (from an earlier"),
          QString("2; fitted matches: left out, 1200."), QString("100||").repeated(12), QString("new: 0.25 px"),
          QString("drawn 50 times")})
        EXPECT_TRUE(page.says(words)) << words.toStdString() << "\n" << page.text.toStdString();
    EXPECT_EQ(page.text.count("Moved by hand"), 1);
    EXPECT_EQ(page.text.count("before it was moved by hand"), 1);
    EXPECT_EQ(page.medians, 96) << "a quarter of a pixel in each part of both images";
}

TEST(ReportPageTest, AnyTextIsShownAsItIs) {
    ServiceReport report = reportOf({cameraOf(ColourCamera::Third)});
    report.cameras[0].evidence.reset();
    report.cameras[0].quality.reset();
    report.firmware = "1 < 2 && \"3\" ]]> '\x01' <script>";
    report.source = QString::fromUtf8("/tmp/\xC3\xA4\xF0\x9F\x98\x80 & <b>/walk");
    report.write = ReportedWrite{false, "flash", "it's <full>", "C:\\a\"b\\%1"};
    const QByteArray html = reportPage(report);
    EXPECT_FALSE(html.contains("<script"));
    const Page page(html);
    EXPECT_EQ(page.error, QString());
    EXPECT_TRUE(page.says(QString(report.firmware).replace(QChar(1), QChar(0xFFFD)))) << page.text.toStdString();
    EXPECT_TRUE(page.says("Recording " + report.source));
    EXPECT_TRUE(page.says("NOT STORED: it's <full> flash The previous calibration is kept in C:\\a\"b\\%1"));
    EXPECT_TRUE(page.says("without proof"));
    EXPECT_TRUE(page.loaded.isEmpty());
}

TEST(ReportPageTest, EdgesLieOnEachOtherWithTheRightRotationAlone) {
    const ReportedCamera camera = cameraOf(ColourCamera::Third);
    const cv::Rect window = mostDetailedWindow(*camera.evidence, {320, 240});
    EXPECT_EQ(window.size(), cv::Size(320, 240));
    const double aligned = meanColour(edgeOverlay(*camera.evidence, camera.found, window));
    EXPECT_LT(aligned, 0.35 * meanColour(edgeOverlay(*camera.evidence, camera.stored, window)));
    const Eigen::Matrix3d nearly = camera.found * rotationOfDeg(0, 0.1, 0);
    EXPECT_LT(aligned, 0.8 * meanColour(edgeOverlay(*camera.evidence, nearly, window))) << "one pixel shows";

    // Everything is at four metres, shifted by 3.75 px along the baseline, which the distances of the matches correct.
    vq::SolutionEvidence near = *camera.evidence;
    for (vq::EvidenceMatch& match : near.matches)
        match.inverseDepth = 0.25F;
    EXPECT_GT(meanColour(edgeOverlay(near, camera.found, window)), 1.5 * aligned);
    near.projection.translationM.setZero();
    EXPECT_NEAR(meanColour(edgeOverlay(near, camera.found, window)), aligned, 0.01);
}

TEST(ReportFileTest, WhatCannotBeKeptCostsALogLineEach) {
    const QTemporaryDir folder;
    const ServiceReport report = reportOf({cameraOf(ColourCamera::Third)});
    keepReport(folder.filePath("data"), report);
    EXPECT_EQ(QDir(folder.filePath("data/reports")).entryList(QDir::Files),
              QStringList{"550101-20260701T123456789Z.html"});

    const LogCapture log;
    const QString inTheWay = folder.filePath("file");
    ASSERT_TRUE(QFile(inTheWay).open(QIODevice::WriteOnly));
    keepReport(inTheWay, report);
    EXPECT_THAT(LogCapture::lines(), ElementsAre(StartsWith("CRITICAL The report of the calibration cannot be kept: " +
                                                            inTheWay.toStdString()),
                                                 StartsWith("CRITICAL " + inTheWay.toStdString() + "/history.csv: ")));
}

}  // namespace
}  // namespace fieldcal::testing
