#include "devices/StatusCheck.h"

#include "kxapi/KXAPI.h"

#include <QCoreApplication>

namespace fieldcal {
namespace {

const char* userMessage(std::int32_t status) {
    switch (status) {
        case KX_STATUS_FAILED:
            return QT_TRANSLATE_NOOP("Interface", "A KXAPI call failed.");
        case KX_STATUS_NOT_CALIBRATED:
            return QT_TRANSLATE_NOOP("Interface",
                                     "The device has not been calibrated or has invalid calibration data.");
        case KX_STATUS_DEVICE_ERROR:
            return QT_TRANSLATE_NOOP("Interface", "Something bad has happened with the Tarnex Deepvane camera.");
        case KX_STATUS_DEVICE_BUSY:
            return QT_TRANSLATE_NOOP(
                "Interface", "Please close all Tarnex Deepvane applications and any web browsers before proceeding.");
        case KX_STATUS_FIRMWARE_TOO_OLD:
            return QT_TRANSLATE_NOOP(
                "Interface",
                "Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update "
                "your firmware and run the application again.");
        default:
            return QT_TRANSLATE_NOOP("Interface", "An unknown error has occured.");
    }
}

}  // namespace

StatusNotice statusNotice(std::int32_t status, const QString& libraryText) {
    if (status == KX_STATUS_NO_DEVICE) return {true, QString()};
    const QString form = QStringLiteral("%1 - %2");
    return {false, form.arg(libraryText, QCoreApplication::translate("Interface", userMessage(status)))};
}

}  // namespace fieldcal
