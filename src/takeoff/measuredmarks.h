#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace tamo {

// What was drawn on a plan for one entry. Nothing when it was typed.
struct EntryMarks {
  QString plan;       // its plain name
  QStringList names;  // of the marks
};

// The line of the takeoff into which an entry goes, and what the entry makes of it.
struct EnteredLine {
  bool area = false;  // of a free area, not of a room
  QString sheet;      // the room or area
  QString system;     // as the line reads back
  QString units;
  QString entry;      // "10.0", "8 X 10.0"
  double height = 1;  // by which a length is multiplied
  double before = 0;  // the quantity of the line
  double after = 0;
};

// The marks on the plan that belong to what is entered in the takeoff.
class MeasuredMarks {
 public:
  struct Measured {
    const char* field;  // as IAmHere names it: "RL", "RH", "EL", "EH"
    QString text;       // what is entered there
  };

  virtual ~MeasuredMarks() = default;
  // The marks that were measured into these fields as just these texts and belong to no entry yet.
  // They belong to one from then on, and know its line.
  virtual EntryMarks MarksOf(const std::vector<Measured>& fields, const EnteredLine& line) = 0;
  // The plan with the marks is on the screen, or there are none.
  virtual bool Reaches(const EntryMarks& marks) const = 0;
  // Takes the marks off the plan, or puts them on it again, and saves it. What the estimator has
  // taken off it himself meanwhile stays away.
  virtual void PutOn(const EntryMarks& marks, bool on) = 0;
};

}  // namespace tamo
