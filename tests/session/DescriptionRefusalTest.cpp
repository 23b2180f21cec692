#include "tests/session/TestSession.h"

#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>
#include <set>

namespace fieldcal::session {
namespace {

using nlohmann::json;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// One edit of the valid description's text, and the expected message.
struct BadText {
    std::string from;
    std::string to;
    std::string key;
    std::string reason;
};

const BadText kBadTexts[] = {
    {"\"version\": 1,", "\"version\": 2,", "version", "only version 1 can be read"},
    {"\"serial\": 550101", "\"serial\": -1", "module.serial", "-1 is not within 0 to 4294967295"},
    {"true", "1", "module.calibrationValid", "true or false expected"},
    {"\"width\": 6", "\"width\": \"6\"", "infrared.width", "a number expected"},
    {"\"cx\": 4.1", "\"cx\": 1e999", "third.cx", "not JSON: illegal number at byte"},
    {"\"cx\": 4.1", "\"cx\": 4.1, \"f\\u0078\": 464", "third.fx", "the key stands twice"},
    {"\"b_third.png\"}", "\"b_third.png\", \"unknown\": [{\"x\": 1, \"x\": 1}]}", "frames[1].unknown[0].x", "twice"},
    {"\"cx\": 4.1", "\"cx\": 4.1.1", "third.cx", "not JSON: invalid literal"},
    {"25, 0.5", "25 0.5", "third.translation[1]", "not JSON: unexpected number literal; expected ']' at byte"},
    {"\"b_third.png\"", "\"b_\tthird.png\"", "frames[1].third", "not JSON: invalid string"},
    {"\"b_third.png\"", "\"b_\xff.png\"", "frames[1].third", "not JSON: invalid string: ill-formed UTF-8"},
    {"\"platform\": {", "\"other\": {", "frames[0].platform", "the session has no platform camera"},
    {"\"rotation\": [1, 0, 0, 0, 0, -1", "\"rotation\": [1, 0, 0, 0, -1", "third.rotation",
     "9 numbers expected, not 8"},
    {"\"width\": 1280", "\"width\": 1920", "platform.raw.width", "1280 expected"},
};

std::string nested(std::size_t levels) {
    return "{\"unknown\": " + std::string(levels - 1, '[') + std::string(levels - 1, ']') + ", " +
           kSessionText.substr(1);
}

/// The path of a deeply nested value, as it appears in messages.
std::string cut(std::string key) {
    while (key.size() < 200)
        key += "[0]";
    return key.substr(0, 200) + "...";
}

/// The path of a value, as it appears in messages.
std::string keyOf(const json::json_pointer& pointer) {
    std::string out;
    for (json::json_pointer rest = pointer; !rest.empty(); rest.pop_back()) {
        const std::string& name = rest.back();
        const bool isIndex = name.find_first_not_of("0123456789") == std::string::npos;
        const bool isInside = !rest.parent_pointer().empty();
        out.insert(0, isIndex ? "[" + name + "]" : (isInside ? "." : "") + name);
    }
    return out;
}

class DescriptionRefusal : public SessionFolder {
protected:
    DescriptionRefusal() { collect(json::json_pointer()); }

    void expectRefused(const std::string& text, const std::string& key, const std::string& reason) {
        std::string why;
        writeFile(path("session.json"), QByteArray::fromStdString(text));
        EXPECT_FALSE(readDescription(folder, &session, &why)) << key << ", " << reason;
        EXPECT_THAT(why, AllOf(StartsWith(path("session.json") + ": " + (key.empty() ? "" : key + ": ")),
                               HasSubstr(reason), Not(HasSubstr("\n"))));
    }
    void expectAccepted(const std::string& text) {
        std::string why;
        writeFile(path("session.json"), QByteArray::fromStdString(text));
        EXPECT_TRUE(readDescription(folder, &session, &why)) << why;
    }
    std::string with(const json::json_pointer& at, const json& value) const {
        json changed = valid;
        changed[at] = value;
        return changed.dump();
    }

    const json valid = json::parse(kSessionText);
    std::vector<json::json_pointer> nodes;  ///< every value; objects and arrays before their elements

private:
    void collect(const json::json_pointer& at) {
        if (!at.empty()) nodes.push_back(at);
        const json& value = valid[at];
        for (const auto& [key, child] : value.items())
            if (value.is_structured()) collect(value.is_array() ? at / std::stoul(key) : at / key);
    }
};

TEST_F(DescriptionRefusal, EditsAreNamedByKeyAndReason) {
    for (const BadText& bad : kBadTexts) {
        std::string text = kSessionText;
        ASSERT_NE(text.find(bad.from), std::string::npos) << bad.from;
        expectRefused(text.replace(text.find(bad.from), bad.from.size(), bad.to), bad.key, bad.reason);
    }
    expectRefused(kSessionText.substr(0, kSessionText.size() / 2), "", "not JSON: ");
    expectRefused("", "", "not JSON: unexpected end of input");
    expectRefused("[1, 2]", "", "an object expected");
    expectRefused(kSessionText + std::string(1, '\0') + "{", "", "not JSON: a zero character");
    expectRefused(std::string(1 << 20, '['), cut("[0]"), "not JSON: nested deeper than 1024");
    expectRefused(nested(1025), cut("unknown[0]"), "not JSON: nested deeper than 1024");
    expectAccepted(nested(1024));
}

TEST_F(DescriptionRefusal, EveryValueHasItsTypeAndStandsOnce) {
    const std::set<std::string> optional{"truth",           "truth.third",     "frames[0]",
                                         "frames[1]",       "frames[0].depth", "frames[0].platform",
                                         "frames[0].right", "frames[0].repeat"};
    ASSERT_GT(nodes.size(), 100U);
    for (const json::json_pointer& node : nodes) {
        const std::string key = keyOf(node);
        for (const json& other : {json(), json("7"), json(7.5), json(true), json::array(), json{{"value", 7}}}) {
            const json& old = valid[node];
            if (other.type() == old.type() || (other.is_number() && old.is_number())) continue;
            expectRefused(with(node, other), key, " expected");
        }
        json without = valid;
        json& parent = without[node.parent_pointer()];
        if (parent.is_array()) {
            parent.erase(std::stoul(node.back()));
        } else {
            parent.erase(node.back());
            json twice = valid;
            twice[node.parent_pointer()]["@"] = nullptr;  // The duplicate is written before the key itself.
            std::string text = twice.dump();
            expectRefused(text.replace(text.find('@'), 1, node.back()), key, "the key stands twice");
        }
        if (optional.count(key) != 0) {
            expectAccepted(without.dump());
        } else if (parent.is_array()) {
            expectRefused(without.dump(), keyOf(node.parent_pointer()), "numbers expected, not");
        } else {
            const bool isNamedByUse = key == "platform";
            expectRefused(without.dump(), isNamedByUse ? "frames[0].platform" : key, isNamedByUse ? "" : "missing");
        }
    }
}

/// The valid values of the numbers of each key; rotations have a separate test.
struct Range {
    std::vector<std::string> ends;
    double lowest;
    double highest;
    bool isWhole;
};

const Range kRanges[] = {
    {{"depth.width", "depth.height", "infrared.width", "third.height"}, 1, 8192, true},
    {{"fx", "fy"}, 1, 1e5, false},
    {{"cx", "cy", "translation[0]", "translation[1]", "translation[2]"}, -1e5, 1e5, false},
    {{"k1", "k2", "p1", "p2", "k3"}, -100, 100, false},
    {{"serial"}, 0, 4294967295.0, true},
    {{"frames[0].repeat"}, 1, 1e6, true},
};

TEST_F(DescriptionRefusal, NumbersStayInTheirRange) {
    int checked = 0;
    for (const json::json_pointer& node : nodes) {
        const std::string key = keyOf(node);
        const auto isMeant = [&key](const std::string& end) {
            return key.size() >= end.size() && key.compare(key.size() - end.size(), end.size(), end) == 0;
        };
        for (const Range& range : kRanges) {
            if (std::none_of(range.ends.begin(), range.ends.end(), isMeant)) continue;
            ++checked;
            const double step = range.isWhole ? 1 : 1e-9;
            for (const double value : {range.lowest - step, range.highest + step, -1e300, 1e300})
                expectRefused(with(node, value), key, " is not within ");
            if (range.isWhole) expectRefused(with(node, range.lowest + 0.5), key, "is not a whole number");
            expectAccepted(with(node, range.lowest));
            expectAccepted(with(node, range.highest));
        }
    }
    EXPECT_EQ(checked, 4 + 10 + 10 + 6 + 5 + 1 + 1);
    for (const char* size : {"/platform/raw/width", "/platform/raw/height", "/platform/rectified/width"})
        expectRefused(with(json::json_pointer(size), 1281), keyOf(json::json_pointer(size)), " expected");

    std::string entries;
    for (int i = 0; i < 1001; ++i)
        entries += std::string(i > 0 ? "," : "") + R"({"infrared": "i", "third": "t", "repeat": 1000000})";
    expectRefused(with("/frames"_json_pointer, json::array()), "frames", "no frame");
    expectRefused(with("/frames"_json_pointer, json::parse("[" + entries + "]")), "frames",
                  "more than 1000000000 grabs");
}

TEST_F(DescriptionRefusal, MatricesAreRotations) {
    for (const char* name : {"/third/rotation", "/platform/rotation", "/platform/rectification", "/truth/third"}) {
        const json::json_pointer at(name);
        const auto old = valid[at].get<Matrix3>();
        const auto expectNone = [&](const Matrix3& matrix) {
            expectRefused(with(at, matrix), keyOf(at), "not a rotation");
        };
        for (std::size_t i = 0; i < 9; ++i) {
            Matrix3 matrix = old;
            matrix[i] += 1.1e-4;
            expectNone(matrix);
            matrix[i] = old[i] + 4e-5;
            expectAccepted(with(at, matrix));
        }
        Matrix3 reflected = old, sheared = old, larger = old;
        for (std::size_t i = 0; i < 9; ++i) {
            if (i < 3) reflected[i] *= -1;
            if (i < 3) sheared[i] = old[i + 3];
            larger[i] *= 1.001;
        }
        for (const Matrix3& matrix : {reflected, sheared, larger})
            expectNone(matrix);
    }
}

TEST_F(DescriptionRefusal, FileNamesStayInTheFolder) {
    const std::pair<std::string, std::string> bad[]{
        {"", "empty file name"},         {"/etc/passwd", "not relative"},
        {"C:x.png", "not relative"},     {"..\\x.png", "not relative"},
        {"..", "leaves the folder"},     {"../x.png", "leaves the folder"},
        {"a/../../x.png", "leaves the"}, {std::string("a\0b", 3), "a zero character"}};
    for (const char* role : {"infrared", "third", "depth", "platform", "right"}) {
        const json::json_pointer at = "/frames/0"_json_pointer / role;
        for (const auto& [name, reason] : bad)
            expectRefused(with(at, name), keyOf(at), reason);
        expectAccepted(with(at, "sub..folder/x..png"));
    }
}

}  // namespace
}  // namespace fieldcal::session
