#include "render/InfraredImageRendererItem.h"

#include "render/InfraredPicture.h"

#include <QQuickWindow>

namespace fieldcal {

InfraredImageRendererItem::InfraredImageRendererItem(QQuickItem* parent) : ImageItem(parent) {
    connect(this, &QQuickItem::windowChanged, this, &InfraredImageRendererItem::slot_handleWindowChanged);
    slot_handleWindowChanged(window());
}

void InfraredImageRendererItem::setFrame(const ImageFrame16& frame) {
    infraredToPicture(frame, &visible_);
    handOver(visible_);
}

void InfraredImageRendererItem::slot_initializeGL() {
    requestRepaint();
}

void InfraredImageRendererItem::slot_paintGL() {
    paint();
}

void InfraredImageRendererItem::slot_resizeGL() {
    requestRepaint();
}

void InfraredImageRendererItem::slot_update() {
    requestRepaint();
}

void InfraredImageRendererItem::slot_handleWindowChanged(QQuickWindow* window) {
    followWindow(window);
    if (window == nullptr) return;
    connect(window, &QQuickWindow::beforeRendering, this, &InfraredImageRendererItem::slot_paintGL,
            Qt::DirectConnection);
}

}  // namespace fieldcal
