#pragma once

#include <QOpenGLFunctions_2_1>

namespace fieldcal {

using FixedFunctionGl = QOpenGLFunctions_2_1;

/// Asks Qt for desktop OpenGL with depth and stencil. Before the application object is constructed.
void requestDesktopOpenGL();

/// The fixed-function pipeline of the current context. Null where it has none, which is logged once as critical.
/// Render thread.
FixedFunctionGl* fixedFunctionGl();

/// Keeps the attributes, server's and client's, for a scope.
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
