#include "tools/Console.h"
#include "tools/Verbs.h"

namespace fieldcal {

int runSynthesize(const QStringList&) {
    return fail("this build renders no worlds");
}

}  // namespace fieldcal
