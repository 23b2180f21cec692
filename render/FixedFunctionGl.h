#pragma once

#include <QOpenGLFunctions_2_1>

namespace fieldcal {

using FixedFunctionGl = QOpenGLFunctions_2_1;

/// Requests desktop OpenGL with depth and stencil buffers from Qt. To be called before the application object is
/// constructed.
void requestDesktopOpenGL();

/// Returns the fixed-function pipeline of the current context. Returns null where the context has none, which is logged
/// once as critical. Render thread.
FixedFunctionGl* fixedFunctionGl();

/// Saves the server's and the client's attributes, and restores them at the end of the scope.
class GlAttributes {
public:
    explicit GlAttributes(FixedFunctionGl& gl);
    ~GlAttributes();
    GlAttributes(const GlAttributes&) = delete;
    GlAttributes& operator=(const GlAttributes&) = delete;

private:
    FixedFunctionGl& gl_;
};

}  // namespace fieldcal
