#include "simulator/synthesis/StreetThings.h"

#include "simulator/synthesis/FacadeStyle.h"

#include <array>

namespace fieldcal::synthesis {

namespace {

Spectrum upright(const Spectrum& reflectance, const Light& light, float sun) {
    return reflectance * (light.sky + light.sun * sun);
}

Spectrum carPaint(Random& random) {
    static const std::array<Spectrum, 6> paints{{{0.70F, 0.70F, 0.69F, 0.62F},
                                                 {0.03F, 0.03F, 0.035F, 0.04F},
                                                 {0.40F, 0.05F, 0.05F, 0.50F},
                                                 {0.06F, 0.10F, 0.28F, 0.30F},
                                                 {0.32F, 0.33F, 0.34F, 0.34F},
                                                 {0.04F, 0.045F, 0.05F, 0.42F}}};
    return paints[random.index(6)].scaled(random.between(0.85F, 1.1F), random.between(0.8F, 1.15F));
}

void paintWheel(Canvas& canvas, float x, const Light& light) {
    canvas.ellipse({x, 0.31F}, 0.31F, 0.31F, 0, upright({0.03F, 0.03F, 0.03F, 0.05F}, light, 0.4F));
    canvas.ellipse({x, 0.31F}, 0.18F, 0.18F, 0, upright({0.40F, 0.40F, 0.41F, 0.38F}, light, 0.5F));
    canvas.ellipse({x, 0.31F}, 0.07F, 0.07F, 0, upright({0.15F, 0.15F, 0.15F, 0.15F}, light, 0.5F));
}

void paintCarBody(Canvas& canvas, const Spectrum& paint, const Light& light) {
    const Spectrum skyMirror{0.10F, 0.13F, 0.17F, 0.03F};
    canvas.polygon({{-2.1F, 0.3F}, {2.1F, 0.3F}, {2.12F, 0.72F}, {1.3F, 0.92F}, {-1.95F, 0.95F}, {-2.12F, 0.7F}},
                   upright(paint, light, 0.45F));
    canvas.polygon({{-1.6F, 0.93F}, {-1.15F, 1.42F}, {0.35F, 1.45F}, {1.25F, 0.92F}},
                   upright(paint, light, 0.7F) + skyMirror * 0.5F);
    canvas.polygon({{-2.1F, 0.72F}, {2.1F, 0.72F}, {1.9F, 0.78F}, {-2.0F, 0.78F}},
                   upright(paint, light, 0.8F) + skyMirror);
    canvas.polygon({{-2.1F, 0.25F}, {2.1F, 0.25F}, {2.08F, 0.38F}, {-2.08F, 0.38F}},
                   upright({0.05F, 0.05F, 0.05F, 0.06F}, light, 0.2F));
    const Spectrum glass = Spectrum{0.02F, 0.02F, 0.02F, 0.03F} + skyMirror;
    canvas.polygon({{-1.4F, 0.97F}, {-1.05F, 1.34F}, {-0.4F, 1.36F}, {-0.4F, 0.97F}}, glass);
    canvas.polygon({{-0.32F, 0.97F}, {-0.32F, 1.36F}, {0.3F, 1.36F}, {0.98F, 0.97F}}, glass);
    canvas.box(-2.1F, 0.6F, -1.95F, 0.74F, upright({0.5F, 0.06F, 0.05F, 0.45F}, light, 0.6F));
    canvas.box(1.9F, 0.58F, 2.08F, 0.7F, upright({0.8F, 0.8F, 0.78F, 0.7F}, light, 0.6F));
}

}  // namespace

Sprite paintCar(const Light& light, float texelsPerMetre, Random& random) {
    Canvas canvas(4.6F, 1.6F, texelsPerMetre);
    canvas.box(-2.1F, 0, 2.1F, 0.32F, {0.012F, 0.013F, 0.015F, 0.008F});
    paintCarBody(canvas, carPaint(random), light);
    paintWheel(canvas, -1.35F, light);
    paintWheel(canvas, 1.35F, light);
    return canvas.finish();
}

Sprite paintLamp(const Light& light, float texelsPerMetre, Random& random) {
    const float height = random.between(4.5F, 7.5F);
    Canvas canvas(2.4F, height + 0.5F, texelsPerMetre);
    const Spectrum dark = upright({0.08F, 0.09F, 0.09F, 0.10F}, light, 0.15F);
    const Spectrum bright = upright({0.16F, 0.17F, 0.17F, 0.17F}, light, 0.9F);
    canvas.bar({0, 0}, {0, height}, 0.17F, 0.10F, dark);
    canvas.bar({-0.03F, 0}, {-0.02F, height}, 0.07F, 0.04F, bright);
    canvas.box(-0.16F, 0, 0.16F, 0.7F, dark);
    canvas.bar({0, height}, {0.9F, height + 0.15F}, 0.08F, 0.06F, dark);
    canvas.box(0.6F, height + 0.05F, 1.1F, height + 0.22F, bright);
    return canvas.finish();
}

Sprite paintBoard(const Light& light, float texelsPerMetre, Random& random) {
    constexpr float left = -0.9F, foot = 1.1F, width = 1.8F, height = 1.2F, line = 0.4F;
    Canvas canvas(2.1F, 2.5F, texelsPerMetre);
    canvas.box(-0.75F, 0, -0.65F, 2.3F, upright({0.2F, 0.2F, 0.2F, 0.2F}, light, 0.4F));
    canvas.box(0.65F, 0, 0.75F, 2.3F, upright({0.2F, 0.2F, 0.2F, 0.2F}, light, 0.4F));
    const float sun = random.between(0.1F, 0.9F), step = 1.0F / texelsPerMetre;
    const auto seed = static_cast<std::uint32_t>(random.bits());
    const int columns = static_cast<int>(width / step), rows = static_cast<int>(height / step);
    for (int i = 0; i < columns * rows; ++i) {
        const int column = i % columns, texelRow = i / columns;
        const float x = static_cast<float>(column) * step, y = static_cast<float>(texelRow) * step;
        const auto row = static_cast<std::uint32_t>(y / line);
        const Spectrum ink = signReflectance(seed + row * 8U, x, y - static_cast<float>(row) * line, line);
        canvas.box(left + x, foot + y, left + x + step, foot + y + step, upright(ink, light, sun));
    }
    return canvas.finish();
}

Sprite paintCables(const Light& light, float texelsPerMetre, Random& random) {
    constexpr float half = 10, height = 10;
    constexpr int pieces = 24;
    Canvas canvas(2 * half, height, texelsPerMetre);
    const Spectrum dark = upright({0.05F, 0.05F, 0.05F, 0.06F}, light, 0.4F);
    for (int cable = 0; cable < 3; ++cable) {
        const float left = random.between(5, 9.5F), right = random.between(5, 9.5F), sag = random.between(0.2F, 1.0F);
        const auto at = [&](int i) {
            const float t = static_cast<float>(i) / pieces;
            return cv::Point2f(-half + 2 * half * t, left + (right - left) * t - 4 * sag * t * (1 - t));
        };
        for (int i = 0; i < pieces; ++i)
            canvas.bar(at(i), at(i + 1), 0.04F, 0.04F, dark);
    }
    return canvas.finish();
}

}  // namespace fieldcal::synthesis
