#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSessionManager>
#include <QStandardPaths>
#include <QTimer>
#include <functional>
#include <memory>

#include "command/commandmain.h"
#include "common/memory.h"
#include "common/paths.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "program/program.h"
#include "schedule/sheetpictures.h"
#include "schedule/tesseract.h"
#include "windows/chartwindow.h"
#include "windows/chosenlook.h"
#include "windows/endsignals.h"
#include "windows/filedialog.h"
#include "windows/fontsahead.h"
#include "windows/look.h"
#include "windows/qtservices.h"
#include "windows/reportprinter.h"
#include "windows/windowkeeper.h"

// Starts the toolkit, the program and its windows. A plan that is named on the command line is
// opened; a command is run without any window.

namespace {

// How long the window waits for a plan before it shows a blank sheet and goes on.
constexpr int kPatience = 6;
// How often it is looked whether a project that another program has open is free; milliseconds.
constexpr int kTick = 3000;

// What is being typed into a field that waits is on the disk after this many milliseconds.
constexpr int kKeepEvery = 2000;

QString HomeFolder() {
#ifdef Q_OS_WIN
  return QStringLiteral("C:");
#else
  return QDir::homePath();
#endif
}

QString MakeConfigFolder(tamo::Disk& disk) {
  QString folder =
      QDir::toNativeSeparators(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
  for (const QString& level : tamo::FolderLevels(folder + tamo::PlatformSeparator()))
    disk.MakeFolder(level);
  return folder;
}

// Behind the first window: the readers of pictures take their time to load.
void ShowIconLater(const tamo::Platform& platform) {
  QTimer::singleShot(
      0, [&platform] { QApplication::setWindowIcon(tamo::ProgramIcon(platform.programFolder)); });
}

// The user logs out, or the machine is switched off.
void SaveBeforeTheSystemEnds(QApplication& application, tamo::Program& program) {
  QObject::connect(&application, &QGuiApplication::commitDataRequest, &application,
                   [&program](QSessionManager& session) {
                     program.SaveAll();
                     if (!session.allowsInteraction()) return;
                     if (!program.MayEnd()) session.cancel();
                     session.release();
                   });
}

void KeepWhatIsTyped(QTimer& timer, tamo::Program& program) {
  QObject::connect(&timer, &QTimer::timeout, &timer, [&program] { program.KeepWaiting(); });
  timer.start(kKeepEvery);
}

void OpenNamedPlan(const QStringList& arguments, tamo::Program& program) {
  if (arguments.size() < 2) return;
  program.OpenPlan(QDir::toNativeSeparators(QFileInfo(arguments[1]).absoluteFilePath()));
}

void LookAbout(QTimer& ticks, tamo::Program& program) {
  QObject::connect(&ticks, &QTimer::timeout, &ticks, [&program] { program.Tick(); });
  ticks.start(kTick);
}

// Reports are saved by way of the system's dialog for files, and charts get windows of their own.
void JoinFilesAndCharts(tamo::Program& program, const tamo::Platform& platform,
                        const std::function<void()>& beforeDialog) {
  const auto files = std::make_shared<tamo::FileDialog>(
      platform.configFolder + tamo::PlatformSeparator() + QStringLiteral("windows.ini"));
  files->beforeDialog = beforeDialog;
  const tamo::FileChooser choose = [files](const tamo::FileQuestion& question) {
    return files->Choose(question);
  };
  program.ChooseFilesWith(choose);
  program.DrawChartsWith([&disk = platform.disk, choose](const tamo::ChartData& chart) {
    (new tamo::ChartWindow(chart, disk, choose, QApplication::activeWindow()))->show();
  });
}

// Not quit: no window is asked, nothing may wait for an answer.
void SaveAndExit(tamo::Program& program) {
  program.SaveAll();
  QCoreApplication::exit();
}

// What must stand before there is an application.
void Prepare() {
  tamo::KeepMemory();
  QCoreApplication::setApplicationName(QStringLiteral("tamo"));
  QGuiApplication::setDesktopFileName(QStringLiteral("tamo"));
}

void Begin(tamo::Program& program, const tamo::Platform& platform) {
  ShowIconLater(platform);
  program.Start();
  program.BeginHomePage();
  OpenNamedPlan(QApplication::arguments(), program);
}

}  // namespace

int main(int argc, char** argv) {
  if (tamo::AsksForCommand(argc, argv)) return tamo::CommandMain(argc, argv);
  Prepare();
  tamo::FontsAhead fonts;
  QApplication application(argc, argv);
  fonts.GoOn();
  QApplication::setQuitOnLastWindowClosed(false);

  tamo::RealDisk disk;
  tamo::RealDisk historyDisk;
  tamo::SystemClock clock;
  tamo::BoxMessages messages;
  tamo::ReportPrinter printer;
  tamo::DeskClipboard clipboard;
  const QString config = MakeConfigFolder(disk);
  const tamo::Platform platform{
      disk,         clock,     messages,
      printer,      clipboard, tamo::FindProgramFolder(QCoreApplication::applicationDirPath()),
      HomeFolder(), config,    &historyDisk};

  tamo::Files planFiles(disk);
  tamo::WorkerEngine engine;
  tamo::PdfDraw viewer(planFiles, engine);
  viewer.Patience().Set(kPatience, 0);
  const tamo::Tesseract recogniser;
  tamo::Program program(platform, viewer);
  program.ReadPictures(std::make_shared<const tamo::SheetPictures>(recogniser));
  tamo::ChosenLook look(program);
  tamo::WindowKeeper windows(program, &viewer.Pictures(),
                             config + tamo::PlatformSeparator() + QStringLiteral("windows.ini"));
  windows.beforeWindow = [&fonts] { fonts.Wait(); };
  printer.company = [&program] { return program.CompanyName(); };
  messages.beforeBox = [&windows] { windows.SyncNow(); };
  JoinFilesAndCharts(program, platform, messages.beforeBox);
  program.onEnded = [] { QTimer::singleShot(0, [] { QApplication::quit(); }); };
  SaveBeforeTheSystemEnds(application, program);
  const tamo::EndSignals signals([&program] { SaveAndExit(program); });
  QTimer keeping;
  KeepWhatIsTyped(keeping, program);
  Begin(program, platform);
  QTimer ticks;
  LookAbout(ticks, program);
  QTimer::singleShot(0, &look, [&look] { look.FollowDesktop(); });
  return QApplication::exec();
}
