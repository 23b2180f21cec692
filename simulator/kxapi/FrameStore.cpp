#include "simulator/kxapi/FrameStore.h"

#include <utility>

namespace kxsim {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{160} << 20;

std::size_t byteCount(const fieldcal::session::FrameImages& frame) {
    return frame.infrared.byteCount() + frame.right.byteCount() + frame.depth.byteCount() + frame.third.byteCount() +
           frame.platform.size();
}

}  // namespace

FrameStore::FrameStore(std::string folder, const fieldcal::session::SessionDescription& description)
    : folder_(std::move(folder)), description_(description), kept_(description.frames.size()) {}

const fieldcal::session::FrameImages* FrameStore::images(std::size_t index, std::string* why) {
    if (kept_[index] != nullptr) return kept_[index].get();
    auto frame = std::make_unique<Images>();
    if (!readImages(folder_, description_, index, frame.get(), why)) return nullptr;
    const std::size_t bytes = byteCount(*frame);
    const bool fits = keptBytes_ + bytes <= kMaxBytes;
    if (fits) keptBytes_ += bytes;
    std::unique_ptr<Images>& place = fits ? kept_[index] : last_;
    place = std::move(frame);
    return place.get();
}

}  // namespace kxsim
