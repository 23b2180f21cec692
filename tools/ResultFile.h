#pragma once

#include "tools/CalibrationReport.h"
#include "tools/CameraPair.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace fieldcal {

/// The number of the format of results. It grows when a key changes its meaning or goes.
inline constexpr int kResultSchema = 1;

/// The JSON object in which one calibration tells its result or its failure, together with what it was made from, so
/// that results can be collected.
class ResultFile {
public:
    /// `path`: a file, "-" for standard output, or empty for nowhere.
    ResultFile(QString path, const QString& recording, ColourCamera camera, unsigned seed);

    /// Takes over what the recording tells of the module.
    void describe(const CameraPair& cameras) { cameras_ = cameras; }

    bool toStandardOutput() const { return path_ == "-"; }

    /// Writes the result. A failure returns false and one line in `why`.
    bool write(const CalibrationReport& report, QString* why) const;

    /// Writes the failure, together with the report where the flash has been written or was to be, and prints it on
    /// standard error. It returns the exit status.
    int fail(const QString& error, const CalibrationReport* report = nullptr) const;

private:
    bool write(QJsonObject object, QString* why) const;

    const QString path_;
    QJsonObject origin_;
    std::optional<CameraPair> cameras_;
};

/// Writes a whole file, or standard output for "-". A regular file stays as it was when that fails, and false and one
/// line in `why` are returned.
bool writeWhole(const QString& path, const QByteArray& bytes, QString* why);

}  // namespace fieldcal
