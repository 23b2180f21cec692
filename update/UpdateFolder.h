#pragma once

#include <QString>

namespace fieldcal {

/// Returns the folder in which installers get a private folder of their own. Users may not rename or remove what
/// belongs to others in it.
QString updateFolder();

}  // namespace fieldcal
