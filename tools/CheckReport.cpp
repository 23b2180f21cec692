#include "engine/Stopwatch.h"
#include "tools/ModuleCheck.h"
#include "tools/ResultFile.h"

#include <QDateTime>
#include <QJsonArray>

#include <algorithm>

namespace fieldcal {
namespace {

const char* nameOf(Verdict verdict) {
    switch (verdict) {
        case Verdict::Fits:
            return "fits";
        case Verdict::DoesNotFit:
            return "does not fit";
        case Verdict::CannotTell:
            break;
    }
    return "cannot tell";
}

QJsonObject operationJson(const OperationRecord& record) {
    QJsonObject json{{"name", QString::fromStdString(record.name)},
                     {"calls", record.calls},
                     {"failures", record.failures},
                     {"firstMs", record.firstMs},
                     {"longestMs", record.longestMs}};
    if (record.status) json.insert("status", *record.status);
    return json;
}

QJsonObject streamJson(std::size_t stream, const StreamStatistics& seen) {
    return {{"name", StreamWatch::nameOf(stream)}, {"width", seen.width},      {"height", seen.height},
            {"delivered", seen.delivered},         {"changes", seen.changes},  {"newPerSecond", seen.newPerSecond},
            {"jitterMs", seen.jitterMs},           {"oldestMs", seen.oldestMs}};
}

}  // namespace

QString findingsText(const ModuleFindings& findings) {
    QString text =
        QString("\nmodule %1, firmware %2, software %3\n\n")
            .arg(findings.module.serial)
            .arg(QString::fromStdString(findings.module.firmware), QString::fromStdString(findings.module.software));
    for (const CheckLine& line : findings.lines)
        text +=
            QString("%1  %2  %3\n").arg(nameOf(line.verdict), -12).arg(line.name, -46).arg(line.text).trimmed() + '\n';
    text += "\noperation                     calls  failed   first ms  longest ms\n";
    for (const OperationRecord& record : findings.operations) {
        text += QString("%1 %2 %3 %4 %5\n")
                    .arg(QString::fromStdString(record.name), -28)
                    .arg(record.calls, 6)
                    .arg(record.failures, 7)
                    .arg(record.firstMs, 10, 'f', 2)
                    .arg(record.longestMs, 11, 'f', 2);
    }
    if (!findings.ended.isEmpty()) text += "\nThe check ended early: " + findings.ended + '\n';
    return text;
}

QJsonObject findingsJson(const ModuleFindings& findings) {
    QJsonArray lines, operations, streams;
    for (const CheckLine& line : findings.lines) {
        lines.append(
            QJsonObject{{"id", line.id}, {"name", line.name}, {"verdict", nameOf(line.verdict)}, {"text", line.text}});
    }
    for (const OperationRecord& record : findings.operations)
        operations.append(operationJson(record));
    for (std::size_t stream = 0; stream < kStreamCount; ++stream)
        streams.append(streamJson(stream, findings.streams[stream]));
    QJsonObject texts;
    for (const auto& [status, text] : findings.statusTexts)
        texts.insert(QString::number(status), text);
    QJsonObject json{{"schema", kResultSchema},
                     {"program", FIELDCAL_VERSION},
                     {"time", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                     {"serial", static_cast<qint64>(findings.module.serial)},
                     {"firmware", QString::fromStdString(findings.module.firmware)},
                     {"software", QString::fromStdString(findings.module.software)},
                     {"lines", lines},
                     {"operations", operations},
                     {"streams", streams},
                     {"statusTexts", texts}};
    if (!findings.ended.isEmpty()) json.insert("error", findings.ended);
    return json;
}

}  // namespace fieldcal
