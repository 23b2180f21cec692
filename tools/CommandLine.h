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
    std::string jsonFile;  ///< empty: none; "-": standard output, instead of the text for people
    bool verbose = false;
    bool write = false;      ///< into the module's flash, when solved
    std::string stateFile;   ///< where the engine's state goes; empty: nowhere
    std::string reportFile;  ///< where the report of a solution goes; empty: nowhere
};

struct SynthesizeOptions {
    std::string folder;
    std::string world = "square";
    unsigned seed = 1;
    int stills = 8;
    bool platform = false;
    bool baselines = true;  ///< whether there are baselines between the cameras
};

struct RecordOptions {
    std::string folder;
    int frames = 0;  ///< frame sets to grab, 1 to 1,000,000
};

/// Folders of images below `folder`, each beside a CameraInfo file of the same name.
struct ImportOptions {
    std::string folder;
    std::string recording;
    std::string infrared = "infrared", third = "third", right = "right", depth = "depth", platform = "platform";
    double withinMs = 5;  ///< between images of one frame set
    int repeat = 1;       ///< grabs that deliver each frame set
    std::uint32_t serial = 0;
};

struct InfoOptions {
    std::string folder;  ///< empty: the module that is connected
};

struct BackupOptions {
    std::string file;  ///< empty: a dated one in the user's data folder
};

struct RestoreOptions {
    std::string file;
};

struct ExportOptions {
    std::string source;  ///< the folder of a recording, the file of a result, or "module" for the one that is connected
    ExportFormat format = ExportFormat::Ros;
    std::optional<ColourCamera> camera;  ///< unset: the camera of the result, and otherwise the third
    std::string outFile = "-";
};

struct CheckOptions {
    std::string jsonFile;             ///< empty: none; "-": standard output, instead of the table
    std::string folder;               ///< where recording, block, log and report go; empty: nowhere
    int stills = 8;                   ///< of each colour camera
    bool writeBackUnchanged = false;  ///< write the block as it is
};

using Command = std::variant<CalibrateOptions, SynthesizeOptions, RecordOptions, InfoOptions, BackupOptions,
                             RestoreOptions, ExportOptions, ImportOptions, CheckOptions>;

/// Parses the arguments. There is no command when the program has to end with `status`, because help or the version was
/// printed or because the usage was wrong and the reason was printed.
std::optional<Command> parseCommandLine(const QStringList& arguments, int* status);

/// Prints the reason and the help on standard error, and returns the exit status for wrong usage.
int refuseUsage(const QString& why);

/// Runs the verb that the command is for. It returns the exit status, as each of the verbs does.
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
