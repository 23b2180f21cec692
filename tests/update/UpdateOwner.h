#pragma once

#include "update/SoftwareUpdate.h"

#include <string>
#include <vector>

namespace fieldcal::testing {

/// The application with a user who accepts every update.
class Owner : public QObject, public UpdateListener {
    Q_OBJECT
public:
    void updateOffered(const QString& version) override {
        add("offered " + version.toStdString());
        update->download();
    }
    void updateProgressed(qint64 received, qint64 total) override {
        share = static_cast<double>(received) / static_cast<double>(total);
        if (events.back() != "progress") add("progress");
    }
    void updateInterrupted() override { add("interrupted"); }
    void updateReceived() override { add("received"); }
    void updateFailed(UpdateFailure failure) override {
        add("failed " + std::to_string(static_cast<int>(failure)));
        ended = true;
    }
    void installerStarted() override {
        add("started");
        ended = true;
    }
    SoftwareUpdate* update = nullptr;
    std::vector<std::string> events;
    double share = 0;
    bool ended = false;

private:
    void add(const std::string& line) { events.push_back(line); }

public slots:
    void slot_networkReplyLatestVersionJsonFinished(QNetworkReply* reply) { update->manifestReceived(reply); }
    void slot_timeoutNetworkReplyJson() { update->timedOut(); }
};

}  // namespace fieldcal::testing
