#pragma once

#include "render/ImageItem.h"

namespace fieldcal {

/// The infrared camera's live image, brightened for display. See `ImageItem`.
class InfraredImageRendererItem : public ImageItem {
    Q_OBJECT
public:
    explicit InfraredImageRendererItem(QQuickItem* parent = nullptr);

    /// 0..1023. From one thread, which may be any.
    void setFrame(const ImageFrame16& frame);

    Q_SLOT void slot_initializeGL();
    Q_SLOT void slot_paintGL();
    Q_SLOT void slot_resizeGL();
    Q_SLOT void slot_update();
    Q_SLOT void slot_handleWindowChanged(QQuickWindow* window);

private:
    ImageFrame32 visible_;  ///< a member so that its memory is reused
};

}  // namespace fieldcal
