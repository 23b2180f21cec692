#include "session/JsonOutline.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <vector>

namespace fieldcal::session {
namespace {

/// Qt's parser refuses what is nested deeper.
constexpr std::size_t kDeepest = 1024;

/// An object or a list that is open at the present byte.
struct Level {
    bool isObject;
    bool awaitsKey;
    int index = 0;
    QString key = {};
    QSet<QString> seen = {};
};

/// The text of a string that stands in quotes, its escapes resolved.
QString stringValue(const QByteArray& quoted) {
    return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString();
}

class Outline {
public:
    explicit Outline(const QByteArray& text) : text_(text) {}

    /// Goes on to `end` or to the next key that repeats. True: it found one.
    bool run(int end) {
        const int last = std::min(end, text_.size());
        bool repeats = false;
        while (!repeats && position_ < last && levels_.size() <= kDeepest) {
            repeats = step(text_.at(position_));
            ++position_;
        }
        return repeats;
    }

    std::string path() const {
        QString out;
        for (const Level& level : levels_) {
            if (!level.isObject) {
                out += '[' + QString::number(level.index) + ']';
            } else if (!level.key.isEmpty()) {
                out += (out.isEmpty() ? "" : ".") + level.key;
            }
        }
        return out.toStdString();
    }

private:
    bool step(char c) {
        if (c == '"') return takeString();
        if (c == '{' || c == '[') {
            levels_.push_back({c == '{', c == '{'});
        } else if (levels_.empty()) {
            return false;
        } else if (c == '}' || c == ']') {
            levels_.pop_back();
        } else if (c == ',') {
            Level& level = levels_.back();
            ++level.index;
            level.awaitsKey = level.isObject;
            level.key.clear();
        }
        return false;
    }

    bool takeString() {
        const int start = position_;
        for (++position_; position_ < text_.size() && text_.at(position_) != '"'; ++position_) {
            if (text_.at(position_) == '\\') ++position_;
        }
        if (levels_.empty() || !levels_.back().awaitsKey) return false;
        Level& level = levels_.back();
        level.awaitsKey = false;
        level.key = stringValue(text_.mid(start, position_ - start + 1));
        const bool repeats = level.seen.contains(level.key);
        level.seen.insert(level.key);
        return repeats;
    }

    const QByteArray& text_;
    int position_ = 0;
    std::vector<Level> levels_;
};

}  // namespace

std::string jsonKeyAt(const QByteArray& text, int offset) {
    Outline outline(text);
    while (outline.run(offset)) {
    }
    return outline.path();
}

std::optional<std::string> repeatedJsonKey(const QByteArray& text) {
    Outline outline(text);
    if (!outline.run(text.size())) return std::nullopt;
    return outline.path();
}

}  // namespace fieldcal::session
