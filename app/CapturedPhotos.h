#pragma once

#include "camera/ImageFrame.h"

#include <QImage>
#include <QQuickImageProvider>
#include <QString>

#include <map>
#include <mutex>

namespace fieldcal {

/// Small pictures of the photos that were taken last. Any thread.
class CapturedPhotos {
public:
    /// Keeps a small picture of `colour`. Returns the source under which the interface finds it until so many more have
    /// come that it is forgotten.
    QString add(const ImageFrame32& colour);
    /// Null when there is no such photo any more.
    QImage find(const QString& id) const;

private:
    mutable std::mutex lock_;
    std::map<int, QImage> photos_;
    int next_ = 0;
};

/// Hands them to the interface. `photos` must outlive it.
class PhotoProvider : public QQuickImageProvider {
public:
    static QString name() { return QStringLiteral("photos"); }
    explicit PhotoProvider(const CapturedPhotos& photos) : QQuickImageProvider(Image), photos_(photos) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const CapturedPhotos& photos_;
};

}  // namespace fieldcal
