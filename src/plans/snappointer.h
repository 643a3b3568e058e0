#pragma once

#include <optional>
#include <vector>

#include "plans/newspost.h"
#include "plans/plankey.h"
#include "plans/sheetlines.h"

namespace tamo {

class PdfDraw;

// Takes the pointer to the lines of the drawing and of the marks while something is measured. The
// sheet's lines are read when a tool that measures is first in hand on it. On from the start.
class SnapPointer {
 public:
  explicit SnapPointer(PdfDraw& viewer);

  bool On() const { return on_; }
  void Turn(bool on);
  // It is on, and the tool in hand is one that measures.
  bool Active() const;
  // The page, the plan or the tool is another one: what is not wanted any more goes.
  void Follow();

  // Where the pointer at `at` takes hold. The same place again gives what was chosen there.
  PagePoint Point(PagePoint at, bool heldOff);
  // The key is this one's: the next place near the cross hair, on or off. False when it is not, or
  // there is nothing near.
  bool TakeKey(PlanKey key);
  // What the cross hair has taken; none when it stands free.
  std::optional<SnapHit> Sign() const;

  // All that is near a place of the page shown, with the lines read first.
  std::vector<SnapHit> AllNear(PagePoint at, int patience);
  SheetLines& Lines() { return lines_; }
  // Raises onSheetRead when there is news of the sheet in front; waits for it when told to.
  void TellOfSheet(int patience = 0);

 private:
  double Reach() const;
  std::vector<SnapHit> Near(PagePoint at, double reach) const;
  std::vector<SnapLine> OwnLines() const;
  bool Next();
  void Tell(const QString& words);
  void TellOfLines();

  PdfDraw& viewer_;
  NewsPost read_;  // from the thread that reads the lines
  SheetLines lines_;
  bool on_ = true;
  std::vector<SnapHit> hits_;
  size_t chosen_ = 0;
  PagePoint pointed_{-1e9, -1e9};  // where the pointer stood when the hits were found
  QString told_;                   // what was last said of the sheet's lines
};

}  // namespace tamo
