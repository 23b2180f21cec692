#pragma once

#include <QString>

namespace fieldcal::testing {

/// Sets the environment variables of the simulated module. During a test only its own variables are set, and none
/// afterwards.
class SimulatedModule {
protected:
    SimulatedModule() { forget(); }
    ~SimulatedModule() { forget(); }

    static void set(const char* variable, const QString& value) { qputenv(variable, value.toLocal8Bit()); }
    static void set(const char* variable, const std::string& value) { set(variable, QString::fromStdString(value)); }
    static void set(const char* variable, const char* value) { set(variable, QString(value)); }

private:
    static void forget() {
        for (const char* variable :
             {"KXSIM_SESSION", "KXSIM_SPEED", "KXSIM_PLATFORM", "KXSIM_RIGHT", "KXSIM_FAULTS", "KXSIM_FLASH",
              "KXSIM_WORLD", "KXSIM_SEED", "KXSIM_LIGHT", "KXSIM_DRIFT", "KXSIM_PLATFORM_DRIFT"})
            qunsetenv(variable);
    }
};

}  // namespace fieldcal::testing
