#include "app/HistoryRows.h"

#include "app/InterfaceTexts.h"
#include "report/History.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace fieldcal {
namespace {

constexpr std::size_t kMaxRows = 100;

QVariantMap rowOf(const HistoryEntry& entry, bool two) {
    const bool isPlatform = entry.camera == ColourCamera::Platform;
    const char* camera = isPlatform ? texts::kSecondCamera : two ? texts::kFirstCamera : texts::kOnlyCamera;
    const QLocale locale;
    const QDateTime time = entry.time.toLocalTime();
    QVariantMap row{{"when", locale.toString(time.date(), QLocale::ShortFormat) + '\n' +
                                 locale.toString(time.time(), QLocale::ShortFormat)},
                    {"camera", QString("%1\n%2").arg(entry.serial).arg(interfaceText(camera))},
                    {"turnDeg", entry.turnDeg},
                    {"stored", entry.stored}};
    if (entry.proof) {
        row["storedPx"] = entry.proof->storedPx;
        row["newPx"] = entry.proof->newPx;
    }
    return row;
}

}  // namespace

void showHistory(QmlFunctions& functions, const QString& dataFolder) {
    const std::vector<HistoryEntry> entries = newestOfHistory(dataFolder, kMaxRows);
    const bool two = std::any_of(entries.begin(), entries.end(),
                                 [](const HistoryEntry& entry) { return entry.camera == ColourCamera::Platform; });
    QVariantList rows;
    for (const HistoryEntry& entry : entries)
        rows.append(rowOf(entry, two));
    qInfo("The history shows %d stored calibrations.",
          static_cast<int>(
              std::count_if(entries.begin(), entries.end(), [](const HistoryEntry& entry) { return entry.stored; })));
    functions.showHistory(rows, QDir::toNativeSeparators(dataFolder + "/reports"));
}

}  // namespace fieldcal
