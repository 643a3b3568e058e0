#pragma once

#include <QHash>
#include <functional>
#include <memory>

#include "plans/planengine.h"

namespace tamo {

// The number of a sheet as its title block states it ("A-601"), "" when it states none for sure.
QString SheetNumberOf(const PageContent& content);

// Which sheet of a plan has a number. What was read once is known. For one thread.
class SheetPairs {
 public:
  // Called with the sheets read so far while it looks for one.
  using Progress = std::function<void(int read)>;

  explicit SheetPairs(std::shared_ptr<EnginePlan> plan, int pages)
      : plan_(std::move(plan)), pages_(pages) {}

  // The page, 0 when none has it or it was cancelled. Those near `first` are looked at first.
  int Find(const QString& number, int first, CancelFlag& cancel, const Progress& progress);
  QString NumberOf(int page, CancelFlag& cancel);
  void Know(int page, const QString& number) { numbers_[page] = number; }

 private:
  std::shared_ptr<EnginePlan> plan_;
  int pages_ = 0;
  QHash<int, QString> numbers_;
};

}  // namespace tamo
