#pragma once

#include "app/ApplicationEnvironment.h"

namespace fieldcal {

/// The whole program. Gives the process's exit code: 1 at once and silently while another copy runs, 1 after a message
/// about an error of the camera library, else 0.
int runApplication(int& argc, char** argv, ApplicationEnvironment environment = systemApplicationEnvironment());

}  // namespace fieldcal
