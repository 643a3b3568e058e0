#pragma once

#include <QString>

#include "common/programrun.h"

namespace tamo {

// A running program as the name of a file of its own tells it, so that a later program knows
// whether the one that left the file still lives.
struct ProgramName {
  QString machine;  // a number of it, and of the container the program runs in
  qint64 process = 0;
  QString start;  // when the process began: a process number is given again, a start is not

  bool OfThisMachine() const;
  // On this machine only. A program that can't be looked at lives.
  bool Lives() const;
  ProgramRun Run() const;  // as far as the name tells it
  QString Text() const;    // letters, digits, "." and "-"
};

ProgramName ThisProgram();
ProgramName ProgramNameOf(const ProgramRun& run);
// From a file name that begins with the text and a ".". False when it does not.
bool ReadProgramName(const QString& fileName, ProgramName& program);

}  // namespace tamo
