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

// The marks on the plan that belong to what is entered in the takeoff.
class MeasuredMarks {
 public:
  struct Measured {
    const char* field;  // as IAmHere names it: "RL", "RH", "EL", "EH"
    QString text;       // what is entered there
  };

  virtual ~MeasuredMarks() = default;
  // The marks that were measured into these fields as just these texts and belong to no entry yet.
  // They belong to one from then on.
  virtual EntryMarks MarksOf(const std::vector<Measured>& fields) = 0;
  // The plan with the marks is on the screen, or there are none.
  virtual bool Reaches(const EntryMarks& marks) const = 0;
  // Takes the marks off the plan, or puts them on it again, and saves it. What the estimator has
  // taken off it himself meanwhile stays away.
  virtual void PutOn(const EntryMarks& marks, bool on) = 0;
};

}  // namespace tamo
