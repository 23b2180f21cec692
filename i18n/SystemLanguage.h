#pragma once

#include <QString>

#include <optional>

namespace fieldcal {

/// English names of the user's interface language and of its country; none where the system does not report them.
struct SystemLanguage {
    std::optional<QString> language;
    std::optional<QString> country;
};

SystemLanguage systemLanguage();

}  // namespace fieldcal
