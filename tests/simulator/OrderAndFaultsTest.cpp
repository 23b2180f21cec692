#include "tests/simulator/TestModule.h"

#include <algorithm>
#include <functional>
#include <thread>

namespace {

enum class Stage { created, opened, ready, capturing };

/// An operation, the stage from which on it succeeds, and whether it may be called again in that stage.
struct Call {
    std::string name;
    Stage from;
    bool again;
    std::function<bool(KXDevice&)> call;
};

template <typename Interface, typename Record>
bool tells(Interface* asked, bool (Interface::*query)(Record*)) {
    Record record{};
    return asked != nullptr && (asked->*query)(&record);
}

template <typename Record>
bool tellsIn(std::int32_t mode, KXDevice& device, bool (KXPlatformCamera::*query)(Record*)) {
    device.platformCamera()->setPlatformMode(mode, 1280, 720);
    return tells(device.platformCamera(), query);
}

bool writeBlock(KXDevice& device, bool permanent) {
    const KXCalibRectParameters block{};
    return device.privateInterface()->writeRectParameters(&block, permanent);
}

const Call kCalls[] = {
    {"openDevice", Stage::created, false, [](auto& d) { return d.openDevice(-1); }},
    {"initDevice", Stage::opened, false, [](auto& d) { return d.initDevice(); }},
    {"serialNumber", Stage::opened, true, [](auto& d) { return tells(&d, &KXDevice::serialNumber); }},
    {"calibrationValid", Stage::opened, true, [](auto& d) { return d.calibrationValid(); }},
    {"thirdCamera", Stage::opened, true, [](auto& d) { return d.thirdCamera() != nullptr; }},
    {"hardwareControl", Stage::opened, true, [](auto& d) { return d.hardwareControl() != nullptr; }},
    {"emitterControl", Stage::opened, true, [](auto& d) { return d.emitterControl() != nullptr; }},
    {"platformCamera", Stage::opened, true, [](auto& d) { return d.platformCamera() != nullptr; }},
    {"privateInterface", Stage::opened, true, [](auto& d) { return d.privateInterface() != nullptr; }},
    {"depthWidth", Stage::opened, true, [](auto& d) { return d.depthWidth() == 5; }},
    {"depthHeight", Stage::opened, true, [](auto& d) { return d.depthHeight() == 3; }},
    {"lrWidth", Stage::opened, true, [](auto& d) { return d.lrWidth() == 6; }},
    {"lrHeight", Stage::opened, true, [](auto& d) { return d.lrHeight() == 4; }},
    {"thirdWidth", Stage::opened, true,
     [](auto& d) { return d.thirdCamera() != nullptr && d.thirdCamera()->thirdWidth() == 8; }},
    {"thirdHeight", Stage::opened, true,
     [](auto& d) { return d.thirdCamera() != nullptr && d.thirdCamera()->thirdHeight() == 6; }},
    {"setDepthEnabled", Stage::ready, true, [](auto& d) { return d.setDepthEnabled(true); }},
    {"setLeftEnabled", Stage::ready, true, [](auto& d) { return d.setLeftEnabled(true); }},
    {"setRightEnabled", Stage::ready, true, [](auto& d) { return d.setRightEnabled(true); }},
    {"setStreamOption", Stage::ready, true, [](auto& d) { return d.setStreamOption(true); }},
    {"setDepthStreamMode", Stage::ready, true, [](auto& d) { return d.setDepthStreamMode(true, 628, 468, 60, 1); }},
    {"rectifiedLRIntrinsics", Stage::ready, true, [](auto& d) { return tells(&d, &KXDevice::rectifiedLRIntrinsics); }},
    {"zIntrinsics", Stage::ready, true, [](auto& d) { return tells(&d, &KXDevice::zIntrinsics); }},
    {"rectParameters", Stage::ready, true, [](auto& d) { return tells(&d, &KXDevice::rectParameters); }},
    {"setAutoExposure", Stage::ready, true, [](auto& d) { return d.hardwareControl()->setAutoExposure(3, true); }},
    {"setGain", Stage::ready, true, [](auto& d) { return d.hardwareControl()->setGain(1, 3); }},
    {"setExposure", Stage::ready, true, [](auto& d) { return d.hardwareControl()->setExposure(16, 3); }},
    {"setHardwareOption", Stage::ready, true, [](auto& d) { return d.hardwareControl()->setHardwareOption(true, 16); }},
    {"setEmitter", Stage::ready, true, [](auto& d) { return d.emitterControl()->setEmitter(false); }},
    {"setThirdEnabled", Stage::ready, true, [](auto& d) { return d.thirdCamera()->setThirdEnabled(true); }},
    {"setThirdStreamMode", Stage::ready, true,
     [](auto& d) { return d.thirdCamera()->setThirdStreamMode(true, 640, 480, 30, 3); }},
    {"rectifiedThirdIntrinsics", Stage::ready, true,
     [](auto& d) { return tells(d.thirdCamera(), &KXThirdCamera::rectifiedThirdIntrinsics); }},
    {"zToThirdExtrinsics", Stage::ready, true,
     [](auto& d) { return tells(d.thirdCamera(), &KXThirdCamera::zToThirdExtrinsics); }},
    {"setPlatformMode", Stage::ready, true, [](auto& d) { return d.platformCamera()->setPlatformMode(1, 1280, 720); }},
    {"nonRectifiedIntrinsics", Stage::ready, true,
     [](auto& d) { return tellsIn(0, d, &KXPlatformCamera::nonRectifiedIntrinsics); }},
    {"rectifiedIntrinsics", Stage::ready, true,
     [](auto& d) { return tellsIn(1, d, &KXPlatformCamera::rectifiedIntrinsics); }},
    {"rectificationRotation", Stage::ready, true,
     [](auto& d) { return d.platformCamera()->rectificationRotation() != nullptr; }},
    {"zToPlatformExtrinsics", Stage::ready, true,
     [](auto& d) { return tellsIn(1, d, &KXPlatformCamera::zToPlatformExtrinsics); }},
    {"writeRectParameters", Stage::ready, true, [](auto& d) { return writeBlock(d, false); }},
    {"commitCalibration", Stage::ready, true,
     [](auto& d) { return writeBlock(d, true) && d.privateInterface()->commitCalibration(); }},
    {"startCapture", Stage::ready, false, [](auto& d) { return d.startCapture(); }},
    {"depthEnabled", Stage::ready, true, [](auto& d) { return d.depthEnabled(); }},
    {"leftEnabled", Stage::ready, true, [](auto& d) { return d.leftEnabled(); }},
    {"rightEnabled", Stage::ready, true, [](auto& d) { return d.rightEnabled(); }},
    {"thirdEnabled", Stage::ready, true, [](auto& d) { return d.thirdCamera()->thirdEnabled(); }},
    {"grab", Stage::capturing, true, [](auto& d) { return d.grab(true); }},
    {"resumeDevice", Stage::capturing, true,
     [](auto& d) {
         d.stopCapture();
         return d.resumeDevice();
     }},
    {"stopCapture", Stage::capturing, false, [](auto& d) { return d.stopCapture(); }},
};

const char* const kOnlyAtRest[] = {"setDepthEnabled",     "setLeftEnabled",   "setRightEnabled",    "setStreamOption",
                                   "setDepthStreamMode",  "setThirdEnabled",  "setThirdStreamMode", "startCapture",
                                   "writeRectParameters", "commitCalibration"};

class Order : public ModuleTest {
protected:
    static bool bring(KXDevice* device, Stage stage) {
        return (stage < Stage::opened || device->openDevice(-1)) && (stage < Stage::ready || device->initDevice()) &&
               (stage < Stage::ready || setUpStreams(device)) && (stage < Stage::capturing || device->startCapture());
    }
};

TEST_F(Order, EveryOperationSucceedsInItsTurnOnly) {
    for (const Call& call : kCalls) {
        SCOPED_TRACE(call.name);
        const std::shared_ptr<KXDevice> device = create();
        ASSERT_TRUE(bring(device.get(), call.from));
        EXPECT_TRUE(call.call(*device));
        EXPECT_EQ(call.call(*device), call.again);
        EXPECT_EQ(device->lastStatus(), call.again ? 0 : 1);
        if (call.from == Stage::created) continue;
        const std::shared_ptr<KXDevice> early = create();
        ASSERT_TRUE(bring(early.get(), static_cast<Stage>(static_cast<int>(call.from) - 1)));
        EXPECT_FALSE(call.call(*early)) << "too early";
        // A false result of a stream that was not enabled is an answer, not a failure.
        const bool isQuestion = call.name.find("Enabled") != std::string::npos && call.name[0] != 's';
        EXPECT_EQ(early->lastStatus(), isQuestion ? 0 : 1);
    }
}

TEST_F(Order, TheStreamsAreSetUpAtRest) {
    const std::shared_ptr<KXDevice> device = createCapturing();
    for (const char* name : kOnlyAtRest) {
        for (const Call& call : kCalls) {
            EXPECT_TRUE(call.name != name || !call.call(*device)) << name;
        }
    }
    EXPECT_TRUE(device->stopCapture() && device->setLeftEnabled(false) && device->startCapture() && device->grab(true));
    EXPECT_EQ(device->leftImage(), nullptr);
    EXPECT_NE(device->rightImage(), nullptr);
}

TEST_F(Order, ACaptureNeedsItsModesAndAStream) {
    const std::shared_ptr<KXDevice> device = createReady();
    EXPECT_FALSE(device->startCapture()) << "no stream";
    EXPECT_TRUE(device->setDepthEnabled(true));
    EXPECT_FALSE(device->startCapture()) << "no mode";
    EXPECT_FALSE(device->setDepthStreamMode(false, 628, 468, 60, 1));
    EXPECT_FALSE(device->setDepthStreamMode(true, 628, 0, 60, 1));
    EXPECT_FALSE(device->setDepthStreamMode(true, 628, 468, 60, 3));
    EXPECT_FALSE(device->startCapture()) << "refused modes only";
    EXPECT_TRUE(device->setDepthStreamMode(true, 628, 468, 60, 1));
    EXPECT_TRUE(device->startCapture());
}

using Faults = Order;

TEST_F(Faults, HitTheGivenCallsOfAnOperation) {
    set("KXSIM_FAULTS", "grab:3:0,grab:5:12,stopCapture:1:7");
    const std::shared_ptr<KXDevice> device = createCapturing();
    std::string seen;
    for (int i = 0; i < 6; ++i)
        seen += device->grab(true) ? "+" : std::to_string(device->lastStatus());
    EXPECT_EQ(seen, "++0+12+");
    EXPECT_FALSE(device->stopCapture());
    EXPECT_EQ(device->lastStatus(), 7);
    EXPECT_TRUE(device->stopCapture());
}

TEST_F(Faults, AStatusMayBeToldToTheCallersThreadOnly) {
    set("KXSIM_FAULTS", "thread-bound-status,grab:1:6");
    const std::shared_ptr<KXDevice> device = createCapturing();
    EXPECT_FALSE(device->grab(true));
    std::int32_t elsewhere = -1;
    std::thread([&] { elsewhere = device->lastStatus(); }).join();
    EXPECT_EQ(elsewhere, 0);
    EXPECT_EQ(device->lastStatus(), 6);
}

TEST_F(Faults, MalformedOrdersKeepTheDeviceShut) {
    const QString malformed =
        "grab grab:1 grab:1:6:7 grap:1:6 grab:0:6 grab:-1:6 grab:x:6 grab:1:-6 grab:1:six grab:1:99999999999 "
        "grab:1:6,, grab:1:6;x:1:2 : grab:1:Gone grab:1:powercut zIntrinsics:1:lie depthEnabled:1:gone-after "
        "grab:1:old "
        "grab:1:garble commitCalibration:1:garble grab:1:late grab:1:late+ grab:1:late+-1 grab:1:late+1x grab:1:done "
        "grab:1:gone+1 living living-block:1:1 third:1:6 third:0:drop third:1:late right:1:drop+ grab\n:1:6";
    for (const QString& order : malformed.split(' ')) {
        const std::string text = order.toStdString();
        set("KXSIM_FAULTS", text);
        const std::shared_ptr<KXDevice> device = create();
        ::testing::internal::CaptureStderr();
        EXPECT_FALSE(device->openDevice(-1)) << text;
        EXPECT_FALSE(create()->openDevice(-1)) << text;
        EXPECT_NE(plugInRearCamera(), nullptr);
        const std::string said = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(said.find("KXAPI: KXSIM_FAULTS: \""), 0U) << text;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        EXPECT_EQ(device->lastStatus(), 1);
    }
}

}  // namespace
