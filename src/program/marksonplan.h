#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

#include "plans/mark.h"
#include "plans/ostform.h"
#include "plans/takeofffields.h"
#include "takeoff/measuredmarks.h"

namespace tamo {

// Which marks of the plan were drawn for which entry of the takeoff.
class MarksOnPlan : public MeasuredMarks {
 public:
  // The plan form is used only once it is made.
  MarksOnPlan(OSTForm& ost, const SharedFields& shared) : ost_(ost), shared_(shared) {}

  // The plan put `text` into a field.
  void HandedOver(TakeoffFields::Field field, const QString& text);
  // Marks are being taken off or put on: their number is no measure for anybody.
  bool Moving() const { return moving_; }

  EntryMarks MarksOf(const std::vector<Measured>& fields, const EnteredLine& line) override;
  bool Reaches(const EntryMarks& marks) const override;
  void PutOn(const EntryMarks& marks, bool on) override;

 private:
  QString PlanName() const;
  QStringList MarksBehind(const QString& text, const std::vector<Mark>& marks) const;
  bool IsNewest(const Mark& mark, const std::vector<Mark>& marks) const;
  bool IsFree(const Mark& mark) const;
  void Tie(const QStringList& names, const Measured& field, const EnteredLine& line);

  OSTForm& ost_;
  const SharedFields& shared_;
  QHash<QString, QString> handed_;  // by the name of the field: the last measure
  QSet<QString> owned_;             // marks of entries, by name
  QHash<QString, Mark> off_;        // that were taken off with their entry
  bool moving_ = false;
};

}  // namespace tamo
