#include "devices/PXMServiceManager.h"
#include "tests/devices/FakeServiceControl.h"
#include "tests/devices/LogCapture.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace fieldcal::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kOpenConfig = "openService DeepvanePXMQ550 3";
const std::string kOpenAll = "openService DeepvanePXMQ550 983551";

class PXMServiceManagerTest : public ::testing::Test {
protected:
    static std::ptrdiff_t count(const FakeServiceControl& control, const std::string& prefix) {
        return std::count_if(control.calls.begin(), control.calls.end(),
                             [&](const std::string& call) { return call.compare(0, prefix.size(), prefix) == 0; });
    }

    LogCapture log;
    FakeServiceControl control;
    std::unique_ptr<PXMServiceManager> manager = std::make_unique<PXMServiceManager>(control);
};

TEST_F(PXMServiceManagerTest, ShutsDownDisablesAndWaits) {
    EXPECT_TRUE(manager->shutdownPXMService());
    EXPECT_THAT(control.calls,
                ElementsAre("openManager 1", kOpenConfig, "queryConfig 0", "queryConfig 300", "close service",
                            "close manager",                                                            // start type
                            "openManager 1", kOpenAll, "queryState", "close service", "close manager",  // state
                            "openManager 1", kOpenConfig, "changeConfig 4", "close service", "close manager",
                            "openManager 1", kOpenAll, "queryState", "controlService 1", "queryState", "sleep 33",
                            "queryState", "close service", "close manager"));
    EXPECT_THAT(LogCapture::lines(), ElementsAre("PXMServiceManager::_previousServiceStartType = 2 in shutdown",
                                                 "PXMServiceManager::_previousServiceStatus = 4 in shutdown",
                                                 "new_state = 1, old_state = 1"));
    EXPECT_EQ(manager->lastError(), QString());

    control.calls.clear();
    EXPECT_TRUE(manager->shutdownPXMService());
    EXPECT_THAT(control.calls, IsEmpty());
    EXPECT_EQ(LogCapture::lines().back(), "Attempting to call shutdownPXMService but it was already shutdown.");
}

TEST_F(PXMServiceManagerTest, RestoresTheStartTypeOnce) {
    control.states = {1};
    ASSERT_TRUE(manager->shutdownPXMService());
    EXPECT_EQ(control.startType, 4U);
    EXPECT_EQ(count(control, "controlService"), 0) << "a stopped service is only disabled";
    LogCapture::lines().clear();
    EXPECT_TRUE(manager->restorePXMService());
    EXPECT_EQ(control.startType, 2U);
    EXPECT_THAT(LogCapture::lines(),
                ElementsAre("PXMServiceManager::_previousServiceStartType = 2 in restore",
                            "PXMServiceManager::_previousServiceStatus = 1 in restore",
                            "Changed the service start type.", "PXMServiceManager::ServiceStartType restored to: 2"));
    control.calls.clear();
    EXPECT_TRUE(manager->restorePXMService());
    manager.reset();
    EXPECT_THAT(control.calls, IsEmpty()) << "neither again nor in the destructor; and it is not started";
    EXPECT_EQ(LogCapture::lines().back(), "Attempting to call restorePXMService but it was already restored.");
}

TEST_F(PXMServiceManagerTest, RestoringWithoutAShutdownChangesNothing) {
    EXPECT_TRUE(manager->restorePXMService());
    EXPECT_THAT(control.calls, IsEmpty());
    EXPECT_THAT(LogCapture::lines(), ElementsAre("PXMServiceManager::_previousServiceStartType = 0 in restore",
                                                 "PXMServiceManager::_previousServiceStatus = 0 in restore"));
}

TEST_F(PXMServiceManagerTest, TheDestructorRestores) {
    ASSERT_TRUE(manager->shutdownPXMService());
    manager.reset();
    EXPECT_EQ(control.startType, 2U);

    manager = std::make_unique<PXMServiceManager>(control);
    ASSERT_TRUE(manager->shutdownPXMService());
    control.fail("changeConfig", 1, 5);
    manager.reset();
    EXPECT_EQ(LogCapture::lines().back(), "CRITICAL restorePXMService failed in destructor.");
}

TEST_F(PXMServiceManagerTest, AMissingServiceIsNoFailure) {
    control.fail("openService", 1, 1060);
    EXPECT_TRUE(manager->shutdownPXMService());
    EXPECT_TRUE(LogCapture::has("CRITICAL OpenService failed (1060)"));
    EXPECT_EQ(manager->lastError(), QString());
    EXPECT_EQ(count(control, "close manager"), 4);
    EXPECT_EQ(count(control, "close service"), 0);
    EXPECT_TRUE(manager->restorePXMService());
    EXPECT_EQ(LogCapture::lines().back(), "Attempting to call restorePXMService, but the service does not exist.");
}

TEST_F(PXMServiceManagerTest, EveryFailureHasItsLineAndItsText) {
    struct Case {
        std::string operation;
        int n;
        const char* line;
        const char* text;
    };
    const Case cases[] = {
        {"openManager", 1, "OpenSCManager failed (5)", "OpenSCManager"},
        {"openManager", 4, "OpenSCManager failed (5)", "OpenSCManager"},
        {"openService", 1, "OpenService failed (5)", "OpenSCManager"},  // named so in the read of the start type
        {"openService", 2, "OpenService failed (5)", "OpenService"},
        {"openService", 3, "OpenService failed (5)", "OpenService"},
        {"openService", 4, "OpenService failed (5)", "OpenService"},
        {"queryConfig", 1, "QueryServiceConfig failed (5) extra: 300", "QueryServiceConfig"},
        {"queryConfig", 2, "QueryServiceConfig failed (5) extra: 300", "QueryServiceConfig"},
        {"changeConfig", 1, "ChangeServiceConfig failed (5)", "ChangeServiceConfig"},
        {"queryState", 1, "QueryServiceStatusEx failed (5)", "QueryServiceStatusEx"},
        {"queryState", 2, "QueryServiceStatusEx failed (5)", "QueryServiceStatusEx"},
        {"queryState", 4, "QueryServiceStatusEx failed (5)", "QueryServiceStatusEx"},
        {"controlService", 1, "ControlService failed (5)", "ControlService"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.operation + " " + std::to_string(c.n));
        FakeServiceControl failing;
        failing.fail(c.operation, c.n, 5);
        PXMServiceManager fresh(failing);
        EXPECT_FALSE(fresh.shutdownPXMService());
        EXPECT_EQ(LogCapture::lines().back(), std::string("CRITICAL ") + c.line);
        EXPECT_EQ(fresh.lastError().toStdString(), "5: (" + std::string(c.text) + ") ==> text 5");
        EXPECT_EQ(count(failing, "close manager"), count(failing, "openManager") - (c.operation == "openManager"));
        EXPECT_EQ(count(failing, "close service"), count(failing, "openService") - (c.operation == "openService"));
    }
    control.states = {1};
    control.fail("startService", 1, 1058);
    EXPECT_FALSE(manager->driveTo(4));
    EXPECT_EQ(LogCapture::lines().back(), "CRITICAL StartService failed (1058)");
    EXPECT_EQ(manager->lastError(), "1058: (ControlService) ==> text 1058");
}

TEST_F(PXMServiceManagerTest, AStopEndsTheWaitAndUndoesTheDisabling) {
    std::atomic<bool> stop{false};
    int sleeps = 0;
    control.states = {4};
    control.onSleep = [&] { stop = ++sleeps == 3; };
    manager->setStopFlag(&stop);
    EXPECT_FALSE(manager->shutdownPXMService());
    EXPECT_EQ(sleeps, 3);
    EXPECT_EQ(control.startType, 2U);
    EXPECT_EQ(LogCapture::lines().back(), "new_state = 1, old_state = 4");
}

TEST_F(PXMServiceManagerTest, AServiceThatRefusesToStopIsNotLeftDisabled) {
    const QTemporaryDir folder;
    const QString note = folder.filePath("start-type");
    for (const std::uint32_t refusal : {1051U, 1052U, 1061U}) {
        FakeServiceControl refusing;
        refusing.startType = 3;
        refusing.fail("controlService", 1, refusal);
        PXMServiceManager fresh(refusing, serviceNoteInFile(note));
        EXPECT_FALSE(fresh.shutdownPXMService());
        EXPECT_EQ(refusing.startType, 3U) << refusal;
        EXPECT_FALSE(QFile::exists(note)) << refusal;
        EXPECT_TRUE(fresh.lastError().startsWith(QString::number(refusal) + ": (ControlService)"));
    }
}

TEST_F(PXMServiceManagerTest, WhatADeadRunLeftDisabledIsPutBack) {
    QTemporaryDir folder;
    const QString note = folder.filePath("notes/start-type");
    const auto write = [&](const QByteArray& text) {
        QFile file(note);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    for (const std::uint32_t own : {2U, 3U}) {
        control.startType = own;
        PXMServiceManager interrupted(control, serviceNoteInFile(note));
        ASSERT_TRUE(interrupted.shutdownPXMService());
        control.fail("changeConfig", 1, 5);
        EXPECT_FALSE(interrupted.restorePXMService());
        ASSERT_EQ(control.startType, 4U);
        EXPECT_TRUE(QFile::exists(note));

        FakeServiceControl left;
        left.startType = 4;
        PXMServiceManager next(left, serviceNoteInFile(note));
        ASSERT_TRUE(next.shutdownPXMService());
        EXPECT_TRUE(next.restorePXMService());
        EXPECT_EQ(left.startType, own);
        EXPECT_FALSE(QFile::exists(note));
        control = {};
    }
    for (const char* nonsense : {"4\n", "-1\n", "two", "", "2", " 2\n", "2\n3\n", "02\n"}) {
        write(nonsense);
        FakeServiceControl disabled;
        disabled.startType = 4;
        PXMServiceManager fresh(disabled, serviceNoteInFile(note));
        ASSERT_TRUE(fresh.shutdownPXMService());
        EXPECT_TRUE(fresh.restorePXMService());
        EXPECT_EQ(disabled.startType, 4U) << "a service that somebody else disabled stays so";
    }
    write("3\n");
    control = {};
    manager = std::make_unique<PXMServiceManager>(control, serviceNoteInFile(note));
    ASSERT_TRUE(manager->shutdownPXMService());
    EXPECT_TRUE(manager->restorePXMService());
    EXPECT_EQ(control.startType, 2U) << "an old note does not outweigh what the service says";
}

TEST_F(PXMServiceManagerTest, ANoteStaysOnlyWhenTheServiceIsDisabled) {
    QTemporaryDir folder;
    const QString note = folder.filePath("start-type");
    control.fail("changeConfig", 1, 5);
    EXPECT_FALSE(PXMServiceManager(control, serviceNoteInFile(note)).shutdownPXMService());
    EXPECT_FALSE(QFile::exists(note)) << "nothing was disabled";

    FakeServiceControl left;
    PXMServiceManager interrupted(left, serviceNoteInFile(note));
    ASSERT_TRUE(interrupted.shutdownPXMService());
    left.fail("changeConfig", 1, 5);
    EXPECT_FALSE(PXMServiceManager(left, serviceNoteInFile(note)).shutdownPXMService());
    EXPECT_TRUE(QFile::exists(note)) << "an earlier run's, and the service is still disabled";

    FakeServiceControl untouched;
    PXMServiceManager withoutNote(untouched, serviceNoteInFile(note + "/there/is/a/file/above"));
    EXPECT_FALSE(withoutNote.shutdownPXMService());
    EXPECT_EQ(untouched.startType, 2U) << "nobody could put it back after a crash";
    EXPECT_TRUE(withoutNote.lastError().contains("start-type")) << withoutNote.lastError().toStdString();
}

}  // namespace
}  // namespace fieldcal::testing
