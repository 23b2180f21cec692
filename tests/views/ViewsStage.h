#pragma once

#include "render/ColorImageRendererItem.h"
#include "render/DepthColorOverlayRenderer.h"
#include "render/InfraredImageRendererItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace fieldcal::testing {

/// The interface from the sources without the application; the test makes the calls that the application would make.
class ViewsStage {
public:
    ViewsStage() {
        qmlRegisterType<ColorImageRendererItem>("ImageRenderTypes", 1, 0, "ColorImageRendererItem");
        qmlRegisterType<InfraredImageRendererItem>("ImageRenderTypes", 1, 0, "InfraredImageRendererItem");
        qmlRegisterType<DepthColorOverlayRenderer>("ImageRenderTypes", 1, 0, "DepthColorOverlayRenderer");
        QQmlComponent document(&engine_, QUrl::fromLocalFile(FIELDCAL_VIEWS "/main.qml"));
        window_.reset(qobject_cast<QQuickWindow*>(document.create()));
        problem_ = document.errorString();
    }
    QQuickWindow* window() const { return window_.get(); }
    QQmlEngine& engine() { return engine_; }
    const QString& problem() const { return problem_; }

    void resize(const QSize& size) {
        window_->showNormal();
        window_->setGeometry(QRect(QPoint(0, 0), size));
        QTest::qWait(0);
    }
    void tell(const char* function, const QVariant& first = {}, const QVariant& second = {}) {
        const bool one = first.isValid(), two = second.isValid();
        QMetaObject::invokeMethod(window_.get(), function, one ? Q_ARG(QVariant, first) : QGenericArgument(),
                                  two ? Q_ARG(QVariant, second) : QGenericArgument());
    }
    /// In the application, the loop has made further transitions.
    void enter(int state) { tell("modifyUiToStateInQML", state); }
    void press(const char* button) { QMetaObject::invokeMethod(find(button), "clicked"); }
    QQuickItem* find(const char* name) const { return window_->findChild<QQuickItem*>(name); }

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    QString problem_;
};

}  // namespace fieldcal::testing
