// What `Sensor` writes into the module's flash.
#include "devices/FlashRewrite.h"
#include "devices/ParameterBackup.h"
#include "devices/Sensor.h"

#include <utility>

namespace fieldcal {
namespace {

constexpr double kRotationTolerance = 1e-4;

using Block = KXCalibRectParameters;

/// One camera's rotation in `block`. The call may be given up, so that it works on its own copies.
bool update(Sensor& sensor, const KXUpdateRotationFunction function, const Rotation& rotation,
            const float* rectifyColour, Block* block) {
    const auto raw = rawRotation(rotation, rectifyColour, block->rectificationInfrared);
    const auto in = std::make_shared<const Block>(*block);
    const auto out = std::make_shared<Block>(*block);
    const auto call = [=, library = sensor.rotationUpdater()] {
        function(in.get(), raw.data(), out.get());
        return true;
    };
    if (!sensor.ask(call)) return false;
    *block = *out;
    return true;
}

bool rectifies(const Block& block, const char* which, bool withPlatform, QString* why) {
    const char* wrong = matrixThatIsNoRotation(block, withPlatform);
    if (wrong != nullptr)
        *why = QString("The %1 parameter block cannot be used: its %2 is no rotation").arg(which, wrong);
    return wrong == nullptr;
}

}  // namespace

bool Sensor::updateRotation(const Rotation& third, const Rotation& platform) {
    writeBack_ = {};
    if (!mayWrite()) return false;
    if (!rotationsInFlash_) return refuseToWrite("its parameters have not been read");
    const bool withPlatform = rotationsInFlash_->platform.has_value();
    if (!isRotation(third.data(), kRotationTolerance)) return refuseToWrite("the in-module rotation is no rotation");
    if (withPlatform && !isRotation(platform.data(), kRotationTolerance)) {
        return refuseToWrite("the out-of-module rotation is no rotation");
    }
    // A camera whose rotation is the one in the flash is left as it is there: composing it anew would only move it by
    // rounding, a little further with every save.
    const bool thirdMoves = third != rotationsInFlash_->third;
    const bool platformMoves = withPlatform && platform != *rotationsInFlash_->platform;
    const auto change = [&](const Block& present, Block* wanted, QString* why) {
        if (!rectifies(present, "present", withPlatform, why)) return false;
        *wanted = present;
        if ((!thirdMoves || update(*this, updater_->updateThirdCamera, third, present.rectificationThird, wanted)) &&
            (!platformMoves ||
             update(*this, updater_->updatePlatformCamera, platform, present.rectificationPlatform, wanted))) {
            return rectifies(*wanted, "new", withPlatform, why);
        }
        *why = faultText();
        return false;
    };
    if (!rewriteFlash(change)) return false;
    rotationsInFlash_->third = third;
    if (withPlatform) rotationsInFlash_->platform = platform;
    return true;
}

bool Sensor::restoreParameters(const KXCalibRectParameters& block) {
    writeBack_ = {};
    if (!mayWrite()) return false;
    QString why;
    if (!rectifies(block, "given", false, &why)) return refuseToWrite(why);
    const auto change = [&](const Block&, Block* wanted, QString*) {
        *wanted = block;
        return true;
    };
    const bool restored = rewriteFlash(change);
    // What the module reports from now on has to be read anew before a rotation can be written.
    if (writeBack_.flash != WriteBackReport::Flash::Untouched) rotationsInFlash_.reset();
    return restored;
}

bool Sensor::mayWrite() {
    if (faulted_) return refuseToWrite("the camera has failed before");
    if (!opened_) return refuseToWrite("the camera is not open");
    return true;
}

bool Sensor::refuseToWrite(const QString& reason) {
    writeBack_.reason = "Nothing is written to the camera: " + reason;
    qCritical("%s", qUtf8Printable(writeBack_.reason));
    return false;
}

/// Saving comes after the stop, which must not end it.
bool Sensor::rewriteFlash(const std::function<bool(const Block&, Block*, QString*)>& change) {
    const std::atomic<bool>* stop = std::exchange(stop_, nullptr);
    FlashRewrite rewrite(*this, environment_.dataFolder + "/backups", &writeBack_);
    const bool done = rewrite.run(change);
    stop_ = stop;
    return done;
}

}  // namespace fieldcal
