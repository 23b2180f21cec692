#include "tests/session/BadMeanings.h"
#include "tests/session/TestSession.h"

#include <cctype>

namespace fieldcal::session {
namespace {

/// "file: key: reason", one line, about a file in `folder`.
bool namesFileAndKey(const std::string& why, const std::string& folder) {
    if (why.compare(0, folder.size() + 1, folder + "/") != 0 || why.find('\n') != std::string::npos) return false;
    const std::size_t key = why.find(": ", folder.size()) + 2;
    const std::size_t reason = why.find(": ", key);
    if (reason == std::string::npos || reason == key || reason + 2 == why.size()) return false;
    return std::all_of(why.begin() + static_cast<long>(key), why.begin() + static_cast<long>(reason), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '[' || c == ']';
    });
}

/// A key that stands twice is JSON, too; Qt's parser loses memory over it.
bool isJson(const QByteArray& text, const std::string& why) {
    QJsonParseError error{};
    if (why.find("the key stands twice") == std::string::npos) QJsonDocument::fromJson(text, &error);
    return error.error == QJsonParseError::NoError;
}

class BadMeaning : public SessionFolder {
protected:
    BadMeaning() { writeOddPictures(QString::fromStdString(folder)); }
    void expectValidNeighbour() const {
        writeFile(path("session.json"), QByteArray::fromStdString(kSessionText));
        std::string why;
        EXPECT_TRUE(verify(folder, &why)) << why;
    }
};

TEST_F(BadMeaning, ChangedRecordingsAreRefusedByFileAndKeyOrPlayed) {
    BadMeanings meanings(QByteArray::fromStdString(kSessionText), 4);
    int bad = 0;
    int playable = 0;
    for (int i = 0; i < 2000; ++i) {
        const ChangedMeaning meaning = meanings.next();
        SCOPED_TRACE(meaning.what.toStdString());
        writeFile(path("session.json"), meaning.text);
        std::string why;
        const bool plays = verify(folder, &why);
        EXPECT_TRUE(plays ? !meaning.isBad : namesFileAndKey(why, folder)) << why;
        playable += plays ? 1 : 0;
        bad += !plays && isJson(meaning.text, why) ? 1 : 0;
        if (i % 20 == 0) expectValidNeighbour();
    }
    EXPECT_GT(bad, 2000 * 2 / 3);
    EXPECT_GT(playable, 50);
    expectValidNeighbour();
}

}  // namespace
}  // namespace fieldcal::session
