#include "workflow/BaselineMemory.h"

#include "files/SafeFile.h"

#include <QFile>
#include <QFileInfo>

#include <string>
#include <vector>

namespace fieldcal {
namespace {

constexpr qint64 kLargestFile = 65536;
constexpr std::size_t kMaxModules = 1000;  ///< far fewer than fit into the largest accepted file; the oldest ones are
                                           ///< dropped
constexpr double kSmallestMm = 15.0, kLargestMm = 200.0;
constexpr char kHeading[] = "# Module serial numbers, and the stereo baselines (mm) that calibrations found for them\n";

struct Line {
    std::uint32_t serial = 0;
    double baselineMm = 0;

    bool isPlausible() const { return serial != 0 && baselineMm >= kSmallestMm && baselineMm <= kLargestMm; }
};

/// Parses the line of a module. A line with an unreadable baseline is kept as implausible, because it still concerns
/// that module.
std::optional<Line> parse(const QByteArray& text) {
    const QList<QByteArray> fields = text.simplified().split(' ');
    Line line;
    bool isSerial = false;
    line.serial = fields[0].toUInt(&isSerial);
    if (!isSerial) return std::nullopt;
    if (fields.size() == 2) line.baselineMm = fields[1].toDouble();
    return line;
}

std::vector<Line> readLines(const QString& path) {
    QFile file(path);
    // Opening a pipe would block until another process writes to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (bytes.size() > kLargestFile) return {};
    std::vector<Line> lines;
    for (const QByteArray& text : bytes.split('\n')) {
        if (const auto line = parse(text)) lines.push_back(*line);
    }
    return lines;
}

QByteArray textOf(const std::vector<Line>& lines) {
    QByteArray text = kHeading;
    for (const Line& line : lines)
        text += QByteArray::number(line.serial) + ' ' + QByteArray::number(line.baselineMm, 'f', 3) + '\n';
    return text;
}

}  // namespace

BaselineMemory::BaselineMemory(const QString& folder) : folder_(folder), path_(folder + "/stereo-baselines.txt") {}

std::optional<double> BaselineMemory::find(std::uint32_t serial) const {
    std::optional<double> baselineM;
    for (const Line& line : readLines(path_)) {
        if (line.serial != serial) continue;
        if (baselineM || !line.isPlausible()) return std::nullopt;
        baselineM = line.baselineMm / 1000;
    }
    return baselineM;
}

void BaselineMemory::remember(std::uint32_t serial, double metres) const {
    const Line line{serial, metres * 1000};
    if (!line.isPlausible()) return;
    std::vector<Line> lines;
    for (const Line& known : readLines(path_)) {
        if (known.serial != serial && known.isPlausible()) lines.push_back(known);
    }
    lines.push_back(line);
    if (lines.size() > kMaxModules) lines.erase(lines.begin(), lines.end() - kMaxModules);

    const QByteArray text = textOf(lines);
    std::string why;
    const bool written = makeFolders(folder_.toStdString(), &why) &&
                         writeFile(path_.toStdString(), text.constData(), static_cast<std::size_t>(text.size()), &why);
    if (!written) {
        qCritical("%s: the stereo baseline of module %u cannot be kept: %s", qUtf8Printable(path_), serial,
                  why.c_str());
    }
}

}  // namespace fieldcal
