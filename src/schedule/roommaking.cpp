#include "schedule/roommaking.h"

#include <algorithm>

#include "records/namelists.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"
#include "records/systemfile.h"

namespace tamo {
namespace {

constexpr int kAreaWidth = 10;
constexpr int kSystemWidth = 20;

class Maker {
 public:
  Maker(Files& files, const SharedFields& shared)
      : files_(files), shared_(shared), project_(shared) {
    ReadRoomNames(files_, project_, names_);
    ReadNames(files_, shared_, NameList::FinishAreas, areas_);
    areasBefore_ = areas_.size();
  }

  MadeRooms Make(const RoomPlan& plan, const std::function<bool(int done, int all)>& progress) {
    MakeProjectFolders(files_, project_);
    for (size_t i = 0; i < plan.rooms.size(); ++i) {
      const int error = Write(plan.rooms[i]);
      if (error != 0) {
        TellMissing(plan, i, ReasonText(error));
        break;
      }
      const bool last = i + 1 == plan.rooms.size();
      if (last || !progress || progress(int(i) + 1, int(plan.rooms.size()))) continue;
      TellMissing(plan, i + 1, QStringLiteral("it was stopped"));
      break;
    }
    if (!made_.rooms.empty()) WriteRoomNames(files_, project_, names_);
    if (areas_.size() > areasBefore_) WriteNames(files_, shared_, NameList::FinishAreas, areas_);
    return std::move(made_);
  }

 private:
  // The spelling under which a room stands in the list; empty when it does not.
  QString StandsAs(const QString& name) const {
    for (const QString& one : names_) {
      if (one.compare(name, Qt::CaseInsensitive) == 0) return one;
    }
    return {};
  }

  static bool Has(const QStringList& lines, const QString& system) {
    return std::any_of(lines.begin(), lines.end(), [&system](const QString& line) {
      return line.startsWith(system, Qt::CaseInsensitive);
    });
  }

  // The unit of a system, which comes into the project from the library at its first use.
  QString UnitOf(const QString& system) {
    QString text;
    if (files_.ReadText(project_.SystemFile(system), text) != 0) {
      if (files_.ReadText(DataFolder(shared_).SystemFile(system), text) != 0) return {};
      files_.SaveText(project_.SystemFile(system), text);
    }
    return ReadSystemFile(text).units;
  }

  void TakeArea(const QString& area) {
    if (!areas_.contains(area)) areas_.prepend(area);
  }

  int Write(const PlannedRoom& room) {
    MadeRoom made;
    made.name = StandsAs(room.name);
    made.isNew = made.name.isEmpty();
    if (made.isNew) made.name = room.name;
    RoomFile file;
    ReadRoomFile(files_, project_, made.name, file);
    files_.ReadText(project_.RoomFile(made.name), made.before);
    int added = 0;
    for (const PlannedLine& line : room.lines) {
      const QString system = line.system.left(kSystemWidth);
      if (Has(file.lines, system)) continue;
      const QString area = line.area.left(kAreaWidth);
      TakeArea(area);
      file.lines.append(RoomLine::Of(system, area, QStringLiteral("0"), UnitOf(system)).Text());
      ++added;
    }
    if (!made.isNew && added == 0) return 0;
    const QString height = file.hasHeight && !file.height.isEmpty() ? file.height : room.height;
    const int error = WriteRoomFile(files_, project_, made.name, height, file.lines);
    if (error != 0) return error;
    files_.ReadText(project_.RoomFile(made.name), made.written);
    if (made.isNew) names_.append(made.name);
    made_.lines += added;
    made_.rooms.push_back(made);
    return 0;
  }

  void TellMissing(const RoomPlan& plan, size_t from, const QString& reason) {
    QStringList missing;
    for (size_t i = from; i < plan.rooms.size(); ++i) missing.append(plan.rooms[i].name);
    made_.problem = QStringLiteral(
                        "%1 rooms are not made, because %2: %3. Choose Make Rooms again "
                        "for them; what stands already stays as it is.")
                        .arg(missing.size())
                        .arg(reason, missing.join(u", "));
  }

  Files& files_;
  const SharedFields& shared_;
  const ProjectFolder project_;
  QStringList names_;
  QStringList areas_;
  qsizetype areasBefore_ = 0;
  MadeRooms made_;
};

}  // namespace

MadeRooms MakeRooms(Files& files, const SharedFields& shared, const RoomPlan& plan,
                    const std::function<bool(int done, int all)>& progress) {
  return Maker(files, shared).Make(plan, progress);
}

QString TakeBackRooms(Files& files, const SharedFields& shared, const MadeRooms& made) {
  const ProjectFolder project(shared);
  for (const MadeRoom& room : made.rooms) {
    QString now;
    files.ReadText(project.RoomFile(room.name), now);
    if (now == room.written) continue;
    return QStringLiteral("The room %1 was changed since it was made, so the rooms stay.")
        .arg(room.name);
  }
  QStringList names;
  ReadRoomNames(files, project, names);
  for (const MadeRoom& room : made.rooms) {
    if (room.isNew) {
      names.removeAll(room.name);
      files.Remove(project.RoomFile(room.name));
    } else {
      files.SaveText(project.RoomFile(room.name), room.before);
    }
  }
  WriteRoomNames(files, project, names);
  return {};
}

}  // namespace tamo
