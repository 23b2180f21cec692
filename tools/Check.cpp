#include "tools/CommandLine.h"
#include "tools/Console.h"
#include "tools/ModuleCheck.h"
#include "tools/ResultFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <mutex>

namespace fieldcal {
namespace {

/// The log of a check; it is stored beside the report.
struct KeptLog {
    std::mutex mutex;
    QStringList lines;
};

KeptLog& keptLog() {
    static KeptLog log;
    return log;
}

void keepLogLine(QtMsgType, const QMessageLogContext&, const QString& line) {
    KeptLog& log = keptLog();
    const std::lock_guard guard(log.mutex);
    log.lines << line;
}

/// Creates the folder. An existing folder must be empty.
bool makeFolder(const QString& folder, QString* why) {
    const QDir dir(folder);
    if (dir.exists() && !dir.isEmpty()) {
        *why = folder + ": the folder is not empty, and nothing is overwritten";
        return false;
    }
    if (QDir().mkpath(folder)) return true;
    *why = folder + ": the folder cannot be created";
    return false;
}

bool keepFindings(const QString& folder, const ModuleFindings& findings, const QByteArray& json, QString* why) {
    if (findings.block && !writeBackup(folder + "/block.fcbackup", *findings.block, why)) return false;
    return writeFile(folder + "/report.json", json, why) &&
           writeFile(folder + "/report.txt", findingsText(findings).toUtf8(), why) &&
           writeFile(folder + "/check.log", (keptLog().lines.join('\n') + '\n').toUtf8(), why);
}

int statusOf(const ModuleFindings& findings) {
    const auto has = [&findings](Verdict verdict) {
        return std::any_of(findings.lines.begin(), findings.lines.end(),
                           [verdict](const CheckLine& line) { return line.verdict == verdict; });
    };
    if (has(Verdict::DoesNotFit) || !findings.ended.isEmpty()) return kFailed;
    return has(Verdict::CannotTell) ? kNotSolved : kSolved;
}

}  // namespace

int run(const CheckOptions& options) {
    const QString folder = QString::fromStdString(options.folder);
    const QString jsonFile = QString::fromStdString(options.jsonFile);
    QString why;
    if (!folder.isEmpty() && !makeFolder(folder, &why)) return fail(why);
    silenceLogs();
    qInstallMessageHandler(keepLogLine);
    const bool toPeople = jsonFile != "-";
    ModuleCheck check(options, toPeople ? printLine : nullptr);
    const ModuleFindings findings = check.run();
    if (toPeople) std::printf("%s", qPrintable(findingsText(findings)));
    const QByteArray json = QJsonDocument(findingsJson(findings)).toJson(QJsonDocument::Indented);
    if (!jsonFile.isEmpty() && !writeFile(jsonFile, json, &why)) return fail(why);
    if (!folder.isEmpty() && !keepFindings(folder, findings, json, &why)) return fail(why);
    if (!findings.ended.isEmpty()) return fail(findings.ended);
    return statusOf(findings);
}

}  // namespace fieldcal
