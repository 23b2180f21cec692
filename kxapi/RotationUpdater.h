#pragma once

#include "kxapi/KXAPI.h"

#include <memory>
#include <string>

/// The companion library `CalibRectParamUpdater`, which knows where a parameter block keeps the cameras' rotations.
/// Found as `KXAPI` is.
class KXRotationUpdater {
public:
    /// Null when the library or one of its functions is missing; `why` then says which.
    static std::shared_ptr<const KXRotationUpdater> load(std::string* why);

    ~KXRotationUpdater();
    KXRotationUpdater(const KXRotationUpdater&) = delete;
    KXRotationUpdater& operator=(const KXRotationUpdater&) = delete;

    KXUpdateRotationFunction updateThirdCamera = nullptr;
    KXUpdateRotationFunction updatePlatformCamera = nullptr;

    /// For tests: a library whose functions the caller fills in.
    KXRotationUpdater() = default;

private:
    void* handle_ = nullptr;
};
