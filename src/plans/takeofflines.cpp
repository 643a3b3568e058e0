#include "plans/takeofflines.h"

#include "records/areafile.h"
#include "records/arealine.h"
#include "records/datafolder.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

// Of lines with the same system the first one counts, as for the takeoff.
void Put(QHash<QString, double>& lines, const QString& system, double quantity) {
  if (!system.isEmpty() && !lines.contains(system)) lines.insert(system, quantity);
}

double QuantityOf(const AreaLine& line) {
  return IsLinearOrCount(UnitsOfAreaLine(line.Text()).toString()) ? line.LinearQuantity()
                                                                  : line.SurfaceQuantity();
}

}  // namespace

void TakeoffLines::ReadNames(bool areas, Sheets& sheets) {
  sheets.read = true;
  const ProjectFolder project(kit_.shared);
  if (areas) {
    ReadAreaNames(kit_.files, project, sheets.names);
  } else {
    ReadRoomNames(kit_.files, project, sheets.names);
  }
}

QHash<QString, double> TakeoffLines::ReadSheet(bool area, const QString& name) {
  const ProjectFolder project(kit_.shared);
  QHash<QString, double> lines;
  if (area) {
    QStringList rows;
    ReadAreaDelimited(kit_.files, project, name, rows);
    for (const QString& row : rows) {
      const AreaLine line(row);
      Put(lines, line.System(), QuantityOf(line));
    }
    return lines;
  }
  RoomFile room;
  ReadRoomFile(kit_.files, project, name, room);
  for (const QString& row : room.lines) {
    const RoomLine line(row);
    Put(lines, line.System(), line.Quantity());
  }
  return lines;
}

std::optional<double> TakeoffLines::Quantity(const TakeoffPlace& place) {
  if (!OfOpenProject(place) || place.project.isEmpty()) return std::nullopt;
  Sheets& sheets = place.area ? areas_ : rooms_;
  if (!sheets.read) ReadNames(place.area, sheets);
  auto sheet = sheets.lines.find(place.sheet);
  if (sheet == sheets.lines.end()) {
    const bool listed = sheets.names.contains(place.sheet);
    sheet = sheets.lines.insert(
        place.sheet, listed ? ReadSheet(place.area, place.sheet) : QHash<QString, double>());
  }
  const auto line = sheet->constFind(place.system);
  return line == sheet->constEnd() ? std::nullopt : std::optional(*line);
}

}  // namespace tamo
