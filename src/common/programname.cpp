#include "common/programname.h"

#include <QCoreApplication>
#include <QStringList>
#include <mutex>

namespace tamo {
namespace {

constexpr qsizetype kMachine = 16;  // characters

ProgramName Own() {
  const ProgramRun run = BeginRun();
  EndRun(run);
  return ProgramNameOf(run);
}

}  // namespace

ProgramName ProgramNameOf(const ProgramRun& run) {
  QString start = run.processStart;
  return {run.machineId, run.process, start.replace(QLatin1Char(' '), QLatin1Char('-'))};
}

// A process that was split off another one is a program of its own.
ProgramName ThisProgram() {
  static std::mutex mutex;
  static ProgramName own;
  const std::lock_guard lock(mutex);
  if (own.process != QCoreApplication::applicationPid()) own = Own();
  return own;
}

bool ProgramName::OfThisMachine() const {
  return machine == ThisProgram().machine;
}

ProgramRun ProgramName::Run() const {
  ProgramRun run;
  run.machineId = machine;
  run.process = process;
  run.processStart = start;
  run.processStart.replace(start.lastIndexOf(QLatin1Char('-')), 1, QLatin1Char(' '));
  return run;
}

bool ProgramName::Lives() const {
  const ProgramName own = ThisProgram();
  return (process == own.process && start == own.start) || !RunIsGone(Run());
}

QString ProgramName::Text() const {
  return QStringLiteral("%1.%2.%3").arg(machine).arg(process).arg(start);
}

bool ReadProgramName(const QString& fileName, ProgramName& program) {
  const QStringList words = fileName.split(QLatin1Char('.'));
  if (words.size() < 4 || words[0].size() != kMachine) return false;
  bool number = false;
  program = {words[0], words[1].toLongLong(&number), words[2]};
  return number && program.process > 0;
}

}  // namespace tamo
