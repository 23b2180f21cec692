#pragma once

#include "kxapi/KXAPI.h"
#include "kxapi/LibrarySearch.h"

#include <memory>
#include <string>

/// The companion library `CalibRectParamUpdater`, which contains the layout of the cameras' rotations in a parameter
/// block. It is found in the same way as `KXAPI`.
class KXRotationUpdater {
public:
    /// Returns null when the library or one of its functions is missing, and states the reason in `why`.
    static std::shared_ptr<const KXRotationUpdater> load(std::string* why,
                                                         kxapi::LibrarySearch search = kxapi::LibrarySearch::Installed);

    ~KXRotationUpdater();
    KXRotationUpdater(const KXRotationUpdater&) = delete;
    KXRotationUpdater& operator=(const KXRotationUpdater&) = delete;

    KXUpdateRotationFunction updateThirdCamera = nullptr;
    KXUpdateRotationFunction updatePlatformCamera = nullptr;

    /// For tests: a library whose functions are set by the caller.
    KXRotationUpdater() = default;

private:
    void* handle_ = nullptr;
};
