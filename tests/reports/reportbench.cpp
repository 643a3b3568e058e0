#include "reportbench.h"

#include "common/columns.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "support/sourcefile.h"

namespace tamo::test {

QString RoomLine(const QString& system, const QString& quantity, const QString& unit,
                 const QString& area) {
  return PaddedRight(system, 21) + PaddedRight(area, 11) + GrownLeft(quantity, 14) +
         QLatin1Char(' ') + unit;
}

QString AreaLine(const QString& system, const QString& quantity, const QString& unit) {
  return system + GrownBlanks(35 - system.size() - quantity.size()) + quantity + QLatin1Char(' ') +
         unit;
}

BenchProject::BenchProject() {
  dataPath = temporary_.path() + QStringLiteral("/Tamo/");
  folder = dataPath + QStringLiteral("Projects/00-2112001/");
  for (const char* part : {"Rooms", "ATOs", "Systems"}) QDir().mkpath(folder + part);
}

BenchProject::BenchProject(const QString& projectFolder) : folder(projectFolder) {
  dataPath = QDir::cleanPath(folder + QStringLiteral("../..")) + QLatin1Char('/');
}

void BenchProject::Write(const QString& file, const QStringList& lines) {
  files.SaveLines(folder + file, lines);
}

void BenchProject::Remove(const QString& file) {
  files.Remove(folder + file);
}

void BenchProject::Room(const QString& name, const QStringList& lines) {
  rooms_ << name << QStringLiteral("True");
  Write(QStringLiteral("Rooms/Rooms.tamo"), rooms_);
  Write(QStringLiteral("Rooms/") + name + QStringLiteral(".rfs"),
        QStringList{QStringLiteral("9")} + lines);
}

void BenchProject::Area(const QString& name, const QStringList& lines) {
  areas_ << name << QStringLiteral("True");
  Write(QStringLiteral("ATOs/Areas.tamo"), areas_);
  Write(QStringLiteral("ATOs/") + name + QStringLiteral(".ato"), lines);
}

void BenchProject::System(const QString& name, const QString& units, const QString& unitPrice,
                          const std::vector<Material>& materials, const QString& colour) {
  QStringList lines{name, units, unitPrice, colour, {}, QStringLiteral("\x01"), {}, {}};
  for (const Material& m : materials) {
    lines << m.name << m.orderUnit << m.price << m.ratio << m.orderTag << m.manhourRatio
          << m.laborTag << m.waste << m.wage << QString() << QString() << QString();
  }
  Write(QStringLiteral("Systems/") + name + QStringLiteral(".sys"), lines);
}

ReportSource BenchProject::Source() {
  return {files, {folder, PlatformSeparator()}, {}, false};
}

Markups BenchProject::MarkupsOfFile() {
  QStringList lines;
  files.ReadLines(folder + QStringLiteral("Markups.tamo"), lines);
  LineReader reader(lines);
  Markups texts;
  for (QString* text :
       {&texts.MOH, &texts.MTX, &texts.MMU, &texts.LOH, &texts.LTX, &texts.LMU, &texts.BLOH,
        &texts.BLTX, &texts.BLMU, &texts.MIOH, &texts.MITX, &texts.MIMU})
    reader.Read(*text);
  return texts;
}

FormBench::FormBench(BenchProject& bench)
    : project(bench),
      platform{bench.disk,     clock,
               messages,       printer,
               clipboard,      bench.dataPath + QStringLiteral("program"),
               bench.dataPath, bench.dataPath + QStringLiteral("config")},
      kit{desk, bench.files, shared, platform},
      history(platform, bench.files, shared),
      form(kit, {pricing, record, windows, settings, plan, history, saved}) {
  QDir().mkpath(platform.programFolder);
  shared.Separator = PlatformSeparator();
  shared.zDir = platform.programFolder;
  shared.DataPath = bench.dataPath;
  shared.JobID = FileNameOf(bench.folder.chopped(1));
  shared.JobName = QStringLiteral("Riverside Clinic");
  shared.DTText = QStringLiteral("False");
  shared.GUIText = QStringLiteral("1");
}

void FormBench::Run(void (ReportsForm::*report)()) {
  desk.Dispatch([&] { (form.*report)(); });
}

QString DataPathOf(const QString& name) {
  return test::SourceFile(QStringLiteral("tests/data/")) + name;
}

QStringList LinesOf(const QString& file) {
  RealDisk disk;
  Files files(disk);
  QStringList lines;
  files.ReadLines(file, lines);
  return lines;
}

}  // namespace tamo::test
