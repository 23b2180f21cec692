#include "session/Nv12.h"

#include <gtest/gtest.h>
#include <opencv2/imgproc.hpp>

namespace fieldcal::session {
namespace {

/// Largest difference of a colour channel after a conversion of `bgra` to NV12 and back by the application.
int worstDifference(const cv::Mat& bgra) {
    cv::Mat nv12(bgra.rows * 3 / 2, bgra.cols, CV_8UC1);
    nv12FromBgra(bgra.data, bgra.cols, bgra.rows, nv12.data);
    cv::Mat back;
    cv::cvtColor(nv12, back, cv::COLOR_YUV2BGRA_NV12);
    return static_cast<int>(cv::norm(back, bgra, cv::NORM_INF));
}

TEST(Nv12, UniformColoursComeBackWithinTwoSteps) {
    for (int i = 0; i < 18 * 18 * 18; ++i) {
        const cv::Vec3i steps(i % 18, i / 18 % 18, i / 324);
        const cv::Scalar colour(15 * steps[0], 15 * steps[1], 15 * steps[2], 255);
        EXPECT_LE(worstDifference(cv::Mat(2, 2, CV_8UC4, colour)), 2) << colour;
    }
}

TEST(Nv12, GreyKeepsEveryPixelAndHasNoColour) {
    cv::Mat grey(16, 16, CV_8UC4);
    for (int i = 0; i < 256; ++i)
        grey.at<cv::Vec4b>(i / 16, i % 16) = cv::Scalar(i, i, i, 255);
    cv::Mat nv12(24, 16, CV_8UC1);
    nv12FromBgra(grey.data, 16, 16, nv12.data);
    EXPECT_EQ(cv::countNonZero(nv12.rowRange(16, 24) != 128), 0);
    EXPECT_EQ(nv12.at<uchar>(0, 0), 16);
    EXPECT_EQ(nv12.at<uchar>(15, 15), 235);
    EXPECT_LE(worstDifference(grey), 1);
}

TEST(Nv12, ChromaIsTheMeanOfItsFourPixels) {
    cv::Mat image(4, 6, CV_8UC4, cv::Scalar(0, 0, 0, 255));
    image.at<cv::Vec4b>(2, 4) = {255, 0, 0, 255};
    image.at<cv::Vec4b>(3, 5) = {0, 0, 255, 255};
    cv::Mat nv12(6, 6, CV_8UC1);
    nv12FromBgra(image.data, 6, 4, nv12.data);
    // Mean blue 63.75, mean red 63.75: U = 128 + (0.439 - 0.148) * 63.75, V = 128 + (0.439 - 0.071) * 63.75.
    EXPECT_EQ(nv12.at<uchar>(5, 4), 147);
    EXPECT_EQ(nv12.at<uchar>(5, 5), 151);
    EXPECT_EQ(nv12.at<uchar>(5, 2), 128);
    EXPECT_EQ(nv12.at<uchar>(4, 4), 128);
}

TEST(Nv12, OwnInverseAgreesWithTheApplicationsConversion) {
    cv::Mat nv12(12, 8, CV_8UC1);
    cv::theRNG().state = 7;
    for (int round = 0; round < 100; ++round) {
        cv::randu(nv12, 0, 256);
        cv::Mat expected;
        cv::cvtColor(nv12, expected, cv::COLOR_YUV2BGRA_NV12);
        cv::Mat own(8, 8, CV_8UC4);
        bgraFromNv12(nv12.data, 8, 8, own.data);
        // Below black and above white the two may clamp in a different order.
        cv::Mat sane;
        cv::inRange(nv12.rowRange(0, 8), 16, 235, sane);
        EXPECT_LE(cv::norm(own, expected, cv::NORM_INF, sane), 1);
    }
}

}  // namespace
}  // namespace fieldcal::session
