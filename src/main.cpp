#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QSessionManager>
#include <QStandardPaths>
#include <QTimer>

#include "common/memory.h"
#include "common/paths.h"
#include "plans/mupdfengine.h"
#include "plans/pdfdraw.h"
#include "program/program.h"
#include "windows/look.h"
#include "windows/qtservices.h"
#include "windows/reportprinter.h"
#include "windows/windowkeeper.h"

// Starts the toolkit, the program and its windows. There is no command line.

namespace {

// How long the window waits for a plan before it shows a blank sheet and goes on.
constexpr int kPatience = 80;

QString HomeFolder() {
#ifdef Q_OS_WIN
  return QStringLiteral("C:");
#else
  return QDir::homePath();
#endif
}

QString ConfigFolder() {
  return QDir::toNativeSeparators(
      QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}

}  // namespace

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QCoreApplication::setApplicationName(QStringLiteral("tamo"));
  QGuiApplication::setDesktopFileName(QStringLiteral("tamo"));
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));

  tamo::RealDisk disk;
  tamo::RealDisk historyDisk;
  tamo::SystemClock clock;
  tamo::BoxMessages messages;
  tamo::ReportPrinter printer;
  tamo::DeskClipboard clipboard;
  const QString config = ConfigFolder();
  for (const QString& level : tamo::FolderLevels(config + tamo::PlatformSeparator()))
    disk.MakeFolder(level);
  const tamo::Platform platform{
      disk,         clock,     messages,
      printer,      clipboard, tamo::FindProgramFolder(QCoreApplication::applicationDirPath()),
      HomeFolder(), config,    &historyDisk};
  // Behind the first window: the readers of pictures take their time to load.
  QTimer::singleShot(0, [&platform] {
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("tamo"),
                         QIcon(platform.programFolder + QStringLiteral("/desktop/tamo.svg"))));
  });

  tamo::Files planFiles(disk);
  tamo::MuPdfEngine engine;
  tamo::PdfDraw viewer(planFiles, engine);
  viewer.SetPatience(kPatience);
  tamo::Program program(platform, viewer);
  tamo::WindowKeeper windows(program, &viewer,
                             config + tamo::PlatformSeparator() + QStringLiteral("windows.ini"));
  messages.beforeBox = [&windows] { windows.SyncNow(); };
  program.onEnded = [] { QTimer::singleShot(0, [] { QApplication::quit(); }); };
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &windows,
                   [&program](QSessionManager& session) {
                     if (!program.MayEnd()) session.cancel();
                   });
  program.Start();
  return QApplication::exec();
}
