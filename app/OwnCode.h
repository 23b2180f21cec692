#pragma once

#include <QString>

#include <optional>

class QQmlEngine;

namespace fieldcal {

/// A program with administrator rights must not load code that its caller chooses. Qt and OpenCV load plugins, modules
/// and styles that variables of the environment and arguments name.

/// Returns whether a variable of the environment may decide what Qt or OpenCV load.
bool mayNameCode(const QString& variable);

/// Removes these variables from the environment of the process.
void clearVariablesThatNameCode();

/// Where the program may have more rights than its caller, removes these variables and all arguments, of which it has
/// none of its own, and has Qt search for plugins only in the program's folder. To be called before Qt loads anything.
void allowOnlyOwnCode(int& argc, char** argv);

/// Has the engine search for modules only in the program's folder, where `allowOnlyOwnCode` does so for plugins.
void allowOnlyOwnModules(QQmlEngine& engine);

/// Returns whether the program may have more rights than its caller: on Windows always, where its manifest requests
/// them.
bool mayHaveMoreRights();

/// Returns the folder with all plugins and modules of the program; none where they belong to the system.
std::optional<QString> ownLibraries();

}  // namespace fieldcal
