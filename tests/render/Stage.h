#pragma once

#include "render/ColorImageRendererItem.h"
#include "render/DepthColorOverlayRenderer.h"
#include "render/InfraredImageRendererItem.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace fieldcal::test {

/// A window of 640 x 480 with a page, as the program's interface has one.
class Stage : public ::testing::Test {
protected:
    /// `items`: QML of what is in the window.
    void open(const QByteArray& items, bool exposed = true) {
        qmlRegisterType<ColorImageRendererItem>("ImageRenderTypes", 1, 0, "ColorImageRendererItem");
        qmlRegisterType<InfraredImageRendererItem>("ImageRenderTypes", 1, 0, "InfraredImageRendererItem");
        qmlRegisterType<DepthColorOverlayRenderer>("ImageRenderTypes", 1, 0, "DepthColorOverlayRenderer");
        QQmlComponent page(&engine_);
        page.setData(
            "import QtQuick 2.15\nimport QtQuick.Window 2.15\nimport ImageRenderTypes 1.0\n"
            "Window { width: 640; height: 480; visible: true\n" +
                items + "}",
            {});
        window_.reset(qobject_cast<QQuickWindow*>(page.create()));
        ASSERT_NE(window_, nullptr) << page.errorString().toStdString();
        if (exposed) waitUntilExposed();
    }

    template <typename Item>
    Item& find(const char* name) {
        return *window_->findChild<Item*>(name);
    }

    void waitUntilExposed() { ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get())); }
    QQuickWindow& window() { return *window_; }
    void closeWindow() { window_.reset(); }

    /// What a person sees, in logical pixels: the middle of each one's device pixels.
    QRgb seenAt(int x, int y) const { return seenOnScreen(x * ratio() + ratio() / 2, y * ratio() + ratio() / 2); }
    QRgb seenOnScreen(int x, int y) const { return seen_.pixel(x, y) | 0xff000000U; }
    int ratio() const { return seen_.width() / 640; }

    void look() {
        seen_ = window_->grabWindow();
        ASSERT_EQ(seen_.size(), window_->size() * window_->effectiveDevicePixelRatio());
    }

    /// Center of the pixels that `isPart` accepts, in logical pixels of the whole window; pixel centres at .5.
    QPointF centreOf(const std::function<bool(QRgb)>& isPart) const {
        double sumX = 0, sumY = 0;
        int count = 0;
        for (int y = 0; y < seen_.height(); ++y) {
            for (int x = 0; x < seen_.width(); ++x) {
                if (!isPart(seenOnScreen(x, y))) continue;
                sumX += x + 0.5;
                sumY += y + 0.5;
                ++count;
            }
        }
        EXPECT_GT(count, 0);
        return QPointF(sumX, sumY) / std::max(count, 1) / ratio();
    }

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    QImage seen_;
};

/// An image of one colour.
inline ImageFrame32 plainPicture(int width, int height, QRgb colour) {
    ImageFrame32 picture;
    picture.resize(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height));
    for (std::size_t i = 0; i < picture.byteCount(); i += 4) {
        const std::array<int, 4> rgba{qRed(colour), qGreen(colour), qBlue(colour), 255};
        std::copy(rgba.begin(), rgba.end(), picture.bytes() + i);
    }
    return picture;
}

inline void paint(ImageFrame32* picture, const QRect& area, QRgb colour) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            std::uint8_t* pixel = picture->bytes() + 4 * (y * static_cast<int>(picture->width()) + x);
            pixel[0] = static_cast<std::uint8_t>(qRed(colour));
            pixel[1] = static_cast<std::uint8_t>(qGreen(colour));
            pixel[2] = static_cast<std::uint8_t>(qBlue(colour));
        }
    }
}

}  // namespace fieldcal::test
