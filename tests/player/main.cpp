// tamo_scenario: plays scenario files.

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <new>

#include "player/formsstage.h"
#include "player/machine.h"
#include "player/options.h"
#include "player/programplayed.h"
#include "player/runner.h"
#include "player/script.h"
#ifdef TAMO_PLAYER_WINDOWS
#include "player/windowsstage.h"
#endif

namespace tamo::player {
namespace {

constexpr unsigned kLongestStep = 120;  // seconds

constexpr char kUsage[] =
    "tamo_scenario --program DIR --home DIR [--windows] [--tell] [--clock YYYY-MM-DD] FILE...";

#ifdef TAMO_PLAYER_WINDOWS
constexpr bool kHasWindows = true;
#else
constexpr bool kHasWindows = false;
#endif

std::unique_ptr<Stage> MakeStage([[maybe_unused]] bool windows) {
#ifdef TAMO_PLAYER_WINDOWS
  if (windows) return MakeWindowsStage();
#endif
  return std::make_unique<FormsStage>();
}

Outcome PlayFile(const Options& options, const QString& name,
                 const std::function<void(const Step& step)>& onStep) {
  QTextStream out(stdout);
  QTextStream err(stderr);
  QStringList lines;
  if (!ReadScenarioLines(name, lines)) {
    err << name << ": the scenario can't be read\n";
    return Outcome::NotUnderstood;
  }
  if (options.windows && !kHasWindows) {
    err << "this player was built without windows\n";
    return Outcome::NotUnderstood;
  }
  Machine machine(options.program, options.home);
  machine.clock.today = options.clock;
  Runner runner(
      machine, [&] { return MakeStage(options.windows); },
      [](const Platform& platform) { return std::make_unique<ProgramPlayed>(platform); }, out, err);
  runner.onStep = onStep;
  return runner.Play(name, StepsOf(name, lines));
}

// What a child that breaks down leaves for its parent.
struct LastStep {
  int line = 0;
  char file[1024] = {};  // as the machine spells it, cut when it is longer

  void Set(const Step& step) {
    line = step.line;
    qstrncpy(file, QFile::encodeName(step.file).constData(), sizeof file);
  }
};

// In one call and unbuffered, so that it is out even if the program is killed in the step.
void Tell(const Step& step) {
  const QByteArray line = "step " + QByteArray::number(step.line) + '\n';
  [[maybe_unused]] const ssize_t wrote =
      ::write(STDOUT_FILENO, line.constData(), static_cast<size_t>(line.size()));
}

// Each scenario in a process of its own: nothing of one is left for the next, and one that brings
// the program down, or never comes back from a step, does not hide those behind it.
Outcome PlayApart(const Options& options, const QString& name) {
  void* shared =
      ::mmap(nullptr, sizeof(LastStep), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) return PlayFile(options, name, [](const Step&) {});
  auto* last = new (shared) LastStep;
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    const auto outcome =
        static_cast<int>(PlayFile(options, name, [&options, last](const Step& step) {
          last->Set(step);
          if (options.tell) Tell(step);
          ::alarm(kLongestStep);
        }));
    std::fflush(nullptr);
    ::_exit(outcome);
  }
  int status = 0;
  while (child > 0 && ::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  const QString place = QStringLiteral("%1:%2").arg(QFile::decodeName(last->file)).arg(last->line);
  ::munmap(shared, sizeof(LastStep));
  if (child < 0) return PlayFile(options, name, [](const Step&) {});
  if (WIFEXITED(status) && WEXITSTATUS(status) <= static_cast<int>(Outcome::NotUnderstood))
    return static_cast<Outcome>(WEXITSTATUS(status));
  QTextStream err(stderr);
  err << place << ": ";
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) {
    err << "the program did not come back from this step\n";
  } else {
    err << "the program broke down in this step";
    if (WIFSIGNALED(status)) err << " (signal " << WTERMSIG(status) << ')';
    err << '\n';
  }
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
