#pragma once

#include "camera/ImageFrame.h"
#include "render/FixedFunctionGl.h"

namespace fieldcal {

/// Corners in normalized device coordinates with y growing downwards: (-1, -1) is the top left of the viewport.
struct QuadCorners {
    float left = -1;
    float top = -1;
    float right = 1;
    float bottom = 1;
};

/// An OpenGL texture with an image's pixels. Everything on the render thread, with the context current.
class PictureTexture {
public:
    bool exists() const { return name_ != 0; }
    /// Creates the texture if needed, and replaces size and pixels. An empty image is ignored.
    void upload(FixedFunctionGl& gl, const ImageFrame32& picture);
    /// Draws the image with its first row at the top. The caller saves the attributes; the matrices are changed. An
    /// `opacity` below 1 blends with the present content; `blend` blends by the image's own alpha in addition.
    void draw(FixedFunctionGl& gl, float opacity = 1, bool blend = false, const QuadCorners& corners = {}) const;
    void release(FixedFunctionGl& gl);

private:
    void create(FixedFunctionGl& gl, int width, int height);

    GLuint name_ = 0;
};

}  // namespace fieldcal
