#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace fieldcal {

enum class Verdict { Fits, DoesNotFit, CannotTell };

/// One line of the table that a check of a module ends with.
struct CheckLine {
    QString id;    ///< for programs
    QString name;  ///< for people
    Verdict verdict = Verdict::CannotTell;
    QString text;  ///< what was measured, or why it cannot be told
};

using CheckLines = std::vector<CheckLine>;

/// Fits or does not fit.
inline Verdict verdictOf(bool fits) {
    return fits ? Verdict::Fits : Verdict::DoesNotFit;
}

/// Whether a line of this id says that something does not fit.
inline bool contradicts(const CheckLines& lines, const QString& id) {
    for (const CheckLine& line : lines) {
        if (line.id == id) return line.verdict == Verdict::DoesNotFit;
    }
    return false;
}

/// What rests on something that does not fit is not blamed itself: where one of the lines with these ids says so, a
/// line that does not fit cannot be told.
inline CheckLine unblamed(CheckLine line, const CheckLines& foundations, const QStringList& ids) {
    for (const CheckLine& foundation : foundations) {
        const bool isBroken = foundation.verdict == Verdict::DoesNotFit && ids.contains(foundation.id);
        if (!isBroken || line.verdict != Verdict::DoesNotFit) continue;
        line.verdict = Verdict::CannotTell;
        line.text = QString("'%1' does not fit; as it is: %2").arg(foundation.name, line.text);
    }
    return line;
}

}  // namespace fieldcal
