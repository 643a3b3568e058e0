#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <ostream>

#include "common/files.h"
#include "common/kit.h"
#include "reports/reportsform.h"
#include "support/doubles.h"
#include "support/faultdisk.h"

// How a failed expectation shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '|' << text.toStdString() << '|';
}

namespace tamo::test {

// One material of a system file, by its nine texts.
struct Material {
  QString name;
  QString orderUnit = QStringLiteral("EA");
  QString price = QStringLiteral("10");
  QString ratio = QStringLiteral("1");
  QString orderTag = QStringLiteral("upo");
  QString manhourRatio = QStringLiteral("1");
  QString laborTag = QStringLiteral("upm");
  QString waste = QStringLiteral("0");
  QString wage = QStringLiteral("0");
};

// A room line and an area line in the columns in which the takeoff writes them.
QString RoomLine(const QString& system, const QString& quantity,
                 const QString& unit = QStringLiteral("SF"), const QString& area = {});
QString AreaLine(const QString& system, const QString& quantity,
                 const QString& unit = QStringLiteral("SF"));

// A project of its own in a temporary data folder.
class BenchProject {
 public:
  BenchProject();
  explicit BenchProject(const QString& projectFolder);  // an existing one, with its separator

  void Write(const QString& file, const QStringList& lines);  // in the project's folder
  void Remove(const QString& file);
  void Room(const QString& name, const QStringList& lines);  // and its line in Rooms.tamo
  void Area(const QString& name, const QStringList& lines);
  void System(const QString& name, const QString& units, const QString& unitPrice,
              const std::vector<Material>& materials = {},
              const QString& colour = QStringLiteral("255000000"));
  void Items(const QStringList& lines) { Write(QStringLiteral("oItems.tamo"), lines); }
  void Adjust(const QString& text) { Write(QStringLiteral("Adjustment.tamo"), {text}); }

  ReportSource Source();
  Markups MarkupsOfFile();  // of the project's Markups.tamo; empty without one

  QString folder;  // with its separator
  FaultDisk disk;
  Files files{disk};
  QString dataPath;

 private:
  QTemporaryDir temporary_;
  QStringList rooms_;
  QStringList areas_;
};

// The form of the reports upon a project, joined to doubles that record what is asked of them.
class FormBench {
 public:
  explicit FormBench(BenchProject& project);

  struct RecordDouble : ProjectRecord {
    ProjectFacts facts;
    int loads = 0;
    void LoadJobNFO() override { ++loads; }
    ProjectFacts Facts() const override { return facts; }
  };
  struct WindowsDouble : FrontWindows {
    QStringList asked;
    void EnterMode(int) override {}
    void BringUpShell() override {}
    void ShowMainForm() override { asked += QStringLiteral("show main"); }
    void HideMainForm() override { asked += QStringLiteral("hide main"); }
    void ShowTitles() override {}
    void AskForEstimatorNumber() override {}
  };
  struct FilesDouble : ReportFiles {
    void Save(const ShownReport&) override {}
    void ShowChart(const ShownReport&) override {}
  };
  // What the price library asks of the rest: nothing that a report needs.
  struct PricingDouble : ReportRefresh, SettingsReader, ProjectNumberSeed {
    void PrintReport() override {}
    void DisableProjectFileEntry() override {}
    void LoadSettings() override {}
    void SeedProjectNumber() override {}
  };

  // Runs as a menu entry does: failures come out as messages.
  void Run(void (ReportsForm::*report)());

  BenchProject& project;
  FixedClock clock;
  ScriptedMessages messages;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  Desk desk{messages};
  SharedFields shared;
  Platform platform;
  Kit kit;
  History history;
  RecordDouble record;
  WindowsDouble windows;
  FilesDouble saved;
  PricingDouble beside;
  PricingForm pricing{kit, beside, beside, beside};
  SettingsForm settings{kit, windows};
  Form plan{desk, QStringLiteral("OST")};
  ReportsForm form;
};

// The texts below tests/data.
QString DataPathOf(const QString& name);
QStringList LinesOf(const QString& file);

}  // namespace tamo::test
