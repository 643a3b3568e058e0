#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QWidget>

#include "common/paths.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "program/program.h"
#include "support/doubles.h"
#include "support/sourcefile.h"
#include "windows/look.h"
#include "windows/reportprinter.h"
#include "windows/windowprobe.h"

// Opens every window on the sample bid and saves a picture of each. tamo_pictures FOLDER takes them
// in full size, light and dark, at 100 and 200 per cent; tamo_pictures FOLDER WIDTHxHEIGHT-LOOK-
// PERCENT on a screen of that size, as far as the windows fit (800x600-dark-100, 1366x768-light-150
// with larger letters, 3840x2160-light-200 with two pixels for one).

namespace tamo {
namespace {

struct Pictures {
  Pictures(const QString& home, const QString& outFolder, const QString& ending)
      : platform{disk,      clock,
                 messages,  printer,
                 clipboard, test::SourceFile(QStringLiteral("data")),
                 home,      home + QStringLiteral("/config")},
        out(outFolder),
        suffix(ending) {
    viewer.Patience().Set(2000);
    program.Start();
    Take("Tamo", "start");
  }

  Form& FormOf(const char* name) { return *program.FindForm(QLatin1String(name)); }
  Control& At(const char* form, const char* name) {
    return *FormOf(form).Find(QLatin1String(name));
  }
  void Menu(const char* form, const char* entry) {
    desk.ChooseMenu(*FormOf(form).FindMenu(QLatin1String(entry)));
  }
  void Type(const char* text) {
    if (desk.Focused() != nullptr) desk.TypeText(*desk.Focused(), QLatin1String(text));
  }
  void Enter() {
    if (desk.Focused() != nullptr) desk.PressKey(*desk.Focused(), Key::Named(Key::Name::Enter));
  }
  void Pick(const char* form, const char* list, int row) {
    auto& rows = dynamic_cast<OrderedList&>(At(form, list));
    if (row < rows.Count()) desk.ClickRow(rows, row);
  }
  void Wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  }
  void Take(const char* form, const char* scene) {
    windows.SyncNow();
    Wait(60);
    QWidget* window = windows.WindowOf(FormOf(form));
    const QString file = QStringLiteral("%1/%2-%3%4.png")
                             .arg(out, QLatin1String(form), QLatin1String(scene), suffix);
    window->grab().save(file);
    QTextStream(stdout) << file << ' ' << window->width() << 'x' << window->height() << '\n';
  }

  RealDisk disk;
  test::FixedClock clock;
  test::ScriptedMessages messages;
  test::RecordingPrinter printer;
  test::RecordingClipboard clipboard;
  Platform platform;
  QString out;
  QString suffix;
  Files planFiles{disk};
  WorkerEngine engine{TAMO_ENGINE};
  PdfDraw viewer{planFiles, engine};
  Program program{platform, viewer};
  test::WindowProbe windows{program, &viewer.Pictures()};
  Desk& desk = program.GetDesk();
};

void CopyFolder(const QString& from, const QString& to) {
  QDir().mkpath(to);
  for (const QFileInfo& item : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
    const QString target = to + QLatin1Char('/') + item.fileName();
    if (item.isDir()) {
      CopyFolder(item.filePath(), target);
    } else {
      QFile::copy(item.filePath(), target);
    }
  }
}

void Workspace(Pictures& p) {
  p.Menu("Tamo", "OpenProject");
  p.Take("Tamo", "list");
  p.Menu("Tamo", "Settings1");
  p.Take("Settings", "form");
  p.FormOf("Settings").Hide();
  p.Pick("Tamo", "JobsList", 0);
  p.program.RefreshHomePage();
  p.Take("Tamo", "home");
  p.Wait(800);
  p.Take("Tamo", "home");
  p.Menu("Tamo", "LockProject");
  p.Menu("Tamo", "ProjectInformation");
  p.Take("Tamo", "panel");
  p.Menu("Tamo", "LockProject");
}

void Preview(Pictures& p);

void Reports(Pictures& p) {
  p.Menu("Tamo", "RecapSheet");
  p.Take("Reports", "recap");
  Preview(p);
  p.Menu("Tamo", "oCopy");
  p.Take("Reports", "office");
  p.FormOf("Reports").Hide();
}

// What the print command shows before anything goes to a printer.
void Preview(Pictures& p) {
  ReportPrinter printer;
  printer.BeginPrint(QStringLiteral("Recap Sheet"));
  printer.SetFont(QStringLiteral("MS Gothic"), 12);
  for (const QString& row : dynamic_cast<OrderedList&>(p.At("Reports", "Reporter")).Rows())
    printer.PrintLine(QString(20, QLatin1Char(' ')) + row);
  QTimer::singleShot(400, [&p] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    dialog->grab().save(QStringLiteral("%1/Print-preview%2.png").arg(p.out, p.suffix));
    dialog->close();
  });
  printer.EndPrint();
}

void Takeoff(Pictures& p) {
  if (p.program.FindForm(QStringLiteral("RFSForm")) == nullptr) return;
  p.Menu("Tamo", "EnterRoomFinishSchedule");
  p.desk.DoubleClick(p.At("RFSForm", "Room"));
  p.Take("RFSForm", "rooms");
  p.Menu("Tamo", "TakeOffRoomFinishSchedule");
  p.Type("9");
  p.Enter();
  p.Type("12.5");
  p.Enter();
  p.Take("RFSForm", "takeoff");
  p.FormOf("RFSForm").Hide();
  p.Menu("Tamo", "NonFinishScheduleItems");
  p.Pick("EstimateForm", "AreasList", 0);
  p.Pick("EstimateForm", "AreaList", 0);
  p.Take("EstimateForm", "area");
  p.FormOf("EstimateForm").Hide();
  p.Menu("Tamo", "BottomLineItems");
  p.Take("BottomLine", "items");
  p.FormOf("BottomLine").Hide();
  p.Menu("Tamo", "PriceAdjustment");
  p.Take("AdjustmentForm", "amount");
  p.FormOf("AdjustmentForm").Hide();
}

void Pricing(Pictures& p) {
  if (p.program.FindForm(QStringLiteral("Pricing")) == nullptr) return;
  p.Menu("Tamo", "UnitsPricing");
  p.Take("Pricing", "empty");
  p.desk.ClickInto(p.At("Pricing", "Description"));
  p.Take("Pricing", "names");
  p.Type("wal");
  p.Take("Pricing", "suggestions");
  p.desk.Dispatch([&] { dynamic_cast<TextField&>(p.At("Pricing", "Description")).Clear(); });
  p.desk.ClickInto(p.At("Pricing", "Description"));
  p.Pick("Pricing", "DescriptionsList", 2);
  p.Take("Pricing", "materials");
  p.Menu("Pricing", "Markups");
  p.Take("Pricing", "markups");
  p.Menu("Pricing", "Markups");
  p.FormOf("Pricing").Hide();
}

void Plan(Pictures& p) {
  if (p.FormOf("OST").Controls().empty()) return;
  p.Menu("Tamo", "OST1");
  p.Menu("OST", "Quarter");
  p.viewer.OpenFile(p.platform.programFolder + QStringLiteral("/About.pdf"), QString());
  p.viewer.SetZoom(100);
  p.desk.Dispatch([&] { p.viewer.PickTool(PlanTool::Measuring); });
  p.desk.Dispatch([&] { p.viewer.DrawLine({100, 120}, {300, 120}); });
  p.desk.UserFocus(p.At("OST", "picPdfDraw"));
  p.windows.SyncNow();
  p.viewer.Pictures().WaitUntilSharp(3000);
  p.Wait(200);
  p.Take("OST", "plan");
  p.Menu("OST", "GetFiles");
  p.Menu("OST", "LinesColor");
  p.desk.ClickInto(p.At("OST", "Command3"));
  p.Take("OST", "panels");
}

void Shell(Pictures& p) {
  p.desk.ClickInto(p.At("Settings", "Option2"));
  p.program.GetFiles().SaveText(p.platform.homeFolder + QStringLiteral("/gone/Rooms.tamo"),
                                QStringLiteral("x"));
  p.Menu("OST", "GetFiles");
  p.Take("OST", "shell");
  p.Menu("OST", "PriceAdjustment");
  p.Take("AdjustmentForm", "unsaved");
  p.FormOf("AdjustmentForm").Hide();
  p.Menu("OST", "BreakDown");
  p.FormOf("Reports").Hide();
  p.Menu("OST", "OpenProject");
  p.Take("Tamo", "projects");
}

void Help(Pictures& p) {
  if (p.program.FindForm(QStringLiteral("Docs")) == nullptr) return;
  p.Menu("Tamo", "Docs1");
  p.Pick("Docs", "MenuList", 1);
  p.Take("Docs", "topic");
}

int TakeAll(const QString& out, const QString& variant) {
  QTemporaryDir home;
  CopyFolder(test::SourceFile(QStringLiteral("data/Sample/Tamo")),
             home.path() + QStringLiteral("/Tamo"));
  if (variant.endsWith(QLatin1String("-150"))) {
    QFont font = QApplication::font();
    font.setPointSizeF(10.5 * 1.5);
    QApplication::setFont(font);
  }
  ApplyLook(variant.contains(QLatin1String("dark")) ? Look::Dark() : Look::Light());
  Pictures pictures(home.path(), out, QLatin1Char('-') + variant);
  Workspace(pictures);
  Reports(pictures);
  Takeoff(pictures);
  Pricing(pictures);
  Plan(pictures);
  Help(pictures);
  Shell(pictures);
  return 0;
}

// A screen of its own for the process, described in a file; two hundred per cent are two pixels for
// each one that the program counts.
QByteArray DescribedScreen(const QString& size, bool doubled, const QTemporaryDir& folder) {
  const QStringList sides = size.split(u'x');
  const int pixels = doubled ? 2 : 1;
  QFile file(folder.filePath(QStringLiteral("screen.json")));
  if (!file.open(QIODevice::WriteOnly)) return "offscreen";
  file.write(QStringLiteral(R"({"screens":[{"name":"screen","x":0,"y":0,"width":%1,"height":%2,)"
                            R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":%3}]})")
                 .arg(sides.value(0).toInt() / pixels)
                 .arg(sides.value(1).toInt() / pixels)
                 .arg(pixels)
                 .toUtf8());
  return "offscreen:configfile=" + QFile::encodeName(file.fileName());
}

int Variants(const QString& program, const QString& out) {
  for (const char* variant : {"light-100", "dark-100", "light-200", "dark-200"}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const bool large = QLatin1String(variant).endsWith(QLatin1String("200"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(large ? 2 : 1));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, {out, QLatin1String(variant)});
    process.waitForFinished(120000);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) return 1;
  }
  return 0;
}

}  // namespace
}  // namespace tamo

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  const QStringList words = QString::fromLocal8Bit(argc > 2 ? argv[2] : "").split(u'-');
  if (words.size() == 3) {
    qputenv("QT_QPA_PLATFORM",
            tamo::DescribedScreen(words[0], words[2] == QLatin1String("200"), folder));
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2) {
    QTextStream(stderr) << "tamo_pictures FOLDER [VARIANT]\n";
    return 2;
  }
  QDir().mkpath(arguments[1]);
  if (arguments.size() == 2) return tamo::Variants(arguments[0], arguments[1]);
  return tamo::TakeAll(arguments[1], arguments[2]);
}
