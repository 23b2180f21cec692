#pragma once

#include "camera/ImageFrame.h"
#include "render/PictureTexture.h"

#include <QPointer>
#include <QQuickItem>
#include <QRect>

#include <atomic>
#include <mutex>

namespace fieldcal {

/// What the image items share: a picture that is handed over, and its painting underneath the interface.
///
/// The picture fills the rectangle of the item's parent. The parent's y, taken as it stands, counts from the window's
/// lower edge: a parent of height h whose y is y shows its picture between y and y + h above that edge. Where nothing
/// is painted nothing is cleared either, so the interface has to cover the rest of the window.
/// An item lives as long as its window. Flags and pictures: any thread.
class ImageItem : public QQuickItem {
    Q_OBJECT
public:
    /// Painted, with its picture.
    void show();
    /// Not painted, and its rectangle not cleared.
    void hide();
    /// Non-zero: painting happens.
    void setPaintEnabled(int enabled) { paintEnabled_ = enabled; }
    int paintEnabled() const { return paintEnabled_; }
    /// False: the rectangle is only cleared to black.
    void setDrawFlag(bool draw) { drawFlag_ = draw; }
    bool drawFlag() const { return drawFlag_; }

protected:
    explicit ImageItem(QQuickItem* parent);

    /// Copies a picture for the next painting; an empty one is ignored. Asks for no repaint: whoever hands pictures
    /// over asks the window once for all of them.
    void handOver(const ImageFrame32& picture);
    /// The same for a caller who holds the frame lock.
    void takePicture(const ImageFrame32& picture);
    void requestRepaint();
    /// Leaves the window that was followed before. Main thread.
    void followWindow(QQuickWindow* window);
    /// Render thread, from `beforeRendering`.
    void paint();

    /// Steps of `paint` for items that draw more than their picture. The first is called with the frame lock held.
    virtual void uploadMore(FixedFunctionGl&) {}
    virtual void drawContents(FixedFunctionGl& gl);
    /// The context is about to go, and with it what was made in it.
    virtual void releaseMore(FixedFunctionGl&) {}

    const PictureTexture& texture() const { return texture_; }
    /// Device pixels. Render thread.
    QRect viewport() const { return viewport_; }
    std::mutex& frameLock() { return frameLock_; }

private:
    void takeGeometry();
    void releaseGraphics();
    void upload(FixedFunctionGl& gl);
    void clear(FixedFunctionGl& gl) const;

    std::mutex frameLock_;
    ImageFrame32 picture_;   ///< under the lock
    bool newFrame_ = false;  ///< under the lock
    std::atomic<bool> drawFlag_{true};
    std::atomic<int> paintEnabled_{1};
    PictureTexture texture_;
    QRect viewport_;
    QPointer<QQuickWindow> followed_;
};

}  // namespace fieldcal
