// Keeps the OpenGL driver loaded. If it were unloaded before the search for leaks, memory referenced by its variables
// would be reported as lost, without a symbol name that a suppression could use.
#include <dlfcn.h>

namespace {

[[maybe_unused]] void* const driver = dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);

}  // namespace
