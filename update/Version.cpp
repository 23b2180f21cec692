#include "update/Version.h"

#include <QRegularExpression>
#include <QStringList>

namespace fieldcal {

std::optional<Version> Version::parse(const QString& text) {
    static const QRegularExpression kForm(QStringLiteral("\\A(0|[1-9][0-9]{0,4})(\\.(0|[1-9][0-9]{0,4})){0,3}\\z"));
    if (!kForm.match(text).hasMatch()) return std::nullopt;
    Version version;
    std::size_t count = 0;
    for (const QString& part : text.split('.')) {
        bool fits = false;
        version.parts[count++] = part.toUShort(&fits);
        if (!fits) return std::nullopt;
    }
    return version;
}

QString Version::text() const {
    std::size_t count = parts.size();
    while (count > 2 && parts[count - 1] == 0)
        --count;
    QStringList numbers;
    for (std::size_t i = 0; i < count; ++i)
        numbers.append(QString::number(parts[i]));
    return numbers.join('.');
}

}  // namespace fieldcal
