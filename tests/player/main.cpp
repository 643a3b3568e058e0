// tamo_scenario: plays scenario files.

#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "common/textlines.h"
#include "player/formsstage.h"
#include "player/machine.h"
#include "player/options.h"
#include "player/parser.h"
#include "player/programplayed.h"
#include "player/runner.h"
#ifdef TAMO_PLAYER_WINDOWS
#include "player/windowsstage.h"
#endif

namespace tamo::player {
namespace {

constexpr char kUsage[] =
    "tamo_scenario --program DIR --home DIR [--windows] [--clock YYYY-MM-DD] FILE...";

std::unique_ptr<Stage> MakeStage(bool windows) {
#ifdef TAMO_PLAYER_WINDOWS
  if (windows) return MakeWindowsStage();
#endif
  return windows ? nullptr : std::make_unique<FormsStage>();
}

bool ReadScenario(const QString& name, QStringList& lines) {
  QFile file(name);
  const bool open = name == QStringLiteral("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                : file.open(QIODevice::ReadOnly);
  if (open) lines = WholeLines(DecodedText(file.readAll()));
  return open;
}

Outcome PlayFile(const Options& options, const QString& name) {
  QTextStream out(stdout);
  QTextStream err(stderr);
  QStringList lines;
  if (!ReadScenario(name, lines)) {
    err << name << ": the scenario can't be read\n";
    return Outcome::NotUnderstood;
  }
  const std::unique_ptr<Stage> stage = MakeStage(options.windows);
  if (stage == nullptr) {
    err << "this player was built without windows\n";
    return Outcome::NotUnderstood;
  }
  Machine machine(options.program, options.home);
  machine.clock.today = options.clock;
  Runner runner(
      machine, *stage,
      [](const Platform& platform) { return std::make_unique<ProgramPlayed>(platform); }, out, err);
  const QString folder = name == QStringLiteral("-") ? QStringLiteral(".") : QFileInfo(name).path();
  return runner.Play(name, folder, ParseScenario(lines));
}

// Each scenario in a process of its own: nothing of one is left for the next, and one that brings
// the program down does not hide those behind it.
Outcome PlayApart(const Options& options, const QString& name) {
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child < 0) return PlayFile(options, name);
  if (child == 0) {
    const auto outcome = static_cast<int>(PlayFile(options, name));
    std::fflush(nullptr);
    ::_exit(outcome);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
  }
  if (WIFEXITED(status) && WEXITSTATUS(status) <= static_cast<int>(Outcome::NotUnderstood))
    return static_cast<Outcome>(WEXITSTATUS(status));
  QTextStream(stderr) << name << ": the program broke down"
                      << (WIFSIGNALED(status) ? QStringLiteral(" (signal %1)").arg(WTERMSIG(status))
                                              : QString())
                      << '\n';
  return Outcome::Failed;
}

int Main(const QStringList& arguments) {
  Options options;
  const QString wrong = ReadOptions(arguments, options);
  if (!wrong.isEmpty()) {
    QTextStream(stderr) << wrong << "\nusage: " << kUsage << '\n';
    return static_cast<int>(Outcome::NotUnderstood);
  }
  const QTemporaryDir folder;
  if (!options.fresh.isEmpty()) {
    options.program = folder.filePath(QStringLiteral("program"));
    options.home = folder.filePath(QStringLiteral("home"));
    Machine::Copy(options.fresh, options.program);
    QDir().mkpath(options.home);
  }
  Outcome worst = Outcome::Held;
  for (const QString& name : options.files) worst = std::max(worst, PlayApart(options, name));
  return static_cast<int>(worst);
}

}  // namespace
}  // namespace tamo::player

int main(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments += QString::fromLocal8Bit(argv[i]);
  return tamo::player::Main(arguments);
}
