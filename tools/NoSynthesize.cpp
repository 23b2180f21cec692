#include "tools/CommandLine.h"
#include "tools/Console.h"

namespace fieldcal {

int run(const SynthesizeOptions&) {
    return fail("this build renders no worlds");
}

}  // namespace fieldcal
