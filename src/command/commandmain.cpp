#include "command/commandmain.h"

#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <csignal>
#include <cstdio>
#include <memory>

#include "command/command.h"
#include "command/standardoutput.h"
#include "common/programfolder.h"

namespace tamo {
namespace {

QStringList Arguments(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments += QString::fromLocal8Bit(argv[i]);
  return arguments;
}

// Only pages need fonts, and those a platform; one that draws nowhere is always there.
std::unique_ptr<QCoreApplication> NewApplication(bool pages, int& argc, char** argv) {
  if (!pages) return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QGuiApplication>(argc, argv);
}

// What the toolkit has to say of the machine is no matter of a command.
void SayNothing(QtMsgType, const QMessageLogContext&, const QString&) {}

void Complain(const QString& line) {
  const QByteArray bytes = QStringLiteral("tamo: ").toUtf8() + line.toUtf8() + '\n';
  std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
}

}  // namespace

bool AsksForCommand(int argc, char** argv) {
  return IsCommand(Arguments(argc, argv));
}

int CommandMain(int argc, char** argv) {
#ifndef Q_OS_WIN
  // Told as any other failure of the output: nobody reads it, it grows too long.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  QCoreApplication::setApplicationName(QStringLiteral("tamo"));
  qInstallMessageHandler(SayNothing);
  const QStringList arguments = Arguments(argc, argv);
  CommandLine line;
  ReadCommandLine(arguments, line);
  const auto application = NewApplication(line.WantsPdf(), argc, argv);
  RealDisk disk;
  StandardOutput out;
  const CommandPlatform platform{
      disk,
      out,
      Complain,
      out.IsTerminal(),
      FindProgramFolder(QCoreApplication::applicationDirPath()),
#ifdef Q_OS_WIN
      QStringLiteral("C:"),
#else
      QDir::homePath(),
#endif
      QDir::toNativeSeparators(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)),
      QStringLiteral(TAMO_VERSION)};
  return static_cast<int>(RunCommand(arguments, platform));
}

}  // namespace tamo
