#pragma once

#include <QString>

#include <cstdint>

namespace fieldcal {

/// What the user is told, in the language of the interface, about a failed call of the camera library.
struct StatusNotice {
    bool missingDevice = false;  ///< the missing-camera notice; `text` is empty then
    QString text;                ///< "library's text - message"
};

/// `libraryText`: the library's own text for `status`. Any thread.
StatusNotice statusNotice(std::int32_t status, const QString& libraryText);

}  // namespace fieldcal
