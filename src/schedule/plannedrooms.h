#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "records/finishkey.h"
#include "schedule/schedulerows.h"

namespace tamo {

// A line that a room of the schedule gets: a system at a finish area.
struct PlannedLine {
  QString system;
  QString area;  // FLR, BASE, WALLS, CLNG; "WALLS NE" for two of the sides
};

struct PlannedRoom {
  QString name;    // number and name, without what no room's name may hold; each name once
  QString height;  // feet as number text ("8.5"); empty when the schedule has none
  std::vector<PlannedLine> lines;
  int row = 0;  // of the schedule, from 0
};

struct RoomPlan {
  std::vector<PlannedRoom> rooms;
  QStringList leftOut;  // codes without a system, each once
  QStringList told;     // what was changed of a name, a sentence each

  int Lines() const;
};

// The finish areas of a room's lines; those of single walls get their sides behind it.
struct FinishAreas {
  QString floor = QStringLiteral("FLR");
  QString base = QStringLiteral("BASE");
  QString walls = QStringLiteral("WALLS");
  QString ceiling = QStringLiteral("CLNG");
};

// The rooms and lines that a schedule's rows mean by a key. Rows without number and name are passed
// over. A system stands once in a room: at the first finish area that has it.
RoomPlan PlanRooms(const std::vector<FinishRow>& rows, const FinishKey& key,
                   const FinishAreas& areas = {});

// "9'-0"" is 9, "8'-6 1/2"" is 8.5416...; empty for a text that is no height.
QString HeightInFeet(const QString& height);

}  // namespace tamo
