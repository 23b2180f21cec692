#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gmock/gmock.h>

#include <map>

namespace fieldcal::testing {
namespace {

struct Translation {
    QString text;
    bool finished = false;
};
/// By context and source.
using Translations = std::map<std::pair<QString, QString>, Translation>;

Translations readTranslations(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    Translations found;
    QString context, source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("name")) context = xml.readElementText();
        if (xml.name() == QLatin1String("source")) source = xml.readElementText();
        if (xml.name() != QLatin1String("translation")) continue;
        const bool finished = !xml.attributes().hasAttribute("type");
        found[{context, source}] = {xml.readElementText(QXmlStreamReader::IncludeChildElements), finished};
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return found;
}

/// The parts of a text that a translation must keep: placeholders, and the line break after the heading.
QStringList fixedParts(const QString& text) {
    static const QRegularExpression kPart(QStringLiteral("%L?[n\\d]+|\\n"));
    QStringList parts;
    for (auto match = kPart.globalMatch(text); match.hasNext();)
        parts.append(match.next().captured());
    parts.sort();
    return parts;
}

void expectCompleteTranslation(const Translations& wanted, const Translations& given) {
    for (const auto& [key, unused] : wanted) {
        SCOPED_TRACE(key.first.toStdString() + ": " + key.second.toStdString());
        const auto found = given.find(key);
        if (found == given.end()) {
            ADD_FAILURE() << "missing; scripts/update-translations brings it in";
            continue;
        }
        const Translation& translation = found->second;
        EXPECT_TRUE(translation.finished && !translation.text.isEmpty());
        EXPECT_EQ(fixedParts(translation.text), fixedParts(key.second)) << translation.text.toStdString();
        EXPECT_EQ(translation.text, translation.text.trimmed());
    }
    for (const auto& [key, unused] : given)
        EXPECT_TRUE(wanted.count(key)) << "in no source any more: " << key.second.toStdString();
}

TEST(TranslationFilesTest, EveryTextOfTheSourcesIsTranslatedIntoEveryLanguage) {
    const QTemporaryDir folder;
    const QString fresh = folder.filePath("Fresh.ts");
    ASSERT_EQ(QProcess::execute(FIELDCAL_SOURCES "/scripts/update-translations", {fresh}), 0);
    const Translations wanted = readTranslations(fresh);
    EXPECT_GT(wanted.size(), 50u);
    const QDir files(FIELDCAL_SOURCES "/resources/Files");
    const QStringList names = files.entryList({"*.ts"});
    EXPECT_EQ(names.size(), 26);
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        expectCompleteTranslation(wanted, readTranslations(files.filePath(name)));
    }
}

TEST(TranslationFilesTest, EnglishSaysWhatTheSourcesSay) {
    for (const auto& [key, translation] : readTranslations(FIELDCAL_SOURCES "/resources/Files/English.ts"))
        EXPECT_EQ(translation.text, key.second);
}

}  // namespace
}  // namespace fieldcal::testing
