#include "camera/Rotation.h"

#include <algorithm>
#include <cmath>

namespace fieldcal {

Matrix3 widened(const float* matrix) {
    Matrix3 wide{};
    std::copy(matrix, matrix + wide.size(), wide.begin());
    return wide;
}

Matrix3 product(const Matrix3& a, const Matrix3& b) {
    Matrix3 result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t k = 0; k < 3; ++k)
                result[row * 3 + column] += a[row * 3 + k] * b[k * 3 + column];
        }
    }
    return result;
}

Matrix3 transposed(const Matrix3& m) {
    return {m[0], m[3], m[6], m[1], m[4], m[7], m[2], m[5], m[8]};
}

double departureFromOrthonormal(const Matrix3& m) {
    const Matrix3 square = product(transposed(m), m);
    double largest = 0;
    for (std::size_t i = 0; i < square.size(); ++i)
        largest = std::max(largest, std::abs(square[i] - (i % 4 == 0 ? 1.0 : 0.0)));
    return largest;
}

bool isRotation(const Matrix3& m, double tolerance) {
    if (!std::all_of(m.begin(), m.end(), [](double entry) { return std::isfinite(entry); })) return false;
    if (departureFromOrthonormal(m) > tolerance) return false;
    const double determinant =
        m[0] * (m[4] * m[8] - m[5] * m[7]) - m[1] * (m[3] * m[8] - m[5] * m[6]) + m[2] * (m[3] * m[7] - m[4] * m[6]);
    return std::abs(determinant - 1.0) <= tolerance;
}

Matrix3 rotationFromAngles(const Angles3& anglesRad) {
    const double c0 = std::cos(anglesRad[0]), s0 = std::sin(anglesRad[0]);
    const double c1 = std::cos(anglesRad[1]), s1 = std::sin(anglesRad[1]);
    const double c2 = std::cos(anglesRad[2]), s2 = std::sin(anglesRad[2]);
    return {c2 * c1,
            c2 * s1 * s0 - s2 * c0,
            c2 * s1 * c0 + s2 * s0,  //
            s2 * c1,
            s2 * s1 * s0 + c2 * c0,
            s2 * s1 * c0 - c2 * s0,  //
            -s1,
            c1 * s0,
            c1 * c0};
}

Angles3 anglesFromRotation(const Matrix3& r) {
    const auto atan2f = [](double y, double x) { return std::atan2(static_cast<float>(y), static_cast<float>(x)); };
    const double a2 = atan2f(r[3], r[0]);
    const double c = std::cos(a2), s = std::sin(a2);
    const double a1 = atan2f(-r[6], r[0] * c + r[3] * s);
    const double a0 = atan2f(r[2] * s - r[5] * c, r[4] * c - r[1] * s);
    return {a0, a1, a2};
}

double angleBetweenDeg(const Matrix3& a, const Matrix3& b) {
    const Matrix3 d = product(a, transposed(b));
    // The sine is used together with the cosine, as the arc cosine alone loses small angles to rounding.
    const double sine = std::sqrt(std::pow(d[7] - d[5], 2) + std::pow(d[2] - d[6], 2) + std::pow(d[3] - d[1], 2)) / 2;
    const double cosine = (d[0] + d[4] + d[8] - 1.0) / 2.0;
    return std::atan2(sine, cosine) * kDegreesPerRadian;
}

}  // namespace fieldcal
