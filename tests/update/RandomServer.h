#pragma once

#include "tests/update/DownloadServer.h"

#include <QByteArray>

#include <random>

namespace fieldcal::testing {

/// A download server that follows a random script. Half of the servers are truthful: they have a few faults (broken,
/// stalled and refused connections, restarts, another part than was asked for, an older file at first), but everything
/// that they state is correct. All others have faults without end, and their statements may be false.
class RandomServer {
public:
    explicit RandomServer(std::uint32_t seed);

    QUrl manifest() const { return server_.url("/Version.json"); }
    bool isTruthful() const { return truthful_; }
    bool statesDigest() const { return statesDigest_; }
    const QByteArray& installer() const { return installer_; }
    const QByteArray& olderInstaller() const { return older_; }
    int requests() const { return static_cast<int>(server_.requests.size()); }

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool oneIn(int count) { return below(count) == 0; }

private:
    QByteArray bytes(int size);
    HttpAnswer answerManifest() const;
    HttpAnswer answer(const HttpRequest& request);
    /// What a server without faults answers.
    HttpAnswer whole(const QByteArray& file) const;
    HttpAnswer part(const QByteArray& file, int from) const;
    QByteArray tagOf(const QByteArray& file) const;
    void breakDown(HttpAnswer* answer, const HttpRequest& request);
    void lie(HttpAnswer* answer, const HttpRequest& request);
    HttpAnswer redirect(const QUrl& target) const;
    HttpAnswer restart();

    std::mt19937 random_;
    DownloadServer server_;
    const bool truthful_, statesDigest_;
    const QByteArray installer_, older_;
    const char* tagForm_;
    int faultsLeft_;
    bool isOld_;  ///< the older file is served until the first fault
};

}  // namespace fieldcal::testing
