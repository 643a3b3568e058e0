#pragma once

#include "command/commandbid.h"
#include "command/commandoutput.h"

namespace tamo {

// What a command works with.
struct CommandRun {
  const CommandLine& line;
  const CommandPlatform& platform;
  CommandData& data;
  const CommandOutput& output;
};

ExitStatus RunReport(const CommandRun& run);
ExitStatus RunList(const CommandRun& run);
ExitStatus RunCheck(const CommandRun& run);

}  // namespace tamo
