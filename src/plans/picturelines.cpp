#include "plans/picturelines.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr int kDark = 80;      // of 255: a pixel of a line
constexpr int kShortest = 16;  // pixels
constexpr int kThickest = 12;
constexpr int kRagged = 4;  // pixels that the rows of a line may differ at their ends

// A line that grows row by row.
struct Run {
  int from = 0;
  int to = 0;
  int first = 0;
  int last = 0;
};

class Runs {
 public:
  void Add(int row, int from, int to) {
    if (to - from < kShortest) return;
    for (Run& run : open_) {
      if (run.last != row - 1 || std::abs(run.from - from) > kRagged ||
          std::abs(run.to - to) > kRagged)
        continue;
      run.last = row;
      return;
    }
    open_.push_back({from, to, row, row});
  }
  // What does not go on in `row` is whole.
  void EndBefore(int row) {
    std::erase_if(open_, [&](const Run& run) {
      if (run.last >= row - 1) return false;
      if (run.last - run.first < kThickest) whole_.push_back(run);
      return true;
    });
  }
  const std::vector<Run>& Whole() const { return whole_; }

 private:
  std::vector<Run> open_;
  std::vector<Run> whole_;
};

template <typename DarkAt>
std::vector<Run> RunsOf(int rows, int columns, DarkAt dark) {
  Runs runs;
  for (int row = 0; row < rows; ++row) {
    runs.EndBefore(row);
    int begin = -1;
    for (int column = 0; column <= columns; ++column) {
      const bool is = column < columns && dark(row, column);
      if (is && begin < 0) begin = column;
      if (is || begin < 0) continue;
      runs.Add(row, begin, column);
      begin = -1;
    }
  }
  runs.EndBefore(rows + kThickest);
  return runs.Whole();
}

}  // namespace

std::vector<PageLine> LinesOfPicture(const Ink& ink, double pixelsPerPoint) {
  std::vector<PageLine> lines;
  const auto dark = [&](int x, int y) { return ink.Row(y)[x] >= kDark; };
  const auto add = [&](const Run& run, bool level) {
    const double across = (run.first + run.last + 1) / 2.0 / pixelsPerPoint;
    const double from = run.from / pixelsPerPoint;
    const double to = run.to / pixelsPerPoint;
    lines.push_back(level ? PageLine{{from, across}, {to, across}}
                          : PageLine{{across, from}, {across, to}});
  };
  for (const Run& run : RunsOf(ink.height, ink.width, [&](int y, int x) { return dark(x, y); }))
    add(run, true);
  for (const Run& run : RunsOf(ink.width, ink.height, [&](int x, int y) { return dark(x, y); }))
    add(run, false);
  return lines;
}

}  // namespace tamo
