#pragma once

#include "tests/devices/FakeDevice.h"
#include "tests/devices/FakePlatformBackend.h"
#include "tests/devices/FakeServiceControl.h"
#include "tests/devices/LogCapture.h"
#include "tests/devices/SensorReports.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// A sensor with fake devices. `emitted` collects its reports.
class SensorTest : public ::testing::Test {
protected:
    SensorTest() { renew(); }

    /// A fresh sensor and a fresh module, as after a restart of the program; service and rear camera stay.
    void renew() {
        sensor.reset();
        device = std::make_unique<FakeKxDevice>();
        FakeLibrary::current = device.get();
        emitted.clear();
        sensor = std::make_unique<Sensor>(environment());
        collectReports(*sensor, &emitted);
    }

    SensorEnvironment environment() {
        SensorEnvironment result;
        result.loadLibrary = [this](std::string* why) -> std::shared_ptr<const KXLibrary> {
            if (libraryMissing) *why = "no library";
            return libraryMissing ? nullptr : fakeLibrary.library;
        };
        result.loadRotationUpdater = [this](std::string*) { return fakeUpdater.library; };
        result.services = &services;
        result.createPlatformCamera = [this](const std::shared_ptr<const KXLibrary>&) {
            return std::make_unique<CPlatformCameraControl>(std::make_unique<FakePlatformBackend>(rearCamera));
        };
        result.now = [this] { return now; };
        result.power = [this] { return power; };
        result.dataFolder = data.path();
        result.limits.call = callLimit;
        return result;
    }

    static SensorSettings withoutPlatform() {
        SensorSettings settings = applicationSettings();
        settings.usePlatformCamera = false;
        return settings;
    }

    LogCapture log;
    std::unique_ptr<FakeKxDevice> device;
    FakeLibrary fakeLibrary;
    FakeUpdater fakeUpdater;
    QTemporaryDir data;
    std::chrono::milliseconds callLimit{10000};
    FakeRearCamera rearCamera;
    FakeServiceControl control;
    PXMServiceManager services{control};
    std::chrono::steady_clock::time_point now;
    bool libraryMissing = false;
    std::optional<PowerState> power;
    std::vector<std::string> emitted;
    std::unique_ptr<Sensor> sensor;
};

}  // namespace fieldcal::testing
