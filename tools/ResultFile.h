#pragma once

#include "tools/CalibrationReport.h"
#include "tools/CameraPair.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace fieldcal {

/// Version of the format of results. It is raised when a key changes its meaning or is removed.
inline constexpr int kResultSchema = 1;

/// The JSON object that holds the result or the failure of one calibration together with its origin, so that results
/// can be collected.
class ResultFile {
public:
    /// `path`: a file, "-" for standard output, or empty for none.
    ResultFile(QString path, const QString& recording, ColourCamera camera, unsigned seed);

    /// Adds the data of the module that the recording contains.
    void describe(const CameraPair& cameras) { cameras_ = cameras; }

    bool toStandardOutput() const { return path_ == "-"; }

    /// Writes the result. On failure returns false and sets `why` to one line.
    bool write(const CalibrationReport& report, QString* why) const;

    /// Writes the failure, together with the report if writing into the flash was asked for, and prints it on standard
    /// error. Returns the exit status.
    int fail(const QString& error, const CalibrationReport* report = nullptr) const;

private:
    bool write(QJsonObject object, QString* why) const;

    const QString path_;
    QJsonObject origin_;
    std::optional<CameraPair> cameras_;
};

/// Writes a whole file, or standard output for "-". On failure, a regular file is unchanged, and false and one line in
/// `why` are returned.
bool writeFile(const QString& path, const QByteArray& bytes, QString* why);

}  // namespace fieldcal
