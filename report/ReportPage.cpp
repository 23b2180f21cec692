#include "report/ReportPage.h"

#include "report/Figures.h"
#include "report/Markup.h"
#include "report/Overlay.h"
#include "report/Words.h"

#include <algorithm>

namespace fieldcal {
namespace {

/// All sizes are in millimetres, so that one camera and two fill one page of A4 or Letter paper. The style must not
/// contain characters that XML escapes, because HTML does not unescape the text of a style element.
constexpr char kStyle[] = R"(
@page { margin: 10mm }
* { box-sizing: border-box }
body { width: 186mm; margin: 0 auto; font: 8.5pt/1.3 Arial, Helvetica, sans-serif;
  color: #1b2430; background: #fff; -webkit-print-color-adjust: exact; print-color-adjust: exact }
@media screen { body { margin: 8mm auto } }
header { display: flex; justify-content: space-between; align-items: flex-end; border-bottom: 0.6mm solid #1b2430 }
h1 { font-size: 17pt; margin: 0 0 1mm }
header p { margin: 0 0 1mm; text-align: right }
.write { margin: 2mm 0 0; padding: 1.2mm 2.5mm; border-left: 1.5mm solid #8a94a0; background: #eef0f3;
  overflow-wrap: anywhere }
.write.good { border-color: #1d8a4e; background: #e5f4ea }
.write.bad { border-color: #c62828; background: #fdeaea }
h2 { font-size: 11pt; margin: 3mm 0 1mm }
h2 span { font-weight: normal; font-size: 9pt; padding-left: 2mm }
section { break-inside: avoid }
.row { display: flex; justify-content: space-between; align-items: flex-start }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; white-space: nowrap }
th, td { text-align: right; padding: 0.3mm 0 0.3mm 3mm; border-bottom: 0.1mm solid #cdd3da }
th:first-child { text-align: left; padding-left: 0 }
th { font-weight: normal; color: #55606e }
tr.strong td, tr.strong th { font-weight: bold; color: #1b2430 }
dl { margin: 0; overflow-wrap: anywhere }
dt { font-weight: bold; float: left; margin-right: 1.2mm }
dd { margin: 0 0 0.6mm }
figure { margin: 2mm 0 0 }
figure img, figure svg { display: block; width: 100%; border: 0.2mm solid #9aa4b0 }
figcaption { font-size: 7pt; line-height: 1.2; margin-top: 0.6mm; color: #3c4652 }
figcaption b { color: #1b2430 }
.one table { width: 88mm } .one dl { width: 92mm }
.one .overlay { width: 92mm }
.two h2 { margin-top: 2mm } .two .facts { width: 89mm }
.two table { width: 89mm; margin-bottom: 0.6mm; font-size: 7.2pt } .two dl { font-size: 6.8pt; line-height: 1.2 }
.two td, .two th { padding-top: 0; padding-bottom: 0 }
.two .overlay { width: 47mm }
.one .residuals { width: 125mm } .one .side { width: 58mm }
.two .residuals { width: 56mm } .two .side { width: 123mm; display: flex; justify-content: space-between }
.two .side figure { width: 56mm } .two svg { height: 40mm }
svg text { font-size: 19px; fill: #3c4652 } svg text.count { font-size: 30px; fill: #1b2430 }
.single { stroke: #0d47a1; stroke-width: 1.5 }
.median { stroke: #10151c; stroke-width: 4 } circle { fill: #10151c } .cut { stroke: #c62828; stroke-opacity: 0.6 }
.grid { stroke: #cdd3da; stroke-width: 1 }
.old { fill: #e08a1e } .new { fill: #1565c0; fill-opacity: 0.85 }
.thin { fill: #f3c1bd } .some { fill: #f6e3a6 } .full { fill: #bfe3ca }
)";

/// Size in pixels of the image sections that are enlarged on the page.
constexpr int kWindowWidth = 320, kWindowHeight = 240;
constexpr int kSmallWindowWidth = 240, kSmallWindowHeight = 180;

/// Formats an angle with four decimals, without a minus sign in front of zero.
QString degrees(double value) {
    const QString text = QString::number(value, 'f', 4);
    return (text == "-0.0000" ? QString("0.0000") : text) + QChar(0xB0);
}

void row(Markup* out, const QString& name, const Eigen::Vector3d& values, const QString& prefix = {},
         const char* kind = "") {
    out->open("tr", {{"class", kind}});
    out->element("th", name);
    for (const double value : {values.x(), values.y(), values.z()})
        out->element("td", prefix + degrees(value));
    out->close();
}

void anglesTable(Markup* out, const ReportedCamera& camera) {
    const Eigen::Vector3d stored = anglesDegOf(camera.stored), found = anglesDegOf(camera.found);
    const Eigen::Vector3d accepted = anglesDegOf(camera.accepted);
    out->open("table");
    out->open("tr");
    for (const char* heading : {"Depth to colour", "about X", "about Y", "about Z"})
        out->element("th", heading);
    out->close();
    row(out, "Stored", stored);
    row(out, "New", accepted, {}, "strong");
    row(out, "Change", accepted - stored);
    if (camera.quality) {
        const std::array<double, 3>& deviation = camera.quality->deviationDeg;
        row(out, "One deviation", {deviation[0], deviation[1], deviation[2]}, QChar(0xB1));
    }
    if (camera.movedByHand()) row(out, "Moved by hand", accepted - found);
    out->close();
}

void fact(Markup* out, const char* name, const QString& text) {
    out->element("dt", name);
    out->element("dd", text);
}

void facts(Markup* out, const ReportedCamera& camera) {
    out->open("dl");
    fact(out, "Proof", proofText(camera.quality));
    fact(out, "Model", camera.quality ? modelText(camera.quality->model) : "Not checked.");
    fact(out, "Distances", distancesText(camera.parallax));
    if (camera.evidence) fact(out, "Photos", photosText(*camera.evidence));
    out->close();
}

void caption(Markup* out, const QString& title, const QString& text) {
    out->open("figcaption");
    out->element("b", title);
    out->text(' ' + text);
    out->close();
}

void overlay(Markup* out, const ReportedCamera& camera, bool isNew, const cv::Rect& window) {
    const QString title = isNew ? "New rotation." : "Stored rotation.";
    out->open("figure", {{"class", "overlay"}});
    out->leaf("img", {{"src", dataUri(edgeOverlay(*camera.evidence, isNew ? camera.accepted : camera.stored, window))},
                      {"alt", title}});
    const QString text = isNew ? "Detail of photo %1. Black: where edges of both lie on each other."
                               : "Detail of photo %1. Red: edges of the infrared image; cyan: of the colour image.";
    caption(out, title, text.arg(camera.evidence->shownStill + 1));
    out->close();
}

void overlays(Markup* out, const ReportedCamera& camera, bool alone) {
    const cv::Size size =
        alone ? cv::Size(kWindowWidth, kWindowHeight) : cv::Size(kSmallWindowWidth, kSmallWindowHeight);
    const cv::Rect window = mostDetailedWindow(*camera.evidence, size);
    overlay(out, camera, false, window);
    overlay(out, camera, true, window);
}

void plots(Markup* out, const ReportedCamera& camera) {
    const vq::SolutionEvidence& evidence = *camera.evidence;
    out->open("div", {{"class", "row"}});
    out->open("figure", {{"class", "residuals"}});
    drawResiduals(out, evidence, camera.accepted);
    caption(out, "Residuals of the new rotation,",
            QString("drawn %1 times as long; thick: median of each part of the image; red: cut short.")
                .arg(exaggeration(evidence, camera.accepted)));
    out->close();
    out->open("div", {{"class", "side"}});
    out->open("figure");
    drawHistogram(out, residualLengthsPx(evidence, camera.stored), residualLengthsPx(evidence, camera.accepted));
    caption(out, "Lengths of the residuals",
            QString("of %1 fitted matches, and their medians.").arg(evidence.matches.size()));
    out->close();
    out->open("figure");
    drawCoverage(out, evidence);
    caption(out, "Coverage:", "fitted matches in each area of the infrared image, all photos.");
    out->close();
    out->close();
    out->close();
}

void cameraSection(Markup* out, const ReportedCamera& camera, bool alone) {
    out->open("section", {{"class", alone ? "one" : "two"}});
    out->open("h2");
    out->text(cameraName(camera));
    out->element("span", summaryText(camera));
    out->close();
    const bool drawn = camera.evidence && !camera.evidence->infrared.empty() && !camera.evidence->grey.empty();
    out->open("div", {{"class", "row"}});
    out->open("div", {{"class", alone ? "row" : "facts"}, {"style", alone ? "width: 186mm" : ""}});
    anglesTable(out, camera);
    facts(out, camera);
    out->close();
    if (drawn && !alone) overlays(out, camera, alone);
    out->close();
    if (drawn && alone) {
        out->open("div", {{"class", "row"}});
        overlays(out, camera, alone);
        out->close();
    }
    if (drawn) plots(out, camera);
    out->close();
}

void heading(Markup* out, const ServiceReport& report) {
    out->open("header");
    out->element("h1", "Calibration report");
    out->open("p");
    out->element("b", QString("Module %1").arg(report.serial));
    out->text(", firmware " + (report.firmware.isEmpty() ? QString("unknown") : report.firmware));
    out->leaf("br", {});
    out->text(report.time.toUTC().toString("yyyy-MM-dd HH:mm 'UTC'") + ", " + report.program);
    if (!report.source.isEmpty()) {
        out->leaf("br", {});
        out->text("Recording " + report.source);
    }
    out->close();
    out->close();
    const char* kind = !report.write ? "write" : report.write->stored ? "write good" : "write bad";
    out->element("p", writeText(report), {{"class", kind}});
}

}  // namespace

QByteArray reportPage(const ServiceReport& report) {
    QByteArray page;
    Markup out(&page);
    out.begin();
    out.open("html", {{"lang", "en"}});
    out.open("head");
    out.leaf("meta", {{"charset", "utf-8"}});
    out.element("title", QString("Calibration report, module %1").arg(report.serial));
    out.open("style");
    out.text(kStyle);
    out.close();
    out.close();
    out.open("body");
    heading(&out, report);
    for (const ReportedCamera& camera : report.cameras)
        cameraSection(&out, camera, report.cameras.size() == 1);
    out.close();
    out.close();
    return page;
}

}  // namespace fieldcal
