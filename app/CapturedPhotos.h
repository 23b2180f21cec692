#pragma once

#include "camera/ImageFrame.h"

#include <QImage>
#include <QQuickImageProvider>
#include <QString>

#include <map>
#include <mutex>

namespace fieldcal {

/// Keeps thumbnails of the most recent photos. Any thread.
class CapturedPhotos {
public:
    /// Adds a thumbnail of `colour`. Returns the source under which the interface finds it until it is displaced by
    /// newer ones.
    QString add(const ImageFrame32& colour);
    /// Returns null when the photo is no longer kept.
    QImage find(const QString& id) const;

private:
    mutable std::mutex lock_;
    std::map<int, QImage> photos_;
    int next_ = 0;
};

/// Provides the photos to the interface. `photos` must outlive it.
class PhotoProvider : public QQuickImageProvider {
public:
    static QString name() { return QStringLiteral("photos"); }
    explicit PhotoProvider(const CapturedPhotos& photos) : QQuickImageProvider(Image), photos_(photos) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const CapturedPhotos& photos_;
};

}  // namespace fieldcal
