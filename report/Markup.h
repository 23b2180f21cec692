#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>
#include <utility>

namespace fieldcal {

/// Writes HTML that is also well-formed XML. All text is escaped; characters that are not allowed in a document are
/// replaced.
class Markup {
public:
    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    explicit Markup(QByteArray* out) : writer_(out) {}

    void begin() { writer_.writeDTD("<!DOCTYPE html>\n"); }
    void open(const char* tag, Attributes attributes = {}) {
        writer_.writeStartElement(tag);
        addAttributes(attributes);
    }
    /// A non-void HTML element must not be written as an empty-element tag.
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
    /// Writes an SVG element without content, or a void HTML element.
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
