#include "schedule/scheduletable.h"

#include <algorithm>

namespace tamo {

QString DoubtText(Doubt doubt) {
  switch (doubt) {
    case Doubt::OverBorder:
      return QStringLiteral("the text crosses the border of its cell");
    case Doubt::WhichColumn:
      return QStringLiteral("the text may belong to the column beside");
    case Doubt::WhichRow:
      return QStringLiteral("the text may belong to the row above or below");
    case Doubt::Overlapping:
      return QStringLiteral("two texts lie over each other");
    case Doubt::UnknownLetter:
      return QStringLiteral("the file doesn't tell one of the letters");
    case Doubt::NothingAbove:
      return QStringLiteral("a ditto mark with nothing above it");
    case Doubt::NoNumber:
      return QStringLiteral("the row has no room number");
    case Doubt::Merged:
      return QStringLiteral("one cell stands for several");
    case Doubt::GuessedHead:
      return QStringLiteral("the head of the column may mean another thing");
    case Doubt::TurnedText:
      return QStringLiteral("the text is turned");
    case Doubt::FromPicture:
      return QStringLiteral("read from a picture");
  }
  return {};
}

void ScheduleCell::Add(Doubt doubt) {
  if (std::find(doubts.begin(), doubts.end(), doubt) == doubts.end()) doubts.push_back(doubt);
}

int ScheduleTable::ColumnOf(ColumnRole role) const {
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [role](const ScheduleColumn& one) { return one.role == role; });
  return found == columns.end() ? -1 : int(found - columns.begin());
}

}  // namespace tamo
