#pragma once

#include <cstdint>

namespace kxsim {

/// The library's text for a status, for every value.
const char* statusText(std::int32_t status);

}  // namespace kxsim
