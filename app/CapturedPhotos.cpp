#include "app/CapturedPhotos.h"

namespace fieldcal {
namespace {

constexpr int kWidth = 256;
constexpr std::size_t kKept = 16;  // enough for two attempts with the largest number of photos

}  // namespace

QString CapturedPhotos::add(const ImageFrame32& colour) {
    const QImage whole(colour.bytes(), static_cast<int>(colour.width()), static_cast<int>(colour.height()),
                       static_cast<int>(4 * colour.width()), QImage::Format_RGBX8888);
    QImage small = whole.scaledToWidth(kWidth, Qt::SmoothTransformation);
    const std::lock_guard lock(lock_);
    photos_.emplace(next_, std::move(small));
    if (photos_.size() > kKept) photos_.erase(photos_.begin());
    return QStringLiteral("image://%1/%2").arg(PhotoProvider::name()).arg(next_++);
}

QImage CapturedPhotos::find(const QString& id) const {
    const std::lock_guard lock(lock_);
    const auto found = photos_.find(id.toInt());
    return found == photos_.end() ? QImage() : found->second;
}

QImage PhotoProvider::requestImage(const QString& id, QSize* size, const QSize& /*requestedSize*/) {
    QImage image = photos_.find(id);
    if (size != nullptr) *size = image.size();
    return image;
}

}  // namespace fieldcal
