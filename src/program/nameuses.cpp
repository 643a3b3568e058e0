#include "program/nameuses.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "records/areafile.h"
#include "records/arealine.h"
#include "records/datafolder.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"

namespace tamo {

void UsesOfNames::Add(NameKind kind, const QString& name) {
  if (name.isEmpty()) return;
  ++run_[static_cast<size_t>(kind)][SuggestionIndex::KeyOf(name)];
  Count(kind, name);
}

void UsesOfNames::Count(NameKind kind, const QString& name) {
  if (!name.isEmpty()) ++all_[static_cast<size_t>(kind)][SuggestionIndex::KeyOf(name)];
}

void UsesOfNames::ReadOn() {
  if (project_ != kit_.shared.JobID) BeginProject();
  for (int i = 0; i < kFilesAtOnce && !left_.empty(); ++i) {
    const Sheet sheet = left_.back();
    left_.pop_back();
    ReadSheet(sheet);
  }
}

// Past the memory of what was read: a file that is bad here is told by whoever needs it.
QString UsesOfNames::TextOf(const QString& path) const {
  QByteArray bytes;
  if (kit_.files.GetDisk().Read(path, bytes) != kNoError) return {};
  const QString text = DecodedText(bytes);
  return IsText(text) ? text : QString();
}

void UsesOfNames::BeginProject() {
  project_ = kit_.shared.JobID;
  all_ = run_;
  left_.clear();
  if (project_.isEmpty()) return;
  const ProjectFolder project(kit_.shared);
  for (const QString& area : SheetNamesOf(TextOf(project.AreaNames()))) {
    if (NameRefusal(area).isEmpty()) left_.push_back({project.AreaFile(area), false});
  }
  for (const QString& room : SheetNamesOf(TextOf(project.RoomNames()))) {
    if (NameRefusal(room).isEmpty()) left_.push_back({project.RoomFile(room), true});
  }
}

void UsesOfNames::ReadSheet(const Sheet& sheet) {
  const QString text = TextOf(sheet.path);
  LineScanner lines = sheet.room ? ScanRoom(text).lines : ScanArea(text);
  for (QStringView line; lines.Next(line);) {
    if (line.trimmed().isEmpty()) continue;
    if (sheet.room) {
      const RoomLine own(line.toString());
      Count(NameKind::System, own.System());
      Count(NameKind::FinishArea, own.FinishArea());
      Count(NameKind::TakeoffUnit, UnitsOfRoomLine(line).toString());
    } else {
      Count(NameKind::System, AreaLine(line.toString()).System());
      Count(NameKind::TakeoffUnit, UnitsOfAreaLine(line).toString());
    }
  }
}

}  // namespace tamo
