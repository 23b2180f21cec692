#pragma once

#include "app/ApplicationEnvironment.h"

namespace fieldcal {

/// Runs the whole program. Returns the exit code of the process: 1 immediately and silently while another copy runs, 1
/// after a message about an error of the camera library or about another program that uses the name of this one's lock,
/// otherwise 0.
int runApplication(int& argc, char** argv, ApplicationEnvironment environment = systemApplicationEnvironment());

}  // namespace fieldcal
