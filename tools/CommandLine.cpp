#include "tools/CommandLine.h"

namespace fieldcal {
namespace {

/// Walks over the arguments: options by name, at most one folder.
class Arguments {
public:
    Arguments(const QStringList& all, QString* why) : all_(all), why_(why) {}

    bool next() {
        if (failed_ || ++position_ >= all_.size()) return false;
        current_ = all_[position_];
        return true;
    }
    bool is(const char* option) const { return current_ == QLatin1String(option); }

    QString value() {
        if (position_ + 1 < all_.size()) return all_[++position_];
        fail(current_ + " needs a value");
        return {};
    }
    unsigned number(unsigned smallest, unsigned largest) {
        const QString option = current_;
        const QString text = value();
        bool isNumber = false;
        const unsigned number = text.toUInt(&isNumber);
        if (!failed_ && !(isNumber && number >= smallest && number <= largest)) {
            fail(QString("%1 takes a whole number from %2 to %3, not '%4'")
                     .arg(option)
                     .arg(smallest)
                     .arg(largest)
                     .arg(text));
        }
        return number;
    }
    void takeFolder(QString* folder) { takeOnly("folder", folder); }
    void takeFile(QString* file) { takeOnly("file", file); }
    void fail(const QString& reason) {
        if (!failed_) *why_ = reason;
        failed_ = true;
    }
    void require(bool given, const char* what) {
        if (!given) fail(QString("%1 is missing").arg(what));
    }
    bool failed() const { return failed_; }

private:
    void takeOnly(const char* what, QString* out) {
        if (current_.startsWith('-') && current_.size() > 1) {
            fail(QString("unknown option %1").arg(current_));
        } else if (!out->isEmpty()) {
            fail(QString("one %1 too many: %2").arg(what, current_));
        } else {
            *out = current_;
        }
    }

    QStringList all_;
    QString* why_;
    QString current_;
    int position_ = -1;
    bool failed_ = false;
};

constexpr unsigned kLargestSeed = 0xFFFFFFFFU;
constexpr unsigned kLargestFrameCount = 1000000;

}  // namespace

std::optional<CalibrateOptions> parseCalibrate(const QStringList& all, QString* why) {
    CalibrateOptions options;
    Arguments arguments(all, why);
    while (arguments.next()) {
        if (arguments.is("--camera")) {
            const QString camera = arguments.value();
            options.platformCamera = camera == "platform";
            if (camera != "platform" && camera != "third") arguments.fail("--camera takes third or platform");
        } else if (arguments.is("--seed")) {
            options.seed = arguments.number(0, kLargestSeed);
        } else if (arguments.is("--json")) {
            options.jsonFile = arguments.value();
        } else if (arguments.is("--verbose")) {
            options.verbose = true;
        } else if (arguments.is("--write")) {
            options.write = true;
        } else if (arguments.is("--state")) {
            options.stateFile = arguments.value();
        } else {
            arguments.takeFolder(&options.folder);
        }
    }
    arguments.require(!options.folder.isEmpty(), "a folder");
    if (arguments.failed()) return std::nullopt;
    return options;
}

std::optional<RecordOptions> parseRecord(const QStringList& all, QString* why) {
    RecordOptions options;
    Arguments arguments(all, why);
    while (arguments.next()) {
        if (arguments.is("--frames")) {
            options.frames = static_cast<int>(arguments.number(1, kLargestFrameCount));
        } else {
            arguments.takeFolder(&options.folder);
        }
    }
    arguments.require(!options.folder.isEmpty(), "a folder");
    arguments.require(options.frames > 0, "--frames");
    if (arguments.failed()) return std::nullopt;
    return options;
}

std::optional<InfoOptions> parseInfo(const QStringList& all, QString* why) {
    InfoOptions options;
    Arguments arguments(all, why);
    while (arguments.next())
        arguments.takeFolder(&options.folder);
    if (arguments.failed()) return std::nullopt;
    return options;
}

std::optional<BackupOptions> parseBackup(const QStringList& all, QString* why) {
    BackupOptions options;
    Arguments arguments(all, why);
    while (arguments.next())
        arguments.takeFile(&options.file);
    if (arguments.failed()) return std::nullopt;
    return options;
}

std::optional<RestoreOptions> parseRestore(const QStringList& all, QString* why) {
    RestoreOptions options;
    Arguments arguments(all, why);
    while (arguments.next())
        arguments.takeFile(&options.file);
    arguments.require(!options.file.isEmpty(), "a file");
    if (arguments.failed()) return std::nullopt;
    return options;
}

std::optional<SynthesizeOptions> parseSynthesize(const QStringList& all, QString* why) {
    SynthesizeOptions options;
    Arguments arguments(all, why);
    while (arguments.next()) {
        if (arguments.is("--world")) {
            options.world = arguments.value().toStdString();
        } else if (arguments.is("--seed")) {
            options.seed = arguments.number(0, kLargestSeed);
        } else if (arguments.is("--stills")) {
            options.stills = static_cast<int>(arguments.number(1, 999));
        } else if (arguments.is("--platform")) {
            options.platform = true;
        } else if (arguments.is("--no-baselines")) {
            options.baselines = false;
        } else {
            arguments.takeFolder(&options.folder);
        }
    }
    arguments.require(!options.folder.isEmpty(), "a folder");
    if (arguments.failed()) return std::nullopt;
    return options;
}

QString usageText() {
    return "usage: fieldcal-session calibrate DIR [--camera third|platform] [--seed N] [--json FILE|-] [--write]\n"
           "                                  [--state FILE] [--verbose]\n"
           "       fieldcal-session synthesize DIR [--world NAME] [--seed N] [--stills N] [--platform]\n"
           "                                  [--no-baselines]\n"
           "       fieldcal-session record DIR --frames N       from the connected module\n"
           "       fieldcal-session info [DIR]                  of a recording, or of the connected module\n"
           "       fieldcal-session backup [FILE]               keeps the connected module's parameter block\n"
           "       fieldcal-session restore FILE                writes such a block back\n";
}

}  // namespace fieldcal
