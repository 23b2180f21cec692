#include "render/PictureTexture.h"

namespace fieldcal {
namespace {

void setUpQuadDrawing(FixedFunctionGl& gl, float opacity, bool blend) {
    gl.glDisable(GL_DEPTH_TEST);
    gl.glDisable(GL_LIGHTING);
    gl.glEnable(GL_TEXTURE_2D);
    if (blend || opacity < 1) {
        gl.glEnable(GL_BLEND);
        gl.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    } else {
        gl.glDisable(GL_BLEND);
    }
    gl.glMatrixMode(GL_PROJECTION);
    gl.glLoadIdentity();
    gl.glOrtho(-1.0, 1.0, 1.0, -1.0, -1.0, 1.0);
    gl.glMatrixMode(GL_MODELVIEW);
    gl.glLoadIdentity();
    gl.glColor4f(1, 1, 1, opacity);
}

}  // namespace

void PictureTexture::create(FixedFunctionGl& gl, int width, int height) {
    gl.glGenTextures(1, &name_);
    gl.glBindTexture(GL_TEXTURE_2D, name_);
    gl.glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    // With repetition, the opposite border of the image would be blended into each border.
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void PictureTexture::upload(FixedFunctionGl& gl, const ImageFrame32& picture) {
    if (picture.empty()) return;
    const int width = static_cast<int>(picture.width());
    const int height = static_cast<int>(picture.height());
    if (!exists()) create(gl, width, height);
    gl.glBindTexture(GL_TEXTURE_2D, name_);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, picture.bytes());
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void PictureTexture::draw(FixedFunctionGl& gl, float opacity, bool blend, const QuadCorners& corners) const {
    setUpQuadDrawing(gl, opacity, blend);
    gl.glBindTexture(GL_TEXTURE_2D, name_);
    gl.glBegin(GL_QUADS);
    gl.glTexCoord2f(0, 0);
    gl.glVertex2f(corners.left, corners.top);
    gl.glTexCoord2f(1, 0);
    gl.glVertex2f(corners.right, corners.top);
    gl.glTexCoord2f(1, 1);
    gl.glVertex2f(corners.right, corners.bottom);
    gl.glTexCoord2f(0, 1);
    gl.glVertex2f(corners.left, corners.bottom);
    gl.glEnd();
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void PictureTexture::release(FixedFunctionGl& gl) {
    if (exists()) gl.glDeleteTextures(1, &name_);
    name_ = 0;
}

}  // namespace fieldcal
