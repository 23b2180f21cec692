#pragma once

#include <QStringList>

namespace fieldcal {

/// Each verb takes the arguments after its name and gives the exit status.
int runCalibrate(const QStringList& arguments);
int runSynthesize(const QStringList& arguments);
int runRecord(const QStringList& arguments);
int runBackup(const QStringList& arguments);
int runRestore(const QStringList& arguments);
int runInfo(const QStringList& arguments);

/// Prints the reason and how to use the program; gives the exit status for wrong usage.
int refuseUsage(const QString& why);

}  // namespace fieldcal
