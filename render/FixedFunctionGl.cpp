#include "render/FixedFunctionGl.h"

#include <QCoreApplication>
#include <QDebug>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <mutex>

namespace fieldcal {

void requestDesktopOpenGL() {
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    QSurfaceFormat::setDefaultFormat(format);
}

FixedFunctionGl* fixedFunctionGl() {
    static std::once_flag logged;
    QOpenGLContext* context = QOpenGLContext::currentContext();
    FixedFunctionGl* gl = nullptr;
    if (context != nullptr && !context->isOpenGLES()) gl = context->versionFunctions<FixedFunctionGl>();
    if (gl == nullptr || !gl->initializeOpenGLFunctions()) {
        std::call_once(logged, [context] {
            qCritical() << "No desktop OpenGL with fixed-function drawing: camera pictures cannot be shown. Context:"
                        << (context != nullptr ? context->format() : QSurfaceFormat());
        });
        return nullptr;
    }
    return gl;
}

GlAttributes::GlAttributes(FixedFunctionGl& gl) : gl_(gl) {
    gl_.glPushAttrib(GL_ALL_ATTRIB_BITS);
    gl_.glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
}

GlAttributes::~GlAttributes() {
    gl_.glPopClientAttrib();
    gl_.glPopAttrib();
}

}  // namespace fieldcal
