#include "session/JsonReader.h"

#include "camera/Rotation.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <nlohmann/json.hpp>

namespace fieldcal::session {
namespace {

using nlohmann::json;

constexpr double kRotationTolerance = 1e-4;
/// A recording needs five levels; a malicious text may have millions.
constexpr std::size_t kDeepest = 1024;
/// The largest recording has fewer. A value may take a hundred bytes of memory but only two bytes of a malicious text.
constexpr std::size_t kMaxValues = 1000000;
constexpr std::size_t kLongestKey = 200;  ///< longest key that a refusal quotes in full
constexpr int kNumberOverflow = 406;      ///< error number of nlohmann/json

/// Returns the library's message about a syntax error, without its prefix and without the last text read, which may be
/// long.
std::string syntaxReason(const json::exception& error) {
    if (error.id == kNumberOverflow) return "illegal number";
    std::string reason = error.what();
    reason.erase(0, reason.find(" - ") + 3);
    const std::size_t lastRead = reason.find("; last read: '");
    return reason.substr(0, lastRead);
}

/// Builds the document from the parser's callbacks and keeps track of the key of the value being read.
class DocumentBuilder final : public json::json_sax_t {
public:
    DocumentBuilder(json* root, JsonFault* fault) : root_(root), fault_(fault) {}

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(std::int64_t value) override { return add(value); }
    bool number_unsigned(std::uint64_t value) override { return add(value); }
    bool number_float(double value, const std::string&) override { return add(value); }
    bool string(std::string& value) override { return add(std::move(value)); }
    bool binary(json::binary_t&) override { return refuse("not JSON: binary data"); }
    bool start_object(std::size_t) override { return open(json::object()); }
    bool start_array(std::size_t) override { return open(json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(std::string& name) override {
        Level& level = open_.back();
        level.key = std::move(name);
        return !level.value->contains(level.key) || refuse("the key stands twice");
    }

    bool parse_error(std::size_t position, const std::string&, const json::exception& error) override {
        return refuse("not JSON: " + syntaxReason(error) + " at byte " + std::to_string(position));
    }

private:
    /// An object or array that is not yet closed.
    struct Level {
        json* value;
        std::string key;  ///< key of the member being read
    };

    bool mayHoldMore() {
        return ++values_ <= kMaxValues || refuse("more than " + std::to_string(kMaxValues) + " values");
    }

    bool add(json value) { return mayHoldMore() && put(std::move(value)) != nullptr; }

    /// Adds a value at the present position and returns a pointer to it.
    json* put(json value) {
        if (open_.empty()) {
            *root_ = std::move(value);
            return root_;
        }
        json& parent = *open_.back().value;
        if (parent.is_array()) {
            parent.push_back(std::move(value));
            return &parent.back();
        }
        json& member = parent[open_.back().key];
        member = std::move(value);
        return &member;
    }

    bool open(json value) {
        if (open_.size() == kDeepest) return refuse("not JSON: nested deeper than " + std::to_string(kDeepest));
        if (!mayHoldMore()) return false;
        open_.push_back({put(std::move(value)), {}});
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    /// Returns the key path of the value being read. An open array or object is already an element of its parent array;
    /// any other element is added after it has been read.
    std::string path() const {
        std::string out;
        for (const Level& level : open_) {
            if (level.value->is_array()) {
                const std::size_t open = &level == &open_.back() ? 0 : 1;
                out += '[' + std::to_string(level.value->size() - open) + ']';
            } else if (!level.key.empty()) {
                out += (out.empty() ? "" : ".") + level.key;
            }
        }
        return out;
    }

    bool refuse(const std::string& reason) {
        *fault_ = {path(), reason};
        if (fault_->key.size() > kLongestKey) fault_->key.replace(kLongestKey, std::string::npos, "...");
        return false;
    }

    json* root_;
    JsonFault* fault_;
    std::vector<Level> open_;
    std::size_t values_ = 0;
};

std::string shown(double value) {
    char text[32];
    std::snprintf(text, sizeof(text), "%.10g", value);
    return text;
}

}  // namespace

bool parseJson(const std::string& text, json* out, JsonFault* fault) {
    // The library would treat a zero byte as the end of the text.
    const std::size_t zero = text.find('\0');
    if (zero != std::string::npos) {
        *fault = {{}, "not JSON: a zero character at byte " + std::to_string(zero + 1)};
        return false;
    }
    DocumentBuilder builder(out, fault);
    return json::sax_parse(text, &builder);
}

void JsonKey::refuse(const std::string& reason) const {
    if (!fault_->found()) *fault_ = {path_, reason};
}

bool JsonKey::expect(bool (json::*isOfType)() const noexcept, const char* expected) const {
    if (value_ == nullptr) {
        refuse("missing");
        return false;
    }
    const bool fits = (value_->*isOfType)();
    if (!fits) refuse(std::string(expected) + " expected");
    return fits;
}

JsonKey JsonKey::operator[](const char* name) const {
    if (!has(name)) return {nullptr, fault_, path_.empty() ? name : path_ + "." + name};
    return {&*value_->find(name), fault_, path_.empty() ? name : path_ + "." + name};
}

bool JsonKey::has(const char* name) const {
    return expect(&json::is_object, "an object") && value_->contains(name);
}

std::size_t JsonKey::size() const {
    return expect(&json::is_array, "a list") ? value_->size() : 0;
}

std::vector<JsonKey> JsonKey::elements(std::size_t most) const {
    std::vector<JsonKey> out;
    if (!expect(&json::is_array, "a list")) return out;
    if (value_->size() > most) {
        refuse("more than " + std::to_string(most) + " elements");
        return out;
    }
    out.reserve(value_->size());
    for (const json& element : *value_)
        out.push_back({&element, fault_, path_ + "[" + std::to_string(out.size()) + "]"});
    return out;
}

double JsonKey::number(double lowest, double highest) const {
    if (!expect(&json::is_number, "a number")) return lowest;
    const auto value = value_->get<double>();
    if (value >= lowest && value <= highest) return value;
    refuse(shown(value) + " is not within " + shown(lowest) + " to " + shown(highest));
    return lowest;
}

double JsonKey::integer(double lowest, double highest) const {
    const double value = number(lowest, highest);
    if (value == std::floor(value)) return value;
    refuse(shown(value) + " is not a whole number");
    return lowest;
}

std::int64_t JsonKey::integer64() const {
    if (!expect(&json::is_number_integer, "a whole number")) return 0;
    const bool fits =
        !value_->is_number_unsigned() ||
        value_->get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!fits) refuse("outside of 64 bits");
    return fits ? value_->get<std::int64_t>() : 0;
}

bool JsonKey::boolean() const {
    return expect(&json::is_boolean, "true or false") && value_->get<bool>();
}

std::string JsonKey::text() const {
    return expect(&json::is_string, "a text") ? value_->get<std::string>() : std::string();
}

std::array<double, 9> JsonKey::rotation() const {
    const std::array<double, 9> out = numbers<9>(-2, 2);
    if (!fault_->found() && !isRotation(out, kRotationTolerance)) refuse("not a rotation matrix");
    return out;
}

}  // namespace fieldcal::session
