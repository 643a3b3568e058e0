#include "command/command.h"

#include "command/commands.h"

namespace tamo {

ExitStatus RunCommand(const CommandLine& line, const CommandPlatform& platform) {
  if (line.verb == CommandLine::Verb::Help || line.verb == CommandLine::Verb::Version) {
    const QString text = line.verb == CommandLine::Verb::Help
                             ? CommandHelp()
                             : QStringLiteral("Tamo %1\n").arg(platform.version);
    return platform.out.Write(text.toUtf8()) == 0 ? ExitStatus::Done : ExitStatus::NotWritten;
  }
  CommandData data(platform);
  const CommandOutput output(line, platform, data);
  QString problem = data.Open(line.data);
  if (!problem.isEmpty()) {
    platform.complain(problem);
    return ExitStatus::NoBid;
  }
  problem = output.Refusal();
  if (!problem.isEmpty()) {
    platform.complain(problem);
    return ExitStatus::Usage;
  }
  const CommandRun run{line, platform, data, output};
  if (line.verb == CommandLine::Verb::Report) return RunReport(run);
  return line.verb == CommandLine::Verb::List ? RunList(run) : RunCheck(run);
}

ExitStatus RunCommand(const QStringList& arguments, const CommandPlatform& platform) {
  CommandLine line;
  const QString problem = ReadCommandLine(arguments, line);
  if (problem.isEmpty()) return RunCommand(line, platform);
  platform.complain(problem + QStringLiteral(" \"tamo --help\" tells more."));
  return ExitStatus::Usage;
}

}  // namespace tamo
