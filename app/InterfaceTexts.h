#pragma once

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

namespace fieldcal {

/// Returns a text of the interface in the user's language, or unchanged where there is no translation. Any thread.
inline QString interfaceText(const char* english) {
    // Translating an empty text would return the header of the translation file.
    return *english == '\0' ? QString() : QCoreApplication::translate("Interface", english);
}

/// Texts of the application; the workflow has its own.
namespace texts {

constexpr const char* kProgramName = "Field Calibrator";

constexpr const char* kContinue = QT_TRANSLATE_NOOP("Interface", "Continue");
constexpr const char* kDarkTitle = QT_TRANSLATE_NOOP("Interface", "Sunlight Required");
constexpr const char* kDark =
    QT_TRANSLATE_NOOP("Interface", "There is not enough sunlight.\nMove outside to a bright, sunlit area.");
constexpr const char* kLitTitle = QT_TRANSLATE_NOOP("Interface", "Sufficient Sunlight");
constexpr const char* kLit = QT_TRANSLATE_NOOP("Interface", "It's bright enough here!\nPress continue.");

constexpr const char* kOnlyCamera = QT_TRANSLATE_NOOP("Interface", "Color Camera");
constexpr const char* kFirstCamera = QT_TRANSLATE_NOOP("Interface", "First Color Camera");
constexpr const char* kSecondCamera = QT_TRANSLATE_NOOP("Interface", "Second Color Camera");
constexpr const char* kRefineOnly =
    QT_TRANSLATE_NOOP("Interface",
                      "Align the colorful depth image with the color image.\n"
                      "Press Continue to accept the calibration of the color camera. Or press Restart to start over.");
constexpr const char* kRefineFirst = QT_TRANSLATE_NOOP(
    "Interface",
    "Align the colorful depth image with the color image.\n"
    "Press Continue to accept the calibration of the first color camera. Or press Restart to start over.");
constexpr const char* kRefineSecond = QT_TRANSLATE_NOOP(
    "Interface",
    "Align the colorful depth image with the color image.\n"
    "Press Continue to accept the calibration of the second color camera. Or press Restart to start over.");

constexpr const char* kSaved = QT_TRANSLATE_NOOP("Interface", "The calibration is stored in the camera.");
//: %1 is the name of a camera, %2 an angle
constexpr const char* kStoredFact = QT_TRANSLATE_NOOP("Interface", "%1: read back, %2° from the calibration before.");
constexpr const char* kLastSaveFailed =
    QT_TRANSLATE_NOOP("Interface", "The last calibration was not stored in the camera.\nPlease calibrate again.");

constexpr const char* kBatteryLow =
    QT_TRANSLATE_NOOP("Interface",
                      "The battery is almost empty.\n"
                      "Connect the tablet to its charger. Then the calibration can be stored in the camera.");

constexpr const char* kLockTaken = QT_TRANSLATE_NOOP(
    "Interface", "Another program prevents this one from starting.\nSwitch the tablet off and on again.");

constexpr const char* kLastCalibrated = QT_TRANSLATE_NOOP("Interface", "Last calibrated on %1.");
constexpr const char* kLastSaveGarbled = QT_TRANSLATE_NOOP(
    "Interface", "The camera holds neither the last calibration nor the one before.\nPlease calibrate again.");

constexpr const char* kUpdateConnection =
    QT_TRANSLATE_NOOP("Interface", "The connection broke off and could not be made again.");
constexpr const char* kUpdateServer =
    QT_TRANSLATE_NOOP("Interface", "The download server does not give what was expected of it.");
constexpr const char* kUpdateDisk = QT_TRANSLATE_NOOP("Interface", "The download could not be kept on the disk.");
constexpr const char* kUpdateDamaged = QT_TRANSLATE_NOOP("Interface", "The download was damaged and has been removed.");
constexpr const char* kUpdateUnsigned =
    QT_TRANSLATE_NOOP("Interface", "This is a development build without a signature. It starts no installer.");
constexpr const char* kUpdateNotTrusted =
    QT_TRANSLATE_NOOP("Interface", "The download is not signed by the maker of this program and has been removed.");
constexpr const char* kUpdateNoInstallers = QT_TRANSLATE_NOOP("Interface", "There is no installer for this system.");
constexpr const char* kUpdateNotStarted = QT_TRANSLATE_NOOP("Interface", "The installer could not be started.");

}  // namespace texts
}  // namespace fieldcal
