#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace fieldcal {

enum class Verdict { Fits, DoesNotFit, CannotTell };

/// One line of the final table of a module check.
struct CheckLine {
    QString id;    ///< identifier for programs
    QString name;  ///< title in the table
    Verdict verdict = Verdict::CannotTell;
    QString text;  ///< what was measured, or why it cannot be determined
};

using CheckLines = std::vector<CheckLine>;

/// Returns `Fits` or `DoesNotFit`.
inline Verdict verdictOf(bool fits) {
    return fits ? Verdict::Fits : Verdict::DoesNotFit;
}

/// Returns whether the line with this id has the verdict `DoesNotFit`.
inline bool contradicts(const CheckLines& lines, const QString& id) {
    for (const CheckLine& line : lines) {
        if (line.id == id) return line.verdict == Verdict::DoesNotFit;
    }
    return false;
}

/// Changes the verdict `DoesNotFit` to `CannotTell` when one of the lines on which this result depends (`ids`, among
/// `prerequisites`) does not fit: the cause may then lie there.
inline CheckLine qualifiedBy(CheckLine line, const CheckLines& prerequisites, const QStringList& ids) {
    for (const CheckLine& prerequisite : prerequisites) {
        const bool isBroken = prerequisite.verdict == Verdict::DoesNotFit && ids.contains(prerequisite.id);
        if (!isBroken || line.verdict != Verdict::DoesNotFit) continue;
        line.verdict = Verdict::CannotTell;
        line.text =
            QString("'%1' does not fit, so there is no verdict; measured: %2").arg(prerequisite.name, line.text);
    }
    return line;
}

}  // namespace fieldcal
