#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "plans/linecells.h"
#include "plans/pagecontent.h"

namespace tamo {

// What the cross hair takes, the surest first.
enum class SnapKind { End, Intersection, Middle, Foot, Nearest };

struct SnapHit {
  SnapKind kind = SnapKind::Nearest;
  PagePoint at;
};

QString SnapInWords(SnapKind kind);  // "end", "intersection", "middle", "foot", "nearest"

// A line of the drawing. The parts of a curve belong together: where two of them meet is no end.
struct SnapLine {
  PageLine line;
  bool endsAtFrom = true;
  bool endsAtTo = true;
  uint32_t curve = 0;  // its number; 0: a straight line, which has a middle
};

// The lines of a page's paths that can be seen, in the order of drawing: fills by their outlines,
// white ones and those without ink left out.
std::vector<SnapLine> SnapLinesOf(const PageContent& content);

// Finds what is near a place among very many lines. Made on any thread, then only read.
class SnapIndex {
 public:
  explicit SnapIndex(std::vector<SnapLine> lines);

  // At most `reach` points away, the best first, no place twice; at most sixteen. `from` is the
  // place from which a line is drawn: with it come the feet of its perpendiculars. `more` are lines
  // outside the index, as those of marks.
  std::vector<SnapHit> Near(PagePoint at, double reach, const std::optional<PagePoint>& from,
                            std::span<const SnapLine> more = {}) const;
  size_t Lines() const { return lines_.size(); }
  const std::vector<SnapLine>& All() const { return lines_; }
  // Adds the numbers of all lines that may come within `reach` points of a place, some of them
  // more than once.
  void LinesAround(PagePoint at, double reach, std::vector<uint32_t>& numbers) const;

 private:
  template <typename Visit>
  void VisitAround(PagePoint at, double reach, Visit visit) const;

  std::vector<SnapLine> lines_;
  LineCells cells_;
};

}  // namespace tamo
