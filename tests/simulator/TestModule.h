#pragma once

#include "kxapi/Library.h"
#include "kxapi/RearCameraSeam.h"
#include "tests/session/TestSession.h"
#include "tests/simulator/SimulatedModule.h"

#include <memory>
#include <string>

/// A session on disk and the library `KXAPI` as the application loads it.
class ModuleTest : public fieldcal::session::SessionFolder, protected fieldcal::testing::SimulatedModule {
protected:
    ModuleTest() : library(KXLibrary::load(&why)) {
        set("KXSIM_SESSION", folder);
        set("KXSIM_SPEED", "0");
    }
    void SetUp() override { ASSERT_NE(library, nullptr) << why; }

    std::shared_ptr<KXDevice> create() const { return {library->create(0), library->destroy}; }

    /// Opens a device. Returns its output on standard error and the status (0: opened).
    std::pair<std::string, int> opening() const {
        const std::shared_ptr<KXDevice> device = create();
        ::testing::internal::CaptureStderr();
        const bool opened = device->openDevice(-1);
        const std::string text = ::testing::internal::GetCapturedStderr();
        return {text, opened ? 0 : device->lastStatus()};
    }

    std::shared_ptr<KXDevice> createReady() const {
        std::shared_ptr<KXDevice> device = create();
        EXPECT_TRUE(device->openDevice(-1) && device->initDevice()) << device->lastStatus();
        return device;
    }

    static bool setUpStreams(KXDevice* device) {
        KXThirdCamera* third = device->thirdCamera();
        return device->setDepthEnabled(true) && device->setLeftEnabled(true) && device->setRightEnabled(true) &&
               device->setStreamOption(true) && device->setDepthStreamMode(true, 628, 468, 60, 1) && third != nullptr &&
               third->setThirdEnabled(true) && third->setThirdStreamMode(true, 640, 480, 30, 3);
    }

    std::shared_ptr<KXDevice> createCapturing() const {
        std::shared_ptr<KXDevice> device = createReady();
        EXPECT_TRUE(setUpStreams(device.get()) && device->startCapture()) << device->lastStatus();
        return device;
    }

    /// The opened rear camera with its streams set up.
    RearCameraSource* openRearCamera() const {
        RearCameraSource* rear = plugInRearCamera();
        EXPECT_TRUE(rear != nullptr && rear->openCamera() && rear->setAutoFocus(false) && rear->setFocus(1700));
        EXPECT_TRUE(rear->setupStream(0, 640, 480, 30, "NV12") && rear->setupStream(1, 1280, 720, 30, "NV12"));
        EXPECT_TRUE(rear->setupStream(2, 3200, 2400, 0, "NV12"));
        return rear;
    }
    RearCameraSource* plugInRearCamera() const {
        return reinterpret_cast<KXSimRearCameraFunction>(library->symbol("KXSimRearCamera"))();
    }

    std::string why;
    std::shared_ptr<const KXLibrary> library;
};
