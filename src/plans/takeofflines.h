#pragma once

#include <QHash>
#include <QStringList>
#include <optional>

#include "common/kit.h"
#include "plans/marktie.h"

namespace tamo {

// The lines of the open project's takeoff as they stand in its files, each file read once.
class TakeoffLines {
 public:
  explicit TakeoffLines(const Kit& kit) : kit_(kit) {}

  bool OfOpenProject(const TakeoffPlace& place) const { return place.project == kit_.shared.JobID; }
  // What stands in the line; nothing when there is none, or its room or area is off its list.
  std::optional<double> Quantity(const TakeoffPlace& place);

 private:
  struct Sheets {
    bool read = false;
    QStringList names;
    QHash<QString, QHash<QString, double>> lines;  // by name of the sheet, then of the system
  };
  void ReadNames(bool areas, Sheets& sheets);
  QHash<QString, double> ReadSheet(bool area, const QString& name);

  const Kit kit_;
  Sheets rooms_;
  Sheets areas_;
};

}  // namespace tamo
