#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace fieldcal {

/// Exit statuses of the command line.
enum ExitStatus : int {
    kSolved = 0,
    kFailed = 1,     ///< unreadable recording or device failure
    kUsage = 2,      ///< wrong usage
    kNotSolved = 3,  ///< played to the end without a good solution
};

struct CalibrateOptions {
    QString folder;
    bool platformCamera = false;
    std::optional<unsigned> seed;
    QString jsonFile;  ///< empty: none; "-": standard output, instead of the text for people
    bool verbose = false;
    bool write = false;  ///< into the module's flash, when solved
    QString stateFile;   ///< where the engine's state goes; empty: nowhere
};

struct RecordOptions {
    QString folder;
    int frames = 0;  ///< frame sets to grab, 1 to 1,000,000
};

struct InfoOptions {
    QString folder;  ///< empty: the module that is connected
};

struct BackupOptions {
    QString file;  ///< empty: a dated one in the user's data folder
};

struct RestoreOptions {
    QString file;
};

struct SynthesizeOptions {
    QString folder;
    std::string world = "square";
    unsigned seed = 1;
    int stills = 8;
    bool platform = false;
    bool baselines = true;  ///< between the cameras
};

/// Arguments after the verb. None, and `why`, when they are wrong.
std::optional<CalibrateOptions> parseCalibrate(const QStringList& arguments, QString* why);
std::optional<RecordOptions> parseRecord(const QStringList& arguments, QString* why);
std::optional<InfoOptions> parseInfo(const QStringList& arguments, QString* why);
std::optional<BackupOptions> parseBackup(const QStringList& arguments, QString* why);
std::optional<RestoreOptions> parseRestore(const QStringList& arguments, QString* why);
std::optional<SynthesizeOptions> parseSynthesize(const QStringList& arguments, QString* why);

QString usageText();

}  // namespace fieldcal
