#include "render/ImageItem.h"

#include <QOpenGLContext>
#include <QQuickWindow>

namespace fieldcal {

ImageItem::ImageItem(QQuickItem* parent) : QQuickItem(parent) {}

void ImageItem::show() {
    drawFlag_ = true;
    paintEnabled_ = 1;
}

void ImageItem::hide() {
    paintEnabled_ = 0;
}

void ImageItem::handOver(const ImageFrame32& picture) {
    const std::lock_guard lock(frameLock_);
    takePicture(picture);
}

void ImageItem::takePicture(const ImageFrame32& picture) {
    if (picture.empty()) return;
    picture_ = picture;
    newFrame_ = true;
}

void ImageItem::requestRepaint() {
    if (window() != nullptr) window()->update();
}

void ImageItem::followWindow(QQuickWindow* window) {
    if (followed_ != nullptr) followed_->disconnect(this);
    followed_ = window;
    if (window == nullptr) return;
    // Both signals come from the render thread. The main thread waits during the first one, so its geometry may be
    // read.
    connect(window, &QQuickWindow::beforeSynchronizing, this, &ImageItem::takeGeometry, Qt::DirectConnection);
    connect(window, &QQuickWindow::sceneGraphInvalidated, this, &ImageItem::releaseGraphics, Qt::DirectConnection);
    window->setClearBeforeRendering(false);
}

void ImageItem::takeGeometry() {
    const QQuickItem* area = parentItem();
    if (area == nullptr || window() == nullptr) {
        viewport_ = {};
        return;
    }
    pixelRatio_ = window()->effectiveDevicePixelRatio();
    const auto devicePixels = [this](qreal length) { return static_cast<int>(length * pixelRatio_); };
    viewport_ = {devicePixels(area->x()), devicePixels(area->y()), devicePixels(area->width()),
                 devicePixels(area->height())};
}

void ImageItem::upload(FixedFunctionGl& gl) {
    const std::lock_guard lock(frameLock_);
    if (newFrame_) texture_.upload(gl, picture_);
    newFrame_ = false;
    uploadMore(gl);
}

void ImageItem::paint() {
    FixedFunctionGl* gl = fixedFunctionGl();
    if (gl == nullptr || window() == nullptr) return;
    window()->resetOpenGLState();
    upload(*gl);
    if (texture_.exists() && paintEnabled_ != 0 && !viewport_.isEmpty()) {
        clear(*gl);
        gl->glUseProgram(0);
        if (drawFlag_) {
            const GlAttributes kept(*gl);
            drawContents(*gl);
        }
    }
    window()->resetOpenGLState();
}

void ImageItem::clear(FixedFunctionGl& gl) const {
    gl.glViewport(viewport_.x(), viewport_.y(), viewport_.width(), viewport_.height());
    gl.glScissor(viewport_.x(), viewport_.y(), viewport_.width(), viewport_.height());
    gl.glEnable(GL_SCISSOR_TEST);
    gl.glClearColor(0, 0, 0, 1);
    gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void ImageItem::drawContents(FixedFunctionGl& gl) {
    texture_.draw(gl);
}

void ImageItem::releaseGraphics() {
    if (QOpenGLContext::currentContext() == nullptr) return;
    FixedFunctionGl* gl = fixedFunctionGl();
    if (gl == nullptr) return;
    const std::lock_guard lock(frameLock_);
    texture_.release(*gl);
    releaseMore(*gl);
    newFrame_ = !picture_.empty();
}

}  // namespace fieldcal
