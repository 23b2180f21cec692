#include "render/ColorImageRendererItem.h"

#include <QQuickWindow>

namespace fieldcal {

ColorImageRendererItem::ColorImageRendererItem(QQuickItem* parent) : ImageItem(parent) {
    connect(this, &QQuickItem::windowChanged, this, &ColorImageRendererItem::slot_handleWindowChanged);
    slot_handleWindowChanged(window());
}

void ColorImageRendererItem::setFrame(const ImageFrame32& frame) {
    handOver(frame);
}

void ColorImageRendererItem::slot_initializeGL() {
    requestRepaint();
}

void ColorImageRendererItem::slot_paintGL() {
    paint();
}

void ColorImageRendererItem::slot_resizeGL() {
    requestRepaint();
}

void ColorImageRendererItem::slot_update() {
    requestRepaint();
}

void ColorImageRendererItem::slot_handleWindowChanged(QQuickWindow* window) {
    followWindow(window);
    if (window == nullptr) return;
    connect(window, &QQuickWindow::beforeRendering, this, &ColorImageRendererItem::slot_paintGL, Qt::DirectConnection);
}

}  // namespace fieldcal
