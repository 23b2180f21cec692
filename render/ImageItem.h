#pragma once

#include "camera/ImageFrame.h"
#include "render/PictureTexture.h"

#include <QPointer>
#include <QQuickItem>
#include <QRect>

#include <atomic>
#include <mutex>

namespace fieldcal {

/// Base of the image items: receives an image and paints it underneath the interface.
///
/// The image fills the rectangle of the item's parent. The parent's y is interpreted as counting from the lower edge of
/// the window: a parent of height h at y shows its image between y and y + h above that edge. Areas without a painted
/// image are not cleared, so the interface has to cover the rest of the window. An item lives as long as its window.
/// Flags and images: any thread.
class ImageItem : public QQuickItem {
    Q_OBJECT
public:
    /// Paints the item with its image.
    void show();
    /// Neither paints the item nor clears its rectangle.
    void hide();
    /// Painting is enabled when the value is not zero.
    void setPaintEnabled(int enabled) { paintEnabled_ = enabled; }
    int paintEnabled() const { return paintEnabled_; }
    /// When false, the rectangle is only cleared to black.
    void setDrawFlag(bool draw) { drawFlag_ = draw; }
    bool drawFlag() const { return drawFlag_; }

protected:
    explicit ImageItem(QQuickItem* parent);

    /// Copies an image for the next painting; an empty one is ignored. No repaint is requested, because the caller
    /// requests one repaint of the window for all images.
    void handOver(const ImageFrame32& picture);
    /// The same for a caller that holds the frame lock.
    void takePicture(const ImageFrame32& picture);
    void requestRepaint();
    /// Follows this window instead of the previous one. Main thread.
    void followWindow(QQuickWindow* window);
    /// Called on the render thread from `beforeRendering`.
    void paint();

    /// Steps of `paint` for items that draw more than their image. The first one is called with the frame lock held.
    virtual void uploadMore(FixedFunctionGl&) {}
    virtual void drawContents(FixedFunctionGl& gl);
    /// Called before the context is destroyed, to release the objects created in it.
    virtual void releaseMore(FixedFunctionGl&) {}

    const PictureTexture& texture() const { return texture_; }
    /// Device pixels. Render thread.
    QRect viewport() const { return viewport_; }
    /// Device pixels per logical pixel. Render thread.
    double pixelRatio() const { return pixelRatio_; }
    std::mutex& frameLock() { return frameLock_; }

private:
    void takeGeometry();
    void releaseGraphics();
    void upload(FixedFunctionGl& gl);
    void clear(FixedFunctionGl& gl) const;

    std::mutex frameLock_;
    ImageFrame32 picture_;   ///< guarded by the lock
    bool newFrame_ = false;  ///< guarded by the lock
    std::atomic<bool> drawFlag_{true};
    std::atomic<int> paintEnabled_{1};
    PictureTexture texture_;
    QRect viewport_;
    double pixelRatio_ = 1;
    QPointer<QQuickWindow> followed_;
};

}  // namespace fieldcal
