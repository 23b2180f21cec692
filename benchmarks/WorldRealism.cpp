// Compares the difficulty of image pairs for the matcher between photographs and rendered worlds: corners, matches, the
// share of correct verified matches, and the similarity of infrared and visible light at corresponding points.
//   world-realism STILLS SEEDS NAME...      NAME: a folder with a recording, or a world
//   world-realism --each ...                one line per pair instead of one per name

#include "benchmarks/BenchmarkData.h"
#include "diagnostics/Logger.h"
#include "engine/CornerSet.h"
#include "engine/CrossModalMatcher.h"
#include "engine/MatchVerification.h"
#include "engine/Rotation.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/synthesis/Rotation.h"
#include "simulator/world/Cameras.h"
#include "simulator/world/Worlds.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace fieldcal;

/// The true mapping from the infrared to the colour image, in pixels of the delivered images.
struct Truth {
    const BenchmarkData& data;
    Eigen::Vector3d translation = Eigen::Vector3d::Zero();  ///< metres
    cv::Mat_<float> depth{};                                ///< metres along the axis; empty or 0: infinitely far

    cv::Point2f colourPoint(const cv::Point2f& infrared) const {
        const auto &from = data.cameras.infrared, &to = data.cameras.colour;
        const Eigen::Vector3d ray((infrared.x - from.cx) / from.fx, (infrared.y - from.cy) / from.fy, 1);
        const cv::Point at(cvRound(infrared.x), cvRound(infrared.y));
        const float z = cv::Rect({}, depth.size()).contains(at) ? depth(at) : 0;
        Eigen::Vector3d seen = data.truth * ray;
        if (z > 0) seen += translation / z;
        return data.cameras.deliveredColourPoint({static_cast<float>(to.fx * seen.x() / seen.z() + to.cx),
                                                  static_cast<float>(to.fy * seen.y() / seen.z() + to.cy)});
    }
};

/// The figures printed for one pair, in the order of the columns.
struct Figures {
    double infraredCorners = 0, colourCorners = 0, matched = 0, verified = 0;
    double rightPercent = 0, rightAtInfinityPercent = 0, medianPx = 0;
    double zncc10 = 0, zncc50 = 0, zncc90 = 0;
};
using Column = double Figures::*;
constexpr std::array<Column, 10> kColumns{&Figures::infraredCorners, &Figures::colourCorners,
                                          &Figures::matched,         &Figures::verified,
                                          &Figures::rightPercent,    &Figures::rightAtInfinityPercent,
                                          &Figures::medianPx,        &Figures::zncc10,
                                          &Figures::zncc50,          &Figures::zncc90};

double quantile(std::vector<double> values, double share) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, static_cast<std::size_t>(share * static_cast<double>(values.size())))];
}

/// Zero-mean normalised cross-correlation of the 9 x 9 patches that the verification compares.
double correlation(const cv::Mat& a, cv::Point2f atA, const cv::Mat& b, cv::Point2f atB) {
    cv::Mat patchA, patchB, score;
    cv::getRectSubPix(a, {9, 9}, atA, patchA);
    cv::getRectSubPix(b, {9, 9}, atB, patchB);
    cv::matchTemplate(patchA, patchB, score, cv::TM_CCOEFF_NORMED);
    return score.at<float>(0, 0);
}

void compareLight(const vq::CrossModalMatcher& matcher, const Truth& truth, Figures* figures) {
    std::vector<double> alike;
    const cv::Rect2f inside(5, 5, static_cast<float>(matcher.grey().cols) - 10,
                            static_cast<float>(matcher.grey().rows) - 10);
    for (const auto& point : vq::findCorners(matcher.infrared(), 1000).points) {
        const cv::Point2f there = truth.colourPoint(point);
        if (inside.contains(there)) alike.push_back(correlation(matcher.infrared(), point, matcher.grey(), there));
    }
    figures->zncc10 = quantile(alike, 0.1), figures->zncc50 = quantile(alike, 0.5);
    figures->zncc90 = quantile(alike, 0.9);
}

cv::Mat view(const vq::ImagePairRecord& record, int type) {
    return {static_cast<int>(record.height), static_cast<int>(record.width), type,
            const_cast<std::uint8_t*>(record.pixels.data())};
}

Figures tell(const BenchmarkData& data, std::size_t pair, const Truth& truth) {
    constexpr float rightPx = 3;
    vq::CrossModalMatcher matcher;
    matcher.setup(data.cameras, vq::anglesFromRotation(data.factory), {}, 0.2);
    matcher.prepare(view(data.infrared[pair], CV_16UC1), view(data.colour[pair], CV_8UC4), 1);
    std::vector<cv::Point2f> colour, infrared;
    matcher.findCrossModalMatches(&colour, &infrared);
    Figures figures;
    figures.infraredCorners = matcher.statistics().infraredCorners;
    figures.colourCorners = matcher.statistics().colourCorners;
    figures.matched = static_cast<double>(colour.size());
    vq::verifyMatches(matcher.grey(), matcher.infrared(), &colour, &infrared);
    figures.verified = static_cast<double>(colour.size());
    const Truth infinity{data};
    std::vector<double> errors;
    double atInfinity = 0;
    for (std::size_t i = 0; i < colour.size(); ++i) {
        const double error = cv::norm(truth.colourPoint(infrared[i]) - colour[i]);
        if (error <= rightPx) errors.push_back(error);
        atInfinity += cv::norm(infinity.colourPoint(infrared[i]) - colour[i]) <= rightPx ? 1 : 0;
    }
    figures.rightPercent = 100 * static_cast<double>(errors.size()) / std::max(1.0, figures.verified);
    figures.rightAtInfinityPercent = 100 * atInfinity / std::max(1.0, figures.verified);
    figures.medianPx = quantile(errors, 0.5);
    compareLight(matcher, truth, &figures);
    return figures;
}

std::vector<Figures> figuresOfRecording(const std::string& folder) {
    const BenchmarkData data = loadRecording(folder);
    std::vector<Figures> all;
    for (std::size_t i = 0; i < data.infrared.size(); ++i)
        all.push_back(tell(data, i, {data}));
    return all;
}

std::vector<Figures> figuresOfWorld(const std::string& name, std::uint64_t seed, int stills) {
    const auto rig = synthesis::drawRig(seed, {});
    const world::Cameras cameras(rig);
    const auto stage = world::buildWorld(name, seed);
    BenchmarkData data = camerasOf(rig);
    std::vector<Figures> all;
    for (int i = 0; stage && i < stills; ++i) {
        const double pitch = stage->lowestPitchDeg + (stage->highestPitchDeg - stage->lowestPitchDeg) * (i % 3) / 2;
        const world::Moment moment{
            {synthesis::rotationFromAngles({-pitch, 0, 0}) * synthesis::rotationFromAngles({0, 25.0 * i, 0}),
             {0, 0, 0}}};
        const auto seen = cameras.see(*stage->world, moment, moment, false);
        synthesis::StillSettings settings;
        settings.darkness = stage->darkness;
        session::FrameImages images;
        images.infrared = infraredFrame(seen, settings, seed * 100 + static_cast<unsigned>(i));
        images.third = thirdFrame(seen, settings, seed * 100 + static_cast<unsigned>(i));
        addPair(images, &data);
        const auto& t = rig.third.translation;
        all.push_back(
            tell(data, data.infrared.size() - 1, {data, Eigen::Vector3d(t[0], t[1], t[2]) / 1000, seen.depth}));
    }
    return all;
}

void print(const std::string& name, const std::vector<Figures>& all, double share) {
    std::printf("%-22s", name.c_str());
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
        std::vector<double> values;
        values.reserve(all.size());
        for (const auto& figures : all)
            values.push_back(figures.*kColumns[column]);
        std::printf(column < 6 ? "%8.0f" : "%8.2f", quantile(std::move(values), share));
    }
    std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
    setLogLevel(-1);
    std::vector<std::string> words(argv + 1, argv + argc);
    const bool each = !words.empty() && words.front() == "--each";
    if (each) words.erase(words.begin());
    if (words.size() < 3) {
        std::fprintf(stderr, "usage: world-realism [--each] STILLS SEEDS NAME...\n");
        return 2;
    }
    const auto& worlds = world::worldNames();
    std::printf("%-22s%8s%8s%8s%8s%8s%8s%8s%8s%8s%8s\n", "median, least, most", "IR", "colour", "matched", "verified",
                "right %", "at inf %", "px", "ZNCC 10", "50", "90");
    for (std::size_t i = 2; i < words.size(); ++i) {
        std::vector<Figures> all;
        if (std::find(worlds.begin(), worlds.end(), words[i]) == worlds.end()) all = figuresOfRecording(words[i]);
        for (int seed = 1; all.empty() || seed <= std::atoi(words[1].c_str()); ++seed) {
            if (std::find(worlds.begin(), worlds.end(), words[i]) == worlds.end()) break;
            const auto more = figuresOfWorld(words[i], static_cast<std::uint64_t>(seed), std::atoi(words[0].c_str()));
            all.insert(all.end(), more.begin(), more.end());
            if (more.empty()) break;
        }
        const std::string name = words[i].substr(words[i].find_last_of('/') + 1);
        for (std::size_t k = 0; each && k < all.size(); ++k)
            print(name + ' ' + std::to_string(k), {all[k]}, 0);
        print(name, all, 0.5);
        print("", all, 0);
        print("", all, 1);
    }
    return 0;
}
