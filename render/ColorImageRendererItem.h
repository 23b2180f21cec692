#pragma once

#include "render/ImageItem.h"

namespace fieldcal {

/// A colour camera's live picture. See `ImageItem` for where it is drawn and on which threads.
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
