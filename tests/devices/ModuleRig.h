#pragma once

#include "devices/CameraParameterReader.h"
#include "devices/ParameterBackup.h"
#include "tests/devices/FakeServiceControl.h"
#include "tests/devices/LogCapture.h"
#include "tests/devices/SensorReports.h"
#include "tests/session/TestSession.h"
#include "tests/simulator/SimulatedModule.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace fieldcal::testing {

/// The simulated module with a real sensor: a tiny recording, a file for its parameter block, a scripted vendor's
/// service.
class ModuleRig : public session::SessionFolder, protected SimulatedModule {
protected:
    ModuleRig() : flashFile(temporary.filePath("flash")) {
        const QString name =
            QString::fromStdString(session::kSessionText).replace("\"Rear\"", "\"HP Truevision 8MP Rear\"");
        session::writeFile(path("session.json"), name.toUtf8());
        set("KXSIM_SESSION", folder);
        set("KXSIM_SPEED", "0");
        set("KXSIM_FLASH", flashFile);
    }

    /// Removes the platform camera, which takes long to read, from the recording.
    void dropPlatform() {
        std::string why;
        session::SessionDescription description;
        ASSERT_TRUE(session::readDescription(folder, &description, &why)) << why;
        description.platform.reset();
        for (session::FrameEntry& frame : description.frames)
            frame.platform.clear();
        ASSERT_TRUE(session::writeDescription(folder, description, &why)) << why;
        QFile::remove(flashFile);
    }

    /// Starts a new program on a tablet that has just been switched on.
    void start(const QString& faults = {}) {
        set("KXSIM_FAULTS", faults);
        sensor.reset();
        services = std::make_unique<PXMServiceManager>(control);
        reports.clear();
        LogCapture::lines().clear();
        SensorEnvironment environment = systemEnvironment();
        environment.power = nullptr;  // the tests run on any computer
        environment.services = services.get();
        environment.dataFolder = temporary.filePath("data");
        environment.limits = limits;
        sensor = std::make_unique<Sensor>(environment);
        collectReports(*sensor, &reports);
    }
    bool open() {
        return sensor->open(applicationSettings()) && readCameraParameters(*sensor, &parameters, [] {});
    }
    void reopen(const QString& faults = {}) {
        start(faults);
        ASSERT_TRUE(open()) << ::testing::PrintToString(reports);
    }
    /// Returns the block in the flash as a newly started program reads it.
    QByteArray stored() {
        reopen();
        KXCalibRectParameters block{};
        EXPECT_TRUE(sensor->read(sensor->device().get(), &KXDevice::rectParameters, &block));
        return {reinterpret_cast<const char*>(&block), sizeof(block)};
    }

    LogCapture log;
    QString flashFile;
    FakeServiceControl control;
    std::unique_ptr<PXMServiceManager> services;
    ModuleLink::Limits limits;
    std::vector<std::string> reports;
    CameraParameters parameters;
    std::unique_ptr<Sensor> sensor;
};

/// The text that follows the library's own text in the report of a status; 5 has none.
inline std::string userText(int status) {
    switch (status) {
        case 1:
            return "A KXAPI call failed.";
        case 4:
            return "The device has not been calibrated or has invalid calibration data.";
        case 6:
            return "Something bad has happened with the Tarnex Deepvane camera.";
        case 7:
            return "Please close all Tarnex Deepvane applications and any web browsers before proceeding.";
        case 11:
            return "Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update "
                   "your firmware and run the application again.";
        default:
            return "An unknown error has occured.";
    }
}

inline constexpr int kStatuses[] = {1, 4, 5, 6, 7, 11, 3, 77};

}  // namespace fieldcal::testing
