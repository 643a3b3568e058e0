#include "records/everyrecord.h"

#include "common/paths.h"
#include "records/adjustmentfile.h"
#include "records/areafile.h"
#include "records/itemsfile.h"
#include "records/lockfile.h"
#include "records/markupsfile.h"
#include "records/materialfile.h"
#include "records/namelists.h"
#include "records/plannotes.h"
#include "records/planpath.h"
#include "records/projectlist.h"
#include "records/projectnumber.h"
#include "records/projectrecord.h"
#include "records/roomfile.h"
#include "records/sheetnames.h"
#include "records/systemfile.h"

namespace tamo::test {
namespace {

const QString kName = QStringLiteral("Lobby");

// --- records that are a list of texts, or one text ---

template <typename Folder>
RecordCase List(const char* name, QString (Folder::*path)() const,
                int (*read)(Files&, const Folder&, QStringList&),
                int (*write)(Files&, const Folder&, const QStringList&)) {
  return {name, [=](RecordFolder& at) { return (Folder(at.shared).*path)(); },
          [=](RecordFolder& at, int& error) {
            QStringList texts;
            error = read(at.files, at.shared, texts);
            return texts;
          },
          [=](RecordFolder& at, const QStringList& texts) {
            return write(at.files, at.shared, texts);
          }};
}

template <typename Folder>
RecordCase Text(const char* name, QString (Folder::*path)() const,
                int (*read)(Files&, const Folder&, QString&),
                int (*write)(Files&, const Folder&, const QString&), bool notesGrow = false) {
  return {name, [=](RecordFolder& at) { return (Folder(at.shared).*path)(); },
          [=](RecordFolder& at, int& error) {
            QString text;
            error = read(at.files, at.shared, text);
            return QStringList(text);
          },
          [=](RecordFolder& at, const QStringList& texts) {
            return write(at.files, at.shared, texts.first());
          },
          notesGrow};
}

RecordCase Names(const char* name, const char* fileName, NameList list,
                 int (*read)(Files&, const DataFolder&, NameList, QStringList&)) {
  return {name, [=](RecordFolder& at) { return at.data().NameFile(fileName); },
          [=](RecordFolder& at, int& error) {
            QStringList names;
            error = read(at.files, at.shared, list, names);
            return names;
          },
          [=](RecordFolder& at, const QStringList& names) {
            return WriteNames(at.files, at.shared, list, names);
          }};
}

// --- records with texts of their own ---

QStringList ReadRoom(RecordFolder& at, int& error) {
  RoomFile room;
  error = ReadRoomFile(at.files, at.shared, kName, room);
  room.lines.removeAll(QString());  // empty lines are not written
  return QStringList(room.height) + room.lines;
}

QStringList ReadArea(RecordFolder& at, int& error) {
  QStringList lines;
  error = ReadAreaDelimited(at.files, at.shared, kName, lines);
  return lines;
}

QStringList ReadSystem(RecordFolder& at, int& error) {
  SystemFile system;
  error = ReadSystemFile(at.files, at.project().SystemFile(kName), system);
  return QStringList{system.notes, system.description, system.units, system.unitPrice,
                     system.lineColor} +
         StoredBlocks(system.blocks);
}

int WriteSystem(RecordFolder& at, const QStringList& texts) {
  SystemFile system{texts[1], texts[2], texts[3], texts[4], texts[0], texts.mid(5), 0};
  return at.files.SaveText(at.project().SystemFile(kName), SystemFileText(system));
}

QStringList ReadMaterial(RecordFolder& at, int& error) {
  QString text;
  error = at.files.ReadText(at.data().MaterialFile(kName), text);
  return ReadMaterialFile(text).block.Rows().first(9);
}

int WriteMaterial(RecordFolder& at, const QStringList& texts) {
  const MaterialBlock block = MaterialBlock::At(texts, 0);
  return at.files.SaveText(at.data().MaterialFile(kName), MaterialFileText(block));
}

QStringList ReadMarkups(RecordFolder& at, int& error) {
  Markups markups;
  error = LoadMarkups(at.files, at.shared, markups);
  QStringList texts;
  for (const QString* text : markups.InFileOrder()) texts += *text;
  return texts;
}

int WriteMarkups(RecordFolder& at, const QStringList& texts) {
  Markups markups;
  qsizetype next = 0;
  for (QString* text : markups.InFileOrder()) *text = texts[next++];
  return SaveMarkups(at.files, at.shared, markups);
}

QStringList ReadPicked(RecordFolder& at, int& error) {
  PlanPath path;
  error = ReadPlanPath(at.files, at.shared, path);
  return {path.folders, path.plans};
}

std::vector<QString*> TextsOf(JobNFO& record) {
  return {&record.jobID,     &record.jobName,      &record.bidDate,    &record.addenda,
          &record.phase,     &record.bidItems,     &record.inclusions, &record.exclusions,
          &record.architect, &record.planLocation, &record.pageText,   &record.zoomLevel,
          &record.view[0],   &record.view[1],      &record.view[2],    &record.scale1,
          &record.scale2,    &record.text5,        &record.notes};
}

QStringList ReadRecord(RecordFolder& at, int& error) {
  JobNFO record;
  error = ReadProjectRecord(at.files, at.shared, record);
  QStringList texts;
  for (const QString* text : TextsOf(record)) texts += *text;
  return texts;
}

int WriteRecord(RecordFolder& at, const QStringList& texts) {
  JobNFO record;
  qsizetype next = 0;
  for (QString* text : TextsOf(record)) *text = texts[next++];
  return WriteProjectRecord(at.files, at.shared, record);
}

std::vector<RecordCase> NameRecords() {
  return {Names("Systems", "Descriptions.tamo", NameList::Systems, ReadNames),
          Names("SystemsDelimited", "Descriptions.tamo", NameList::Systems, ReadNamesDelimited),
          Names("Units", "Units.tamo", NameList::Units, ReadNames),
          Names("OrderUnits", "oUnits.tamo", NameList::OrderUnits, ReadNames),
          Names("Materials", "Materials.tamo", NameList::Materials, ReadNames),
          Names("Wages", "Wages.tamo", NameList::Wages, ReadNames),
          Names("FinishAreas", "Areas.tamo", NameList::FinishAreas, ReadNames),
          Names("Items", "Items.tamo", NameList::Items, ReadNamesDelimited)};
}

int WriteNewProjectList(Files& files, const DataFolder& data, const QStringList& entries) {
  return WriteProjectList(files, data, entries, {});
}

std::vector<RecordCase> ListRecords() {
  return {List("ProjectList", &DataFolder::ProjectList, ReadProjectList, WriteNewProjectList),
          Text("ProjectNumber", &DataFolder::ProjectNumber, ReadProjectNumber, WriteProjectNumber),
          List("RoomNames", &ProjectFolder::RoomNames, ReadRoomNames, WriteRoomNames),
          List("AreaNames", &ProjectFolder::AreaNames, ReadAreaNames, WriteAreaNames),
          List("BottomLine", &ProjectFolder::Items, ReadItemLines, WriteItemLines),
          Text("Adjustment", &ProjectFolder::Adjustment, ReadAdjustment, WriteAdjustment),
          Text("Lock", &ProjectFolder::Lock, ReadLock, WriteLock),
          Text("PlanNotes", &ProjectFolder::PlanNotes, ReadPlanNotes, WritePlanNotes, true)};
}

std::vector<RecordCase> OwnRecords() {
  return {{"Room", [](RecordFolder& at) { return at.project().RoomFile(kName); }, ReadRoom,
           [](RecordFolder& at, const QStringList& texts) {
             return WriteRoomFile(at.files, at.shared, kName, texts[0], texts.mid(1));
           }},
          {"Area", [](RecordFolder& at) { return at.project().AreaFile(kName); }, ReadArea,
           [](RecordFolder& at, const QStringList& lines) {
             return WriteAreaFile(at.files, at.shared, kName, lines);
           }},
          {"System", [](RecordFolder& at) { return at.project().SystemFile(kName); }, ReadSystem,
           WriteSystem, true},
          {"Material", [](RecordFolder& at) { return at.data().MaterialFile(kName); }, ReadMaterial,
           WriteMaterial},
          {"Markups", [](RecordFolder& at) { return at.project().Markups(); }, ReadMarkups,
           WriteMarkups},
          {"PlanPath", [](RecordFolder& at) { return at.data().PickedPlans(); }, ReadPicked,
           [](RecordFolder& at, const QStringList& texts) {
             return WritePlanPath(at.files, at.shared, {texts[0], texts[1]});
           }},
          {"ProjectRecord", [](RecordFolder& at) { return at.project().Record(); }, ReadRecord,
           WriteRecord}};
}

}  // namespace

RecordFolder::RecordFolder() {
  shared.Separator = PlatformSeparator();
  shared.DataPath = dir.path() + shared.Separator + QStringLiteral("Tamo") + shared.Separator;
  shared.JobID = QStringLiteral("00-2112001");
  MakeDataFolders(files, shared);
  MakeProjectFolders(files, shared);
}

const std::vector<RecordCase>& EveryRecord() {
  static const std::vector<RecordCase> all = [] {
    std::vector<RecordCase> cases = NameRecords();
    for (const auto& more : {ListRecords(), OwnRecords()})
      cases.insert(cases.end(), more.begin(), more.end());
    return cases;
  }();
  return all;
}

}  // namespace tamo::test
