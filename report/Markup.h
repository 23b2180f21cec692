#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>
#include <utility>

namespace fieldcal {

/// Writes HTML that is well-formed XML, too. Whatever text is given is escaped; characters that no document may hold
/// are replaced.
class Markup {
public:
    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    explicit Markup(QByteArray* out) : writer_(out) {}

    void begin() { writer_.writeDTD("<!DOCTYPE html>\n"); }
    void open(const char* tag, Attributes attributes = {}) {
        writer_.writeStartElement(tag);
        addAttributes(attributes);
    }
    /// An HTML element that is open must not be written as an empty one.
    void close() {
        writer_.writeCharacters("");
        writer_.writeEndElement();
    }
    void text(const QString& text) { writer_.writeCharacters(permitted(text)); }
    void element(const char* tag, const QString& content, Attributes attributes = {}) {
        open(tag, attributes);
        text(content);
        close();
    }
    /// An element of a picture, or one that HTML never closes.
    void leaf(const char* tag, Attributes attributes) {
        writer_.writeEmptyElement(tag);
        addAttributes(attributes);
    }
    void lineBreak() { writer_.writeCharacters("\n"); }

private:
    void addAttributes(Attributes attributes) {
        for (const auto& [name, value] : attributes)
            writer_.writeAttribute(name, permitted(value));
    }
    static QString permitted(const QString& text) {
        QString kept;
        for (const uint letter : text.toUcs4()) {
            const bool control = (letter < 0x20 && letter != '\n' && letter != '\t') || letter == 0x7F;
            const bool forbidden = control || QChar::isSurrogate(letter) || QChar::isNonCharacter(letter);
            const uint written = forbidden ? uint{QChar::ReplacementCharacter} : letter;
            kept += QString::fromUcs4(&written, 1);
        }
        return kept;
    }

    QXmlStreamWriter writer_;
};

}  // namespace fieldcal
