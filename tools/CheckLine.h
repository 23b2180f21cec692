#pragma once

#include <QString>

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

/// Whether a line of this name says that something does not fit.
inline bool contradicts(const CheckLines& lines, const QString& id) {
    for (const CheckLine& line : lines) {
        if (line.id == id) return line.verdict == Verdict::DoesNotFit;
    }
    return false;
}

}  // namespace fieldcal
