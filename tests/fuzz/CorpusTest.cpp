#include "tests/fuzz/Target.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace fieldcal::fuzz {
namespace {

/// Every input that the fuzzer starts with, and every one that once was a finding, without the fuzzer.
TEST(Corpus, ParsersKeepTheirPromises) {
    const QDir corpus(FIELDCAL_CORPUS);
    QStringList names;
    for (const Target& target : allTargets()) {
        names.append(target.name);
        const QTemporaryDir folder;
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
        const QFileInfoList inputs = QDir(corpus.filePath(target.name)).entryInfoList(QDir::Files);
        EXPECT_FALSE(inputs.empty()) << target.name;
        for (const QFileInfo& input : inputs) {
            SCOPED_TRACE(input.filePath().toStdString());
            target.run(contentOf(qUtf8Printable(input.filePath())));
        }
    }
    names.sort();
    EXPECT_EQ(corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), names);
    QDir::setCurrent(QDir::tempPath());
}

}  // namespace
}  // namespace fieldcal::fuzz
