#pragma once

#include "render/ImageItem.h"

namespace fieldcal {

/// The live image of a colour camera. `ImageItem` describes where it is drawn and which threads are involved.
class ColorImageRendererItem : public ImageItem {
    Q_OBJECT
public:
    explicit ColorImageRendererItem(QQuickItem* parent = nullptr);

    /// RGBA. Any thread.
    void setFrame(const ImageFrame32& frame);

    Q_SLOT void slot_initializeGL();
    Q_SLOT void slot_paintGL();
    Q_SLOT void slot_resizeGL();
    Q_SLOT void slot_update();
    Q_SLOT void slot_handleWindowChanged(QQuickWindow* window);
};

}  // namespace fieldcal
