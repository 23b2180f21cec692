#include "session/JsonReader.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <cstdio>

namespace fieldcal::session {
namespace {

constexpr double kRotationTolerance = 1e-4;

std::string shown(double value) {
    char text[32];
    std::snprintf(text, sizeof(text), "%.10g", value);
    return text;
}

bool isRotation(const std::array<double, 9>& m) {
    for (std::size_t i = 0; i < 9; i += 3) {
        for (std::size_t j = i; j < 9; j += 3) {
            const double product = m[i] * m[j] + m[i + 1] * m[j + 1] + m[i + 2] * m[j + 2];
            if (std::abs(product - (i == j ? 1.0 : 0.0)) > kRotationTolerance) return false;
        }
    }
    const double determinant =
        m[0] * (m[4] * m[8] - m[5] * m[7]) - m[1] * (m[3] * m[8] - m[5] * m[6]) + m[2] * (m[3] * m[7] - m[4] * m[6]);
    return std::abs(determinant - 1.0) <= kRotationTolerance;
}

}  // namespace

void JsonKey::refuse(const std::string& reason) const {
    if (!fault_->found()) *fault_ = {path_, reason};
}

bool JsonKey::is(QJsonValue::Type type, const char* expected) const {
    if (value_.isUndefined()) {
        refuse("missing");
    } else if (value_.type() != type) {
        refuse(std::string(expected) + " expected");
    }
    return value_.type() == type;
}

JsonKey JsonKey::operator[](const char* name) const {
    if (!is(QJsonValue::Object, "an object")) return {QJsonValue(), fault_, path_};
    const std::string path = path_.empty() ? name : path_ + "." + name;
    return {value_.toObject().value(QLatin1String(name)), fault_, path};
}

bool JsonKey::has(const char* name) const {
    return is(QJsonValue::Object, "an object") && value_.toObject().contains(QLatin1String(name));
}

std::vector<JsonKey> JsonKey::elements() const {
    std::vector<JsonKey> out;
    if (!is(QJsonValue::Array, "a list")) return out;
    const QJsonArray array = value_.toArray();
    out.reserve(static_cast<std::size_t>(array.size()));
    for (int i = 0; i < array.size(); ++i) {
        out.push_back({array.at(i), fault_, path_ + "[" + std::to_string(i) + "]"});
    }
    return out;
}

double JsonKey::number(double lowest, double highest) const {
    if (!is(QJsonValue::Double, "a number")) return lowest;
    const double value = value_.toDouble();
    if (std::isfinite(value) && value >= lowest && value <= highest) return value;
    refuse(shown(value) + " is not within " + shown(lowest) + " to " + shown(highest));
    return lowest;
}

double JsonKey::integer(double lowest, double highest) const {
    const double value = number(lowest, highest);
    if (value == std::floor(value)) return value;
    refuse(shown(value) + " is not a whole number");
    return lowest;
}

bool JsonKey::boolean() const {
    return is(QJsonValue::Bool, "true or false") && value_.toBool();
}

std::string JsonKey::text() const {
    return is(QJsonValue::String, "a text") ? value_.toString().toStdString() : std::string();
}

std::array<double, 9> JsonKey::rotation() const {
    const std::array<double, 9> out = numbers<9>(-2, 2);
    if (!fault_->found() && !isRotation(out)) refuse("not a rotation matrix");
    return out;
}

}  // namespace fieldcal::session
