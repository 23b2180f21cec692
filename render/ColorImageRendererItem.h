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

public slots:
    void slot_initializeGL();
    void slot_paintGL();
    void slot_resizeGL();
    void slot_update();
    void slot_handleWindowChanged(QQuickWindow* window);
};

}  // namespace fieldcal
