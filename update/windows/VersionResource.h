#pragma once

#include "update/ProgramIdentity.h"

#include <optional>
#include <string>

namespace fieldcal {

/// Returns what the version resource of a program's file states; the product is empty where it states none. None
/// without such a resource.
std::optional<ProgramIdentity> identityOf(const std::wstring& file);

}  // namespace fieldcal
