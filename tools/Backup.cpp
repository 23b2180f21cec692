#include "devices/ParameterBackup.h"
#include "tools/CommandLine.h"
#include "tools/ConnectedModule.h"
#include "tools/Console.h"

namespace fieldcal {
namespace {

bool keep(const ParameterBackup& backup, QString* file, QString* why) {
    if (file->isEmpty()) return keepBackup(userDataFolder() + "/backups", backup, file, why);
    return writeBackup(*file, backup, why);
}

}  // namespace

int run(const BackupOptions& options) {
    QString why;
    silenceLogs();
    ConnectedModule module;
    ParameterBackup backup;
    QString file = QString::fromStdString(options.file);
    if (!module.open(false, &why) || !module.readBlock(&backup, &why) || !keep(backup, &file, &why)) return fail(why);
    printLine(QString("The parameter block of module %1 is kept in ").arg(backup.serial) + file);
    return module.close(&why) ? kSolved : fail(why);
}

int run(const RestoreOptions& options) {
    QString why;
    silenceLogs();
    ParameterBackup backup;
    if (!readBackup(QString::fromStdString(options.file), &backup, &why)) return fail(why);
    ConnectedModule module;
    if (!module.open(false, &why) || !module.restoreBlock(backup, &why)) return fail(why);
    printLine(QString("The parameter block of %1 is in module %2 again.")
                  .arg(backup.taken.toString(Qt::ISODate))
                  .arg(backup.serial));
    return module.close(&why) ? kSolved : fail(why);
}

}  // namespace fieldcal
