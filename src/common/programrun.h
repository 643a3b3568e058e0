#pragma once

#include <QString>

namespace tamo {

// One run of the program, so that another one, here or elsewhere, can tell who it is and whether it
// still lives.
struct ProgramRun {
  QString user;
  QString machine;       // its name
  QString machineId;     // tells two machines of one name apart, and what lies in a container
  qint64 process = 0;    // its number
  QString processStart;  // in the system's own measure: a number is given again, a start is not
  QString run;           // unique among all runs

  bool operator==(const ProgramRun& other) const { return !run.isEmpty() && run == other.run; }
};

// A new run in this process, which counts as alive until it has ended.
ProgramRun BeginRun();
void EndRun(const ProgramRun& run);

// Whether a run on this machine (the same machineId) has certainly ended: its process is gone, its
// number belongs to another one, or it has ended in this very process.
bool RunIsGone(const ProgramRun& run);

}  // namespace tamo
