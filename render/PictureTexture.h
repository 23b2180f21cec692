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

/// One OpenGL texture with a picture's pixels. Everything on the render thread, with the context current.
class PictureTexture {
public:
    bool exists() const { return name_ != 0; }
    /// Creates the texture when there is none, and replaces size and pixels. An empty picture is ignored.
    void upload(FixedFunctionGl& gl, const ImageFrame32& picture);
    /// Draws the picture with its first row at the top. Attributes are the caller's to keep; the matrices are changed.
    /// `opacity` below 1 blends with what is there; below 1 or not, `blend` does it by the picture's own alpha.
    void draw(FixedFunctionGl& gl, float opacity = 1, bool blend = false, const QuadCorners& corners = {}) const;
    void release(FixedFunctionGl& gl);

private:
    void create(FixedFunctionGl& gl, int width, int height);

    GLuint name_ = 0;
};

}  // namespace fieldcal
