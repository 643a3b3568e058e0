#pragma once

namespace tamo {

// Whether the program was started for a command, and not for its windows.
bool AsksForCommand(int argc, char** argv);
// Runs the command on this machine, without a display. The program's exit status.
int CommandMain(int argc, char** argv);

}  // namespace tamo
