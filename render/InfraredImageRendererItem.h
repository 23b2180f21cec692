#pragma once

#include "render/ImageItem.h"

namespace fieldcal {

/// The infrared camera's live picture, brightened for the eye. See `ImageItem`.
class InfraredImageRendererItem : public ImageItem {
    Q_OBJECT
public:
    explicit InfraredImageRendererItem(QQuickItem* parent = nullptr);

    /// 0..1023. One thread, any.
    void setFrame(const ImageFrame16& frame);

    Q_SLOT void slot_initializeGL();
    Q_SLOT void slot_paintGL();
    Q_SLOT void slot_resizeGL();
    Q_SLOT void slot_update();
    Q_SLOT void slot_handleWindowChanged(QQuickWindow* window);

private:
    ImageFrame32 visible_;  ///< kept for its memory
};

}  // namespace fieldcal
