#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

#include "reports/takeoffwalk.h"

namespace tamo {

// What stands on the sheets of a takeoff, remembered line by line so that two takeoffs can be held
// against each other.
class SheetLines : public TakeoffVisitor {
 public:
  void BeginSheet(SheetKind kind, const QString& name) override;
  void Line(SheetKind kind, QStringView line) override;

  struct Sheet {
    QString name;
    std::vector<size_t> lines;  // a number for each
  };
  const std::vector<Sheet>& Of(SheetKind kind) const {
    return kind == SheetKind::Room ? rooms_ : areas_;
  }

 private:
  std::vector<Sheet> rooms_;
  std::vector<Sheet> areas_;
};

// One room or area that is not what it was.
struct SheetChange {
  enum class Kind { Added, Removed, Changed };
  Kind kind = Kind::Changed;
  QString name;
  int lines = 0;  // that stand on one of the two only; of an added or removed one all
};

// The sheets of one kind that differ: those that are new first, then those that are gone, then
// those that changed, each in the order of their list.
std::vector<SheetChange> ChangedSheets(const std::vector<SheetLines::Sheet>& then,
                                       const std::vector<SheetLines::Sheet>& now);

}  // namespace tamo
