#pragma once

#include <QSet>
#include <QString>
#include <cstddef>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// What was done to the marks of a plan, to be taken back and brought back.
struct MarkStep {
  enum class What { Added, Deleted, Changed };
  What what = What::Added;
  size_t at = 0;
  Mark mark;
  Mark before;  // of one that was changed
  bool edits = false;
  bool joined = false;  // goes with the one before
};

// The steps since the plan was opened. When they come to more than kMostBytes, the first ones are
// dropped, whole entries at a time: they can't be taken back any more, and their marks stay as they
// are. What was done last can always be taken back, however large it is.
class MarkSteps {
 public:
  static constexpr size_t kMostBytes = size_t(32) << 20;  // 50,000 lines, or 200 of 10,000 points

  void Clear();
  // A step that is done; what was taken back is gone. Stands until the next call.
  const MarkStep& Add(MarkStep step);
  const MarkStep* Last() const { return done_.empty() ? nullptr : &done_.back(); }
  void ChangeLast(const Mark& mark);  // the last one ends with `mark` instead
  // The next one to be taken back, or brought back: it counts as that. Null when there is none.
  const MarkStep* TakeBack();
  const MarkStep* BringBack();
  bool BringsMore() const { return !undone_.empty() && undone_.back().joined; }

  // The mark of that name was drawn, and that was not taken back.
  bool Drew(const QString& name) const;
  // The mark of that name has `kept` with it in all steps.
  void KeepWith(const QString& name, const QString& kept);
  size_t Bytes() const { return bytes_; }

 private:
  void DropFirst();
  std::vector<MarkStep> done_;
  std::vector<MarkStep> undone_;
  QSet<QString> drewBefore_;  // names of marks that were drawn in steps that are dropped
  size_t bytes_ = 0;          // of all steps
};

}  // namespace tamo
