#include "i18n/InterfaceLanguage.h"
#include "tests/devices/LogCapture.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace fieldcal::testing {
namespace {

/// A translation file without texts, of the smallest size that the format allows.
void writeTranslation(const QString& path) {
    static const QByteArray kBytes = QByteArray::fromHex(
        "3cb86418caef9c95cd211cbf60a1bddd"  // magic
        "4200000008"
        "0000000000000000"  // hashes: one entry
        "6900000001"
        "01");  // messages: end
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kBytes);
}

struct Case {
    const char* language;
    const char* country;
    const char* expectedFile;
    bool leftToRight;
};

class InterfaceLanguageTest : public ::testing::Test {
protected:
    InterfaceLanguageTest() {
        for (const char* name : {"English", "German", "Portuguese", "Portuguese_Brazil", "Chinese_HongKongSAR"})
            writeTranslation(folder.filePath(name + QString(".qm")));
    }
    void check(const Case& expected) {
        QTranslator translator;
        const SystemLanguage user{QString(expected.language), QString(expected.country)};
        EXPECT_EQ(loadInterfaceLanguage(user, folder.path(), &translator), expected.leftToRight) << expected.language;
        EXPECT_EQ(translator.filePath(), folder.filePath(expected.expectedFile)) << expected.language;
    }

    int argc = 1;
    char program[2] = "t";
    char* argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
    QTemporaryDir folder;
    LogCapture log;
};

TEST_F(InterfaceLanguageTest, ChoosesTheNearestFileAndFallsBackToEnglish) {
    for (const Case& expected : {Case{"German", "Germany", "German.qm", true},
                                 {"Portuguese", "Brazil", "Portuguese_Brazil.qm", true},
                                 {"Portuguese", "Portugal", "Portuguese.qm", true},
                                 {"Chinese (Traditional)", "Hong Kong SAR", "Chinese_HongKongSAR.qm", true},
                                 {"Hungarian", "Hungary", "English.qm", true},
                                 {"Hebrew", "Israel", "English.qm", true},
                                 {"Arabic", "Saudi Arabia", "English.qm", false}}) {
        check(expected);
    }
    EXPECT_TRUE(LogCapture::has("loadUILanguage - failed to load translation file, using default english"));
    writeTranslation(folder.filePath("Hebrew.qm"));
    writeTranslation(folder.filePath("Arabic.qm"));
    check({"Hebrew", "Israel", "Hebrew.qm", false});
    check({"Arabic", "Egypt", "Arabic.qm", false});
}

TEST_F(InterfaceLanguageTest, ASystemThatDoesNotSayGetsEnglish) {
    QTranslator translator;
    EXPECT_TRUE(loadInterfaceLanguage({}, folder.path(), &translator));
    EXPECT_EQ(translator.filePath(), folder.filePath("English.qm"));
    EXPECT_FALSE(loadInterfaceLanguage({QString("Arabic"), {}}, folder.path(), &translator));
    EXPECT_TRUE(loadInterfaceLanguage({QString("German"), {}}, "/nowhere", &translator)) << "not even English";
}

TEST(TranslationNameTest, VariantsAreCutAndBlanksRemoved) {
    EXPECT_EQ(translationName("Norwegian (Bokm\u00e5l)", "Norway"), "Norwegian_Norway");
    EXPECT_EQ(translationName("(odd)", "Two Words"), "(odd)_TwoWords") << "a separator in front cuts nothing";
    EXPECT_EQ(translationName("Serbian-Latin", ""), "Serbian_");
}

}  // namespace
}  // namespace fieldcal::testing
