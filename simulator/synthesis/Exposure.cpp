#include "simulator/synthesis/Exposure.h"

#include "simulator/synthesis/NormalTable.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace fieldcal::synthesis {

namespace {

using Row = std::vector<float>;

/// Relative transmission of a lens over the image, 1 in the centre.
class Vignetting {
public:
    /// Every position of a row occurs `samples` times.
    Vignetting(cv::Size size, double lost, int samples)
        : lost_(static_cast<float>(lost)),
          middle_(static_cast<float>(size.height) * 0.5F),
          corner_(static_cast<float>(size.width * size.width + size.height * size.height) * 0.25F) {
        for (int x = 0; x < size.width; ++x) {
            const auto dx = static_cast<float>(x) - static_cast<float>(size.width) * 0.5F;
            acrossSquared_.insert(acrossSquared_.end(), static_cast<std::size_t>(samples), dx * dx);
        }
    }
    void row(int y, Row& left) const {
        const float dy = static_cast<float>(y) - middle_, downSquared = dy * dy, lost = lost_, corner = corner_;
        left.resize(acrossSquared_.size());
        for (std::size_t i = 0; i < left.size(); ++i)
            left[i] = 1 - lost * (acrossSquared_[i] + downSquared) / corner;
    }

private:
    float lost_, middle_, corner_;
    Row acrossSquared_;
};

/// Adds photon noise and read-out noise to the expected `levels`, in the sensor's unit.
void addNoise(float perUnit, float read, const Row& normal, Row& levels) {
    for (std::size_t i = 0; i < levels.size(); ++i)
        levels[i] = levels[i] + std::sqrt(levels[i] * perUnit + read) * normal[i];
}

/// Mean with the brightest 2 % removed.
float clippedMean(std::vector<float> values) {
    const auto cut = values.begin() + static_cast<std::ptrdiff_t>(values.size() * 49 / 50);
    std::nth_element(values.begin(), cut, values.end());
    double sum = 0;
    for (float v : values)
        sum += std::min(v, *cut);
    return static_cast<float>(sum / static_cast<double>(values.size()));
}

/// Exposure metering samples only some of the pixels.
template <typename Pixel, typename Light>
float meanLight(const cv::Mat_<Pixel>& image, Light light) {
    constexpr int step = 3;
    std::vector<float> values;
    values.reserve(image.total() / (step * step) + image.total() / step);
    for (int y = 0; y < image.rows; y += step)
        for (int x = 0; x < image.cols; x += step)
            values.push_back(light(image(y, x)));
    return std::max(1e-4F, clippedMean(std::move(values)));
}

/// The usual display gamma, from a table with sufficient resolution for eight bits.
class Gamma {
public:
    Gamma() {
        for (std::size_t i = 0; i < encoded_.size(); ++i) {
            const float v = static_cast<float>(i) / (kSteps - 1);
            const float encoded = v < 0.0031308F ? 12.92F * v : 1.055F * std::pow(v, 1 / 2.4F) - 0.055F;
            encoded_[i] = static_cast<std::uint8_t>(std::lround(encoded * 255));
        }
    }
    std::uint8_t operator()(float linear) const {
        return encoded_[static_cast<std::size_t>(cvRound(std::clamp(linear, 0.0F, 1.0F) * (kSteps - 1)))];
    }

private:
    static constexpr int kSteps = 1 << 15;
    std::array<std::uint8_t, kSteps> encoded_{};
};

void sharpen(ImageFrame32& frame, double strength) {
    cv::Mat image(static_cast<int>(frame.height()), static_cast<int>(frame.width()), CV_8UC4, frame.bytes());
    cv::Mat smooth;
    cv::GaussianBlur(image, smooth, cv::Size(), 1.0);
    cv::addWeighted(image, 1 + strength, smooth, -strength, 0, image);
}

}  // namespace

cv::Mat_<float> infraredBand(const cv::Mat_<cv::Vec4f>& image) {
    cv::Mat_<float> band;
    cv::extractChannel(image, band, 3);
    return band;
}

cv::Mat_<cv::Vec3f> colourBands(const cv::Mat_<cv::Vec4f>& image) {
    cv::Mat_<cv::Vec3f> bands(image.size());
    cv::mixChannels({image}, {bands}, {0, 0, 1, 1, 2, 2});
    return bands;
}

ImageFrame16 exposeInfrared(const cv::Mat_<float>& image, const InfraredSensor& sensor, double darkness,
                            Random& random) {
    return exposeInfrared(image, image, sensor, darkness, random);
}

ImageFrame16 exposeInfrared(const cv::Mat_<float>& image, const cv::Mat_<float>& metered, const InfraredSensor& sensor,
                            double darkness, Random& random) {
    NormalTable noise(random);
    const float mean = meanLight(metered, [](float v) { return v; });
    const auto gain = static_cast<float>(sensor.meanLevel * darkness) / mean, veil = static_cast<float>(sensor.veil);
    const auto perStep = static_cast<float>(1 / sensor.electronsPerStep);
    const auto read = static_cast<float>(sensor.readNoise * sensor.readNoise);
    const float own = 1 - veil, scattered = mean * veil;
    const Vignetting lens(image.size(), sensor.vignetting, 1);
    ImageFrame16 frame;
    frame.resize(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows));
    std::uint16_t* out = frame.pixels();
    Row levels, normal(static_cast<std::size_t>(image.cols));
    for (int y = 0; y < image.rows; ++y) {
        const float* light = image[y];
        lens.row(y, levels);
        for (std::size_t x = 0; x < levels.size(); ++x)
            levels[x] = (std::max(0.0F, light[x]) * own + scattered) * gain * levels[x];
        noise.next(normal);
        addNoise(perStep, read, normal, levels);
        for (const float seen : levels)
            *out++ = static_cast<std::uint16_t>(std::clamp(seen + 0.5F, 0.0F, 1023.0F));
    }
    return frame;
}

ImageFrame32 exposeColour(const cv::Mat_<cv::Vec3f>& image, const ColourSensor& sensor, double darkness,
                          Random& random) {
    NormalTable noise(random);
    const float mean = meanLight(image, [](const cv::Vec3f& p) { return p.dot({0.3F, 0.59F, 0.11F}); });
    static const Gamma displayed;
    const auto gain = static_cast<float>(sensor.meanLevel * darkness) / mean, veil = static_cast<float>(sensor.veil);
    const auto perUnit = static_cast<float>(1 / sensor.electronsAtFull);
    const auto read = static_cast<float>(sensor.readNoise * sensor.readNoise);
    const float own = 1 - veil, scattered = mean * veil;
    const Vignetting lens(image.size(), sensor.vignetting, 3);
    ImageFrame32 frame;
    frame.resize(static_cast<std::uint32_t>(image.cols), static_cast<std::uint32_t>(image.rows));
    std::uint8_t* out = frame.bytes();
    Row levels, normal(static_cast<std::size_t>(image.cols) * 3);
    cv::Mat_<cv::Vec3f> bgr;
    for (int y = 0; y < image.rows; ++y) {
        cv::cvtColor(image.row(y), bgr, cv::COLOR_RGB2BGR);
        const float* light = bgr[0]->val;
        lens.row(y, levels);
        for (std::size_t i = 0; i < levels.size(); ++i)
            levels[i] = (std::max(0.0F, light[i]) * own + scattered) * (gain * levels[i]);
        noise.next(normal);
        addNoise(perUnit, read, normal, levels);
        for (std::size_t i = 0; i < levels.size(); i += 3, out += 4) {
            for (std::size_t band = 0; band < 3; ++band)
                out[band] = displayed(levels[i + band]);
            out[3] = 255;
        }
    }
    if (sensor.sharpening > 0) sharpen(frame, sensor.sharpening);
    return frame;
}

}  // namespace fieldcal::synthesis
