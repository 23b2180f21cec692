#pragma once

#include <QByteArray>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

namespace fieldcal::session {

/// Pictures that fit no camera of a small session, for a changed description to name.
inline void writeOddPictures(const QString& folder) {
    const auto write = [&folder](const char* name, int width, int height, QImage::Format format) {
        QImage image(width, height, format);
        image.fill(format == QImage::Format_ARGB32 ? Qt::transparent : Qt::white);
        ASSERT_TRUE(image.save(folder + '/' + name, "png")) << name;
    };
    write("grey8.png", 6, 4, QImage::Format_Grayscale8);
    write("colour16.png", 8, 6, QImage::Format_RGBX64);
    write("large.png", 64, 64, QImage::Format_RGB32);
    write("clear.png", 8, 6, QImage::Format_ARGB32);
    write("bright.png", 6, 4, QImage::Format_Grayscale16);
}

/// A description in which one thing was changed. It is still JSON.
struct ChangedMeaning {
    QByteArray text;
    QString what;        ///< key and change, for people
    bool isBad = false;  ///< nothing can make sense of it; without, it may be fine, as -v is for a principal point
};

/// Seeded changes to the meaning of a description: the tree is changed, not its bytes.
class BadMeanings {
public:
    BadMeanings(const QByteArray& valid, unsigned seed)
        : root_(QJsonDocument::fromJson(valid).object()), random_(seed) {
        collect(root_, {});
    }

    ChangedMeaning next() {
        const int kind = below(6);
        if (kind == 0) return otherType(any());
        if (kind == 1) return otherNumber(anyOf([](const Node& node) { return node.value.isDouble(); }));
        if (kind == 2) return otherMatrix(anyOf([](const Node& node) { return node.value.toArray().size() == 9; }));
        if (kind == 3) return otherFile(anyOf([](const Node& n) { return n.isInFrame() && n.value.isString(); }));
        if (kind == 4) return below(3) > 0 ? otherRepeat() : twice(anyOf([](const Node& n) { return !n.isElement(); }));
        return below(3) > 0 ? removed(any()) : swapped();
    }

private:
    struct Node {
        QString key;
        QJsonValue value;
        bool isInFrame() const { return key.startsWith("frames["); }
        bool isElement() const { return key.endsWith(']'); }
    };
    using Edit = std::function<QJsonValue(const QJsonValue&)>;

    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    template <typename Choice>
    Node anyOf(const Choice& fits) {
        for (;;) {
            const Node& node = nodes_[random_() % nodes_.size()];
            if (fits(node)) return node;
        }
    }

    Node any() {
        return anyOf([](const Node&) { return true; });
    }

    static QString member(const QString& path, const QString& name) {
        return path.isEmpty() ? name : path + '.' + name;
    }

    void collect(const QJsonValue& value, const QString& path) {
        if (!path.isEmpty()) nodes_.push_back({path, value});
        const QJsonObject object = value.toObject();
        for (auto i = object.begin(); i != object.end(); ++i)
            collect(i.value(), member(path, i.key()));
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i)
            collect(array[i], path + QString("[%1]").arg(i));
    }

    /// `value` with the node at `key` edited; an undefined one goes.
    static QJsonValue edited(const QJsonValue& value, const QString& path, const QString& key, const Edit& edit) {
        if (path == key) return edit(value);
        if (value.isObject()) {
            QJsonObject object;
            const QJsonObject old = value.toObject();
            for (auto i = old.begin(); i != old.end(); ++i)
                object.insert(i.key(), edited(i.value(), member(path, i.key()), key, edit));
            return object;
        }
        if (!value.isArray()) return value;
        QJsonArray array;
        const QJsonArray old = value.toArray();
        for (int i = 0; i < old.size(); ++i) {
            const QJsonValue item = edited(old[i], path + QString("[%1]").arg(i), key, edit);
            if (!item.isUndefined()) array.append(item);
        }
        return array;
    }

    ChangedMeaning changed(const QString& key, const QJsonValue& to, bool isBad) const {
        const QJsonObject object = edited(root_, {}, key, [&](const QJsonValue&) { return to; }).toObject();
        const QByteArray shown = QJsonDocument(QJsonArray{to}).toJson(QJsonDocument::Compact);
        return {QJsonDocument(object).toJson(), key + (to.isUndefined() ? " removed" : " = " + shown), isBad};
    }

    ChangedMeaning otherType(const Node& node) {
        const QJsonValue values[] = {
            QJsonValue::Null, "7", 7.5, true, QJsonArray(), QJsonArray{node.value}, QJsonObject{{"value", node.value}}};
        const QJsonValue& value = values[random_() % std::size(values)];
        return value.type() == node.value.type() ? otherType(node) : changed(node.key, value, true);
    }

    ChangedMeaning otherNumber(const Node& node) {
        const double old = node.value.toDouble();
        const bool isSize = node.key.endsWith("width") || node.key.endsWith("height");
        const bool isPositive = isSize || node.key.endsWith("fx") || node.key.endsWith("fy");
        const bool isVersion = node.key == "version";
        const int kind = below(6);
        if (kind == 0) return changed(node.key, -old, isPositive);
        if (kind == 1) return changed(node.key, 0, isPositive || isVersion);
        if (kind == 2) return changed(node.key, old + 0.5, isSize || isVersion);
        if (kind == 3) return changed(node.key, below(2) == 0 ? 1e300 : -1e12, true);
        if (kind == 4) return changed(node.key, isSize ? old + 1 : 5e-324, isPositive);
        ChangedMeaning out = changed(node.key, "infinite", true);
        out.text.replace("\"infinite\"", below(2) == 0 ? "1e999" : "-1e999");
        return out;
    }

    ChangedMeaning otherMatrix(const Node& node) {
        QJsonArray matrix = node.value.toArray();
        const auto put = [&matrix](int at, double number) { matrix[at] = number; };
        const auto scale = [&](int from, int to, double by) {
            for (int i = from; i < to; ++i)
                put(i, matrix[i].toDouble() * by);
        };
        const int kind = below(6), row = 3 * below(3), at = below(9);
        const double sign = below(2) == 0 ? 1 : -1;
        if (kind == 0) scale(row, row + 3, -1);  // a reflection
        if (kind == 1) put(at, matrix[at].toDouble() + sign * (2e-4 + 1e-5 * below(1000)));
        if (kind == 2) scale(0, 9, 1 + sign * 0.001);
        for (int i = 0; kind == 3 && i < 3; ++i)
            matrix[row + i] = matrix[(row + 3 + i) % 9];
        if (kind == 4) matrix.removeAt(at);
        if (kind == 5) matrix.append(1.0);
        return changed(node.key, matrix, true);
    }

    ChangedMeaning otherFile(const Node& node) {
        static const QStringList names =
            QString(
                "nowhere.png|/etc/passwd|../s/b_third.png|sub/../../s/"
                "b_third.png|C:\\b_third.png||.|session.json|a\nb.png|a_infrared.png|b_third.png|a_depth.png|a_"
                "platform.nv12|a_right.png|grey8.png|colour16.png|large.png|clear.png|bright.png")
                .split('|');
        const QString& name = names[below(names.size())];
        const QString role = node.key.mid(node.key.lastIndexOf('.') + 1);
        const bool bothInfrared =
            (role == "infrared" || role == "right") && (name == "a_infrared.png" || name == "a_right.png");
        const bool fits = bothInfrared || name.contains('_' + role + '.');
        return changed(node.key, name, !fits || name.contains('/') || name.contains('\\'));
    }

    ChangedMeaning otherRepeat() {
        const double repeats[] = {0, -1, 1e12, 0.5, 1000001, 1e6, 4294967297.0, 1e-300};
        const double repeat = repeats[random_() % std::size(repeats)];
        return changed("frames[0].repeat", repeat, repeat != 1e6);
    }

    ChangedMeaning removed(const Node& node) {
        const QString parent = node.key.left(std::max(node.key.lastIndexOf('.'), 0));
        const bool mayLack =
            node.key.startsWith("truth") || parent.startsWith("frames[") || (node.isInFrame() && parent.isEmpty());
        const bool isElement = node.isElement() && !node.isInFrame();
        return changed(node.key, QJsonValue(QJsonValue::Undefined), isElement || !mayLack);
    }

    /// A key that stands twice in its object.
    ChangedMeaning twice(const Node& node) {
        const int dot = node.key.lastIndexOf('.');
        const QByteArray name = node.key.mid(dot + 1).toUtf8();
        QJsonObject object = root_;
        const auto add = [&](const QJsonValue& parent) {
            QJsonObject out = parent.toObject();
            out.insert("@again", node.value);
            return out;
        };
        object = edited(root_, {}, dot < 0 ? QString() : node.key.left(dot), add).toObject();
        return {QJsonDocument(object).toJson().replace("@again", name), node.key + " twice", true};
    }

    ChangedMeaning swapped() {
        const Node a = any();
        const Node b = anyOf([&a](const Node& node) { return node.value.type() == a.value.type(); });
        ChangedMeaning out = changed(a.key, b.value, false);
        const QJsonObject half = QJsonDocument::fromJson(out.text).object();
        out.text =
            QJsonDocument(edited(half, {}, b.key, [&](const QJsonValue&) { return a.value; }).toObject()).toJson();
        out.what = a.key + " <-> " + b.key;
        return out;
    }

    QJsonObject root_;
    std::vector<Node> nodes_;
    std::mt19937 random_;
};

}  // namespace fieldcal::session
