#pragma once

#include "camera/ColourCamera.h"
#include "tools/ExportFormats.h"

#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace fieldcal {

/// Exit statuses of the command line.
enum ExitStatus : int {
    kSolved = 0,
    kFailed = 1,     ///< unreadable recording or device failure
    kUsage = 2,      ///< wrong usage
    kNotSolved = 3,  ///< played to the end without a good solution
};

struct CalibrateOptions {
    std::string folder;
    ColourCamera camera = ColourCamera::Third;
    std::optional<unsigned> seed;
    std::string jsonFile;  ///< empty: none; "-": standard output, instead of the readable text
    bool verbose = false;
    bool write = false;      ///< write the rotation into the module's flash when solved
    std::string stateFile;   ///< file for the engine's state; empty: none
    std::string reportFile;  ///< file for the report of a solution; empty: none
};

struct SynthesizeOptions {
    std::string folder;
    std::string world = "square";
    unsigned seed = 1;
    int stills = 8;
    bool platform = false;
    bool baselines = true;  ///< whether the cameras have different positions
};

struct RecordOptions {
    std::string folder;
    int frames = 0;  ///< number of frame sets to grab, 1 to 1,000,000
};

/// Folders of images below `folder`; each has a CameraInfo file of the same name beside it.
struct ImportOptions {
    std::string folder;
    std::string recording;
    std::string infrared = "infrared", third = "third", right = "right", depth = "depth", platform = "platform";
    double withinMs = 5;  ///< largest difference in time within a frame set
    int repeat = 1;       ///< number of grabs that deliver each frame set
    std::uint32_t serial = 0;
};

struct InfoOptions {
    std::string folder;  ///< empty: the connected module
};

struct BackupOptions {
    std::string file;  ///< empty: a dated file in the user's data folder
};

struct RestoreOptions {
    std::string file;
};

struct ExportOptions {
    std::string source;  ///< folder of a recording, file of a result, or "module" for the connected module
    ExportFormat format = ExportFormat::Ros;
    std::optional<ColourCamera> camera;  ///< unset: the camera of a result, otherwise the third camera
    std::string outFile = "-";
};

struct CheckOptions {
    std::string jsonFile;             ///< empty: none; "-": standard output, instead of the table
    std::string folder;               ///< folder for recording, block, log and report; empty: none
    int stills = 8;                   ///< number of stills of each colour camera
    bool writeBackUnchanged = false;  ///< write the unchanged block into the flash
};

using Command = std::variant<CalibrateOptions, SynthesizeOptions, RecordOptions, InfoOptions, BackupOptions,
                             RestoreOptions, ExportOptions, ImportOptions, CheckOptions>;

/// Parses the arguments. Returns none when the program has to end with `status`: help or the version was printed, or
/// the usage was wrong and the reason was printed.
std::optional<Command> parseCommandLine(const QStringList& arguments, int* status);

/// Prints the reason and the help on standard error, and returns the exit status for wrong usage.
int refuseUsage(const QString& why);

/// Runs the verb of the command. All of these functions return the exit status.
int runCommand(const Command& command);
int run(const CalibrateOptions& options);
int run(const SynthesizeOptions& options);
int run(const RecordOptions& options);
int run(const InfoOptions& options);
int run(const BackupOptions& options);
int run(const RestoreOptions& options);
int run(const ExportOptions& options);
int run(const ImportOptions& options);
int run(const CheckOptions& options);

}  // namespace fieldcal
