#include "tools/CommandLine.h"
#include "tools/Console.h"

namespace fieldcal {

int run(const ImportOptions&) {
    return fail("this build imports no images, as it has no YAML reader");
}

}  // namespace fieldcal
