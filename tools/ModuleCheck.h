#pragma once

#include "tools/CheckLine.h"
#include "tools/CommandLine.h"
#include "tools/ConnectedModule.h"
#include "tools/ObservedModule.h"
#include "tools/RecordingWriter.h"
#include "tools/SceneCheck.h"
#include "tools/StillCapture.h"
#include "tools/StreamWatch.h"

#include <QJsonObject>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace fieldcal {

/// What a check found, whether it came to its end or not.
struct ModuleFindings {
    session::ModuleInfo module;
    CheckLines lines;
    std::vector<OperationRecord> operations;
    std::map<int, QString> statusTexts;
    std::array<StreamStatistics, kStreamCount> streams;
    std::optional<ParameterBackup> block;
    QString ended;  ///< why it ended early; empty otherwise
};

/// Asks the module that is connected everything that the program relies on, once, and looks whether the answers agree
/// with each other and with what the cameras see. Nothing is written into the module unless that is asked for. One
/// thread.
class ModuleCheck {
public:
    /// `say` receives one line for the person at the module; it may be empty.
    ModuleCheck(const CheckOptions& options, std::function<void(const QString&)> say);

    ModuleFindings run();

private:
    bool open();
    bool look();
    void checkTexts();
    bool checkSizes();
    bool timeStreams(bool described);
    bool capture(session::SessionDescription description);
    bool startRecording(const session::SessionDescription& description);
    void keepStill(const session::FramePictures& pictures);
    void checkScene();
    void checkRest();
    void finish();
    void say(const QString& line);
    bool stop(const QString& why);
    void add(CheckLine line) { found_.lines.push_back(std::move(line)); }
    CheckLine operationLine() const;
    CheckLine timeLine() const;

    const CheckOptions options_;
    const std::function<void(const QString&)> say_;
    const std::shared_ptr<OperationLog> log_ = std::make_shared<OperationLog>();
    ConnectedModule module_;
    ModuleFindings found_;
    std::optional<StreamWatch> watch_;
    std::vector<CameraStills> cameras_;
    Direction shown_ = Direction::Unknown;  ///< of the rotations, by the scene
    std::unique_ptr<RecordingWriter> recording_;
    QString lastSaid_;
};

/// The lines as a table for people.
QString findingsText(const ModuleFindings& findings);

/// All findings as one JSON object.
QJsonObject findingsJson(const ModuleFindings& findings);

}  // namespace fieldcal
