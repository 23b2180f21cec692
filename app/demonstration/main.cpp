// The program on the simulated module alone, whatever else is installed, and without an administrator's rights.
#include "app/EntryPoint.h"
#include "kxapi/Library.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (!useSimulatedLibraries()) {
        std::fprintf(stderr, "The folder with the simulated libraries is missing.\n");
        return 1;
    }
    return fieldcal::runApplication(argc, argv);
}
