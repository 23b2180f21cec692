#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace fieldcal::session {

/// The first fault found in a document: the path of the key and the reason.
struct JsonFault {
    std::string key;
    std::string reason;
    bool found() const { return !reason.empty(); }
};

/// Parses a JSON text. Returns false and the fault when the text is not JSON, when a key occurs twice in an object
/// (which would be ambiguous), when the nesting is too deep, or when there are more than a million values. The key in
/// the fault is a path as in `JsonKey`.
bool parseJson(const std::string& text, nlohmann::json* out, JsonFault* fault);

/// One value of a JSON document with its key path ("frames[3].infrared"). Every accessor checks type and range. On
/// failure it returns a valid default and, if no fault was recorded before, records this one. A reader is therefore a
/// plain list of assignments that checks the fault once at its end. The document has to outlive its keys.
class JsonKey {
public:
    JsonKey(const nlohmann::json& document, JsonFault* fault) : value_(&document), fault_(fault) {}

    /// Returns the value of a required key of an object. A missing key is a fault when the value is accessed.
    JsonKey operator[](const char* name) const;
    /// Returns whether an object has the key. A value that is not an object is a fault.
    bool has(const char* name) const;
    /// Returns the elements of an array; more than `most` elements are a fault, and none are returned.
    std::vector<JsonKey> elements(std::size_t most) const;

    double number(double lowest, double highest) const;
    /// A whole number.
    double integer(double lowest, double highest) const;
    /// A whole number of up to 64 bits, which must not be written as a fraction.
    std::int64_t integer64() const;
    bool boolean() const;
    std::string text() const;
    /// Nine numbers, row-major: orthonormal with determinant 1, both within 1e-4.
    std::array<double, 9> rotation() const;
    template <std::size_t n>
    std::array<double, n> numbers(double lowest, double highest) const {
        std::array<double, n> out{};
        const std::size_t count = size();
        if (count != n) refuse(std::to_string(n) + " numbers expected, not " + std::to_string(count));
        const std::vector<JsonKey> items = count == n ? elements(n) : std::vector<JsonKey>();
        for (std::size_t i = 0; i < items.size(); ++i)
            out[i] = items[i].number(lowest, highest);
        return out;
    }

    /// Records a fault of this value, unless a fault was recorded before.
    void refuse(const std::string& reason) const;
    /// Returns whether a fault has been recorded; nothing more needs to be read then.
    bool anyFault() const { return fault_->found(); }

private:
    JsonKey(const nlohmann::json* value, JsonFault* fault, std::string path)
        : value_(value), fault_(fault), path_(std::move(path)) {}
    /// Returns whether the value exists and has the expected type; records a fault otherwise.
    bool expect(bool (nlohmann::json::*isOfType)() const noexcept, const char* expected) const;
    /// Returns the number of elements of an array. A value that is not an array is a fault, and 0 is returned.
    std::size_t size() const;

    const nlohmann::json* value_;  ///< null when the key is missing
    JsonFault* fault_;
    std::string path_;
};

}  // namespace fieldcal::session
