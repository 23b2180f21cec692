#pragma once

#include "devices/ParameterBackup.h"
#include "tools/CheckLine.h"
#include "tools/ConnectedModule.h"
#include "tools/SceneCheck.h"

#include <optional>

namespace fieldcal {

/// The result of checking the module's parameter block and the companion library.
struct BlockFindings {
    std::optional<ParameterBackup> block;
    CheckLines lines;
    bool companionAnswers = false;
    Direction companion = Direction::Unknown;  ///< in which the rotations leave the block unchanged
    QString companionText;
};

/// Reads the block twice and lets the companion library enter the rotations that the module reports into a copy.
/// Nothing is written.
BlockFindings checkBlock(ConnectedModule& module);

/// Returns the line about whether the companion library leaves a block unchanged when the rotation is unchanged.
/// `shown`: the direction of the rotation that the scene shows.
CheckLine companionLine(const BlockFindings& findings, Direction shown);

/// Writes the unchanged block into the flash, commits, resumes and reads it again.
CheckLine writeBackUnchanged(ConnectedModule& module, const ParameterBackup& before);

}  // namespace fieldcal
