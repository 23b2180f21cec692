#pragma once

#include "devices/ParameterBackup.h"
#include "tools/CheckLine.h"
#include "tools/ConnectedModule.h"
#include "tools/SceneCheck.h"

#include <optional>

namespace fieldcal {

/// What the module's parameter block and the companion library showed.
struct BlockFindings {
    std::optional<ParameterBackup> block;
    CheckLines lines;
    bool companionAnswers = false;
    Direction companion = Direction::Unknown;  ///< in which direction its rotations leave the block unchanged
    QString companionText;
};

/// Reads the block twice and has the companion library enter the rotations that the module tells. Nothing is written.
BlockFindings checkBlock(ConnectedModule& module);

/// Whether the companion library leaves a block with an unchanged rotation as it is. `shown`: the direction of the
/// rotation that the scene shows.
CheckLine companionLine(const BlockFindings& findings, Direction shown);

/// Writes the block as it is into the flash, commits, resumes and reads again.
CheckLine writeBackUnchanged(ConnectedModule& module, const ParameterBackup& before);

}  // namespace fieldcal
