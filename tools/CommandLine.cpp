#include "tools/CommandLine.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <limits>
#include <map>

namespace fieldcal {
namespace {

constexpr const char* kProgram = "fieldcal-session";
constexpr unsigned kLargestSeed = std::numeric_limits<unsigned>::max();
constexpr unsigned kMaxStills = 999;
constexpr unsigned kMaxCheckedStills = 32;
constexpr unsigned kMaxFrames = 1000000;

/// A validator returns an error text that follows the name of the option, or an empty text for a valid value.
CLI::Validator wholeNumber(unsigned smallest, unsigned largest) {
    const auto validate = [smallest, largest](std::string& text) {
        bool isNumber = false;
        const unsigned number = QString::fromStdString(text).toUInt(&isNumber);
        if (!isNumber || number < smallest || number > largest) {
            return "takes a whole number from " + std::to_string(smallest) + " to " + std::to_string(largest) +
                   ", not '" + text + "'";
        }
        text = std::to_string(number);  // The library would read a number with leading zeros as octal.
        return std::string();
    };
    return {validate, ""};
}

ColourCamera cameraNamed(const std::string& name) {
    return name == nameOf(ColourCamera::Platform) ? ColourCamera::Platform : ColourCamera::Third;
}

std::string isCamera(const std::string& name) {
    return name == "third" || name == "platform" ? "" : "takes third or platform";
}

const std::map<std::string, ExportFormat> kFormats{{"ros", ExportFormat::Ros},
                                                   {"tf", ExportFormat::Tf},
                                                   {"urdf", ExportFormat::Urdf},
                                                   {"opencv", ExportFormat::OpenCv},
                                                   {"kalibr", ExportFormat::Kalibr}};

std::string isFormat(const std::string& name) {
    return kFormats.count(name) > 0 ? "" : "takes ros, tf, urdf, opencv or kalibr";
}

std::string isGiven(const std::string& name) {
    return name.empty() ? "is missing" : "";
}

/// The parser of the program's arguments. Verbs are subcommands of the library.
class Parser {
public:
    Parser() {
        app_.get_formatter()->label("Usage", "usage");
        app_.get_formatter()->label("SUBCOMMAND", "VERB");
        app_.allow_windows_style_options(false);  // "/tmp/walk" is a folder, not an option.
        app_.set_version_flag("--version", std::string(kProgram) + " " FIELDCAL_VERSION, "Print the version and exit");
        app_.require_subcommand(1);
        app_.footer(
            "Exit status: 0 solved or done, 1 unreadable recording or device failure, 2 wrong usage,\n"
            "3 played to the end without a good solution; of check: 0 all fits, 1 something does not, 3 something "
            "cannot be determined.");
        addCalibrate();
        addSynthesize();
        addRecord();
        addInfo();
        addBackup();
        addRestore();
        addExport();
        addImport();
        addCheck();
    }

    /// Returns false and sets the exit status when there is no command to run.
    bool parse(const QStringList& arguments, Command* out, int* status) {
        std::vector<std::string> reversed;  // The library expects the arguments in reverse order.
        for (const QString& argument : arguments)
            reversed.insert(reversed.begin(), argument.toStdString());
        try {
            app_.parse(std::move(reversed));
            *out = command_;
            return true;
        } catch (const CLI::CallForVersion& version) {
            std::printf("%s\n", version.what());
            *status = kSolved;
        } catch (const CLI::Success&) {
            std::printf("%s", help().c_str());
            *status = kSolved;
        } catch (const CLI::ParseError& error) {
            *status = refuse(reasonOf(error));
        }
        return false;
    }

    int refuse(const std::string& why) const {
        std::fprintf(stderr, "%s: %s\n%s", kProgram, qPrintable(QString::fromStdString(why)), help().c_str());
        return kUsage;
    }

private:
    template <typename Options>
    CLI::App* addVerb(const char* name, const char* description, const Options& options) {
        CLI::App* verb = app_.add_subcommand(name, description)->group("Verbs");
        verb->callback([this, &options] { command_ = options; });
        return verb;
    }

    /// When an option is given more than once, the last value is used.
    static CLI::Option* lastCounts(CLI::Option* option) {
        return option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }

    void addCalibrate() {
        CLI::App* verb = addVerb("calibrate", "Play a recording and calibrate one of its colour cameras", calibrate_);
        verb->add_option("DIR", calibrate_.folder, "The recording")->required()->check(isGiven)->type_name("");
        const auto takeCamera = [this](const std::string& name) { calibrate_.camera = cameraNamed(name); };
        lastCounts(verb->add_option_function<std::string>("--camera", takeCamera, "The camera, third by default"))
            ->check(isCamera)
            ->type_name("third|platform");
        lastCounts(verb->add_option("--seed", calibrate_.seed, "Repeats the same random samples"))
            ->transform(wholeNumber(0, kLargestSeed))
            ->type_name("N");
        lastCounts(verb->add_option("--json", calibrate_.jsonFile, "Write the result as JSON; -: in place of the text"))
            ->type_name("FILE|-");
        lastCounts(verb->add_flag("--write", calibrate_.write, "Write a solution into the module's flash"));
        lastCounts(verb->add_option("--state", calibrate_.stateFile, "Keep the engine's cameras and rotation"))
            ->type_name("FILE");
        lastCounts(verb->add_option("--report", calibrate_.reportFile, "Write a report of the solution, HTML"))
            ->type_name("FILE");
        lastCounts(verb->add_flag("--verbose", calibrate_.verbose, "Show the log"));
    }

    void addSynthesize() {
        CLI::App* verb = addVerb("synthesize", "Render a recording whose truth is known", synthesize_);
        verb->add_option("DIR", synthesize_.folder, "The recording to make")->required()->check(isGiven)->type_name("");
        lastCounts(verb->add_option("--world", synthesize_.world, "What is rendered"))
            ->type_name("NAME")
            ->capture_default_str();
        lastCounts(verb->add_option("--seed", synthesize_.seed, "Scene, module and drift"))
            ->transform(wholeNumber(0, kLargestSeed))
            ->type_name("N")
            ->capture_default_str();
        lastCounts(verb->add_option("--stills", synthesize_.stills, "Number of still views"))
            ->transform(wholeNumber(1, kMaxStills))
            ->type_name("N")
            ->capture_default_str();
        lastCounts(verb->add_flag("--platform", synthesize_.platform, "With the tablet's rear camera"));
        const auto dropBaselines = [this](std::int64_t) { synthesize_.baselines = false; };
        verb->add_flag_function("--no-baselines", dropBaselines, "All cameras in one place");
    }

    void addRecord() {
        CLI::App* verb = addVerb("record", "Record frame sets of the connected module", record_);
        verb->add_option("DIR", record_.folder, "The recording to make")->required()->check(isGiven)->type_name("");
        lastCounts(verb->add_option("--frames", record_.frames, "Number of frame sets"))
            ->required()
            ->transform(wholeNumber(1, kMaxFrames))
            ->type_name("N");
    }

    void addInfo() {
        CLI::App* verb = addVerb("info", "Describe a recording, or the connected module", info_);
        verb->add_option("DIR", info_.folder, "The recording; the connected module without it")->type_name("");
    }

    void addBackup() {
        CLI::App* verb = addVerb("backup", "Keep the connected module's parameter block in a file", backup_);
        verb->add_option("FILE", backup_.file, "The file; a dated one in the user's data folder without it")
            ->type_name("");
    }

    void addRestore() {
        CLI::App* verb = addVerb("restore", "Write such a file back into the module that it came from", restore_);
        verb->add_option("FILE", restore_.file, "The file")->required()->check(isGiven)->type_name("");
    }

    void addExport() {
        CLI::App* verb = addVerb("export", "Write a calibration as a file for other programs", export_);
        verb->add_option("SOURCE", export_.source,
                         "A recording, a result of calibrate --json, or 'module' for the one that is connected")
            ->required()
            ->check(isGiven)
            ->type_name("");
        const auto takeFormat = [this](const std::string& name) { export_.format = kFormats.at(name); };
        lastCounts(verb->add_option_function<std::string>("--format", takeFormat, "The format of the file"))
            ->required()
            ->check(isFormat)
            ->type_name("ros|tf|urdf|opencv|kalibr");
        const auto takeCamera = [this](const std::string& name) { export_.camera = cameraNamed(name); };
        lastCounts(verb->add_option_function<std::string>("--camera", takeCamera, "That of a result, or third"))
            ->check(isCamera)
            ->type_name("third|platform");
        lastCounts(verb->add_option("--out", export_.outFile, "The file; standard output without it"))
            ->check(isGiven)
            ->type_name("FILE|-");
    }

    void addImport() {
        CLI::App* verb = addVerb("import", "Make a recording of time-stamped images in folders", import_);
        verb->add_option("DIR", import_.folder, "The folder with the images and their cameras")
            ->required()
            ->check(isGiven)
            ->type_name("");
        verb->add_option("RECORDING", import_.recording, "The recording to make")
            ->required()
            ->check(isGiven)
            ->type_name("");
        const auto addStream = [verb](const char* option, std::string& name, const char* what) {
            lastCounts(verb->add_option(option, name, what))->type_name("NAME")->capture_default_str();
        };
        addStream("--infrared", import_.infrared, "Left infrared images and their camera");
        addStream("--third", import_.third, "Images of the module's colour camera");
        addStream("--right", import_.right, "Right infrared images");
        addStream("--depth", import_.depth, "Depth images");
        addStream("--platform", import_.platform, "Raw images of the tablet's rear camera");
        lastCounts(verb->add_option("--within", import_.withinMs, "Milliseconds between images of one frame set"))
            ->check(CLI::Range(0.0, 1000.0))
            ->type_name("MS")
            ->capture_default_str();
        lastCounts(verb->add_option("--repeat", import_.repeat, "Grabs that deliver each frame set; stills need 26"))
            ->transform(wholeNumber(1, kMaxFrames))
            ->type_name("N")
            ->capture_default_str();
        lastCounts(verb->add_option("--serial", import_.serial, "The module's serial number"))
            ->transform(wholeNumber(0, kLargestSeed))
            ->type_name("N")
            ->capture_default_str();
    }

    void addCheck() {
        CLI::App* verb = addVerb("check", "Ask the connected module everything and see whether it fits", check_);
        lastCounts(verb->add_option("--json", check_.jsonFile, "Write the findings as JSON; -: in place of the table"))
            ->type_name("FILE|-");
        lastCounts(verb->add_option("--out", check_.folder, "Keep recording, block, log and report, to be sent home"))
            ->check(isGiven)
            ->type_name("FOLDER");
        lastCounts(verb->add_option("--stills", check_.stills, "Stills to compare the cameras with"))
            ->transform(wholeNumber(3, kMaxCheckedStills))
            ->type_name("N")
            ->capture_default_str();
        lastCounts(verb->add_flag("--write-back-unchanged", check_.writeBackUnchanged,
                                  "Also write the block into the flash, as it is"));
    }

    /// Returns the help of the verb that was given, or of the program.
    std::string help() const { return app_.help(); }

    std::string reasonOf(const CLI::ParseError& error) const {
        const std::vector<CLI::App*> verbs = app_.get_subcommands();
        const std::vector<std::string> extras = verbs.empty() ? app_.remaining() : verbs.front()->remaining();
        if (verbs.empty()) return extras.empty() ? "a verb is missing" : "unknown verb '" + extras.front() + "'";
        const auto takes = [&verbs](const char* name) { return verbs.front()->get_option_no_throw(name) != nullptr; };
        const std::string noun = takes("DIR") ? "folder" : takes("SOURCE") ? "source" : "file";
        if (!extras.empty()) {
            const std::string& extra = extras.front();
            const bool isOption = extra.size() > 1 && extra.front() == '-';
            return (isOption ? "unknown option " : "one " + noun + " too many: ") + extra;
        }
        // The library begins its messages with the name of the option.
        std::string text = error.what();
        const std::size_t end = std::min(text.find_first_of(": "), text.size());
        const std::string option = text.substr(0, end);
        const bool isPositional = option == "DIR" || option == "FILE" || option == "SOURCE" || option == "RECORDING";
        const std::string name = isPositional ? "a " + noun : option;
        if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return name + " is missing";
        if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) return name + " needs a value";
        if (dynamic_cast<const CLI::ValidationError*>(&error) != nullptr) return name + text.substr(end + 1);
        return text;
    }

    CLI::App app_{"Field Calibrator: recordings and the connected module", kProgram};
    CalibrateOptions calibrate_;
    SynthesizeOptions synthesize_;
    RecordOptions record_;
    InfoOptions info_;
    BackupOptions backup_;
    RestoreOptions restore_;
    ExportOptions export_;
    ImportOptions import_;
    CheckOptions check_;
    Command command_;
};

}  // namespace

std::optional<Command> parseCommandLine(const QStringList& arguments, int* status) {
    try {
        Command command;
        if (Parser().parse(arguments, &command, status)) return command;
    } catch (const CLI::Error& error) {  // An option is declared incorrectly in this program.
        std::fprintf(stderr, "%s: %s\n", kProgram, error.what());
        *status = kUsage;
    }
    return std::nullopt;
}

int runCommand(const Command& command) {
    return std::visit([](const auto& options) { return run(options); }, command);
}

int refuseUsage(const QString& why) {
    return Parser().refuse(why.toStdString());
}

}  // namespace fieldcal
