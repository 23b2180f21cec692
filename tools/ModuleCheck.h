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

/// The findings of a check, complete or not.
struct ModuleFindings {
    session::ModuleInfo module;
    CheckLines lines;
    std::vector<OperationRecord> operations;
    std::map<int, QString> statusTexts;
    std::array<StreamStatistics, kStreamCount> streams;
    std::optional<ParameterBackup> block;
    QString ended;  ///< reason for ending early; empty when the check is complete
};

/// Calls every operation of the connected module on which the program relies, once, and checks whether the results
/// agree with each other and with what the cameras see. Nothing is written into the module unless the options ask for
/// it. One thread.
class ModuleCheck {
public:
    /// `showProgress` receives one line at a time for the operator; it may be empty.
    ModuleCheck(const CheckOptions& options, std::function<void(const QString&)> showProgress);

    ModuleFindings run();

private:
    bool open();
    bool look();
    void checkTexts();
    bool checkSizes();
    bool timeStreams(bool described);
    bool capture(session::SessionDescription description);
    bool startRecording(const session::SessionDescription& description);
    void keepStill(const session::FrameImages& images);
    void checkScene();
    void checkRest();
    void finish();
    void reportProgress(const QString& line);
    bool stop(const QString& why);
    void add(CheckLine line) { found_.lines.push_back(std::move(line)); }
    CheckLine operationLine() const;
    CheckLine timeLine() const;

    const CheckOptions options_;
    const std::function<void(const QString&)> showProgress_;
    const std::shared_ptr<OperationLog> log_ = std::make_shared<OperationLog>();
    ConnectedModule module_;
    ModuleFindings found_;
    std::optional<StreamWatch> watch_;
    std::vector<CameraStills> cameras_;
    Direction shown_ = Direction::Unknown;  ///< direction of the rotations that the scene shows
    std::unique_ptr<RecordingWriter> recording_;
    QString lastProgress_;
};

/// Returns the lines as a readable table.
QString findingsText(const ModuleFindings& findings);

/// Returns all findings as one JSON object.
QJsonObject findingsJson(const ModuleFindings& findings);

}  // namespace fieldcal
