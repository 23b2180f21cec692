#include "diagnostics/Assertions.h"
#include "diagnostics/Logger.h"

#include <gmock/gmock.h>

#include <string>

namespace fieldcal {
namespace {

using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

class LoggerTest : public testing::Test {
protected:
    void TearDown() override {
        setLogLevel(2);
        setLogTagging(false);
    }
};

TEST_F(LoggerTest, LinesHaveTheirFixedForm) {
    CaptureStderr();
    logMessage(kError, "CalibrationState::readFromFile", "Could not open file");
    logMessage(kInfo, "Matcher::match", "%d of %s", 3, "four");
    EXPECT_EQ(GetCapturedStderr(), "ERROR: : Could not open file\nINFO: : 3 of four\n");

    setLogTagging(true);
    CaptureStderr();
    logMessage(kInfo, "A::b", "text");
    EXPECT_EQ(GetCapturedStderr(), "A::b INFO: : text\n");
}

TEST_F(LoggerTest, OverlongMessagesAreCutTo2047Characters) {
    const std::string text(3000, 'x');
    CaptureStderr();
    logMessage(kInfo, "A::b", "%s", text.c_str());
    EXPECT_EQ(GetCapturedStderr(), "INFO: : " + std::string(2047, 'x') + "\n");
    EXPECT_EQ(formatString("%s", text.c_str()).size(), 2047U);
}

TEST_F(LoggerTest, LevelDecidesWhatIsPrinted) {
    const auto printedAt = [](int level) {
        setLogLevel(level);
        CaptureStderr();
        logMessage(kInfo, "A::b", "i");
        logMessage(kError, "A::b", "e");
        return GetCapturedStderr();
    };
    EXPECT_EQ(printedAt(2), "INFO: : i\nERROR: : e\n");
    EXPECT_EQ(printedAt(1), "ERROR: : e\n");
    EXPECT_EQ(printedAt(0), "ERROR: : e\n");
    EXPECT_EQ(printedAt(-1), "");
}

TEST_F(LoggerTest, AssertionAndFatalFailureEndTheProcess) {
    EXPECT_DEATH(assertFailure("solve", "file.cpp", 42, "n > 0", "n is %d", -1),
                 "ASSERT failure in solve: n is -1 \\[n > 0\\] \\(file.cpp:42\\)\n");
    EXPECT_EXIT(fatalFailure("no memory", 7), testing::ExitedWithCode(7), "FATAL failure: no memory\n");
    FIELDCAL_ASSERT(true, "must not end the process");
}

}  // namespace
}  // namespace fieldcal
