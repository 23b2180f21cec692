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

public slots:
    void slot_initializeGL();
    void slot_paintGL();
    void slot_resizeGL();
    void slot_update();
    void slot_handleWindowChanged(QQuickWindow* window);

private:
    ImageFrame32 visible_;  ///< kept for its memory
};

}  // namespace fieldcal
