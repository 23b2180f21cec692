#pragma once

#include "app/QmlFunctions.h"

#include <QString>

namespace fieldcal {

/// Shows the newest lines of the history, and says where the reports are. Main thread.
void showHistory(QmlFunctions& functions, const QString& dataFolder);

}  // namespace fieldcal
