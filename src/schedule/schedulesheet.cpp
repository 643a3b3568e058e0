#include "schedule/readaside.h"
#include "schedule/scheduleform.h"
#include "schedule/sheetpictures.h"

// The schedule and the sheet that it stands on: what is read of it, and what is framed there.

namespace tamo {
namespace {

// Events come in while a sheet is read: no second reading begins meanwhile.
class Busy {
 public:
  explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
  ~Busy() { flag_ = false; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  bool& flag_;
};

}  // namespace

SheetToRead ScheduleForm::SheetInFront() {
  SheetToRead sheet;
  const PdfDraw& viewer = ost_.Viewer();
  sheet.plan = viewer.OpenedPlan();
  sheet.page = viewer.Page();
  return sheet;
}

// What the plan's box holds; false, and said, when nothing can be taken of it.
bool ScheduleForm::TakeFromPlan() {
  if (busy_) return false;
  const Busy busy(busy_);
  const PdfDraw& viewer = ost_.Viewer();
  if (viewer.ShownPath().isEmpty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral("No plan is open. Open the plan first."));
    return false;
  }
  std::optional<PageBox> box;
  const std::optional<DrawnBox>& drawn = viewer.Box().Drawn();
  if (drawn.has_value() && drawn->page == viewer.Page()) {
    box = drawn->place;
    if (box->left == boxes_.framed.left && box->top == boxes_.framed.top)
      box.reset();  // only shows a row
  }
  SheetToRead sheet = SheetInFront();
  sheet.box = box;
  sheet.withLegend = true;
  if (!parts_.empty() && pages_.back() != kNoPage) sheet.before = parts_.back();
  const auto ask = [this](const QString& question) {
    if (onDone) onDone(false);  // what shows the progress is not in the way of the question
    return kit_.desk.GetMessages().Ask(question);
  };
  SheetRead read = ReadOrOffer(std::move(sheet), pictures, ask, onProgress);
  if (onDone) onDone(read.problem.isEmpty());
  if (!read.problem.isEmpty()) {
    kit_.desk.GetMessages().Tell(read.problem);
    return false;
  }
  boxes_.taken = box.value_or(PageBox{});
  if (parts_.empty()) legend_.clear();
  legend_.merge(read.legend);
  for (ScheduleTable& table : read.parts) {
    parts_.push_back(std::move(table));
    pages_.push_back(viewer.Page());
  }
  if (!box.has_value()) FrameOnPlan(parts_.back().box, pages_.back());
  return true;
}

// The schedule that stands on the sheet, framed: Enter on the plan reads it. Nothing when there is
// none, or more than one.
void ScheduleForm::FrameFound() {
  const PdfDraw& viewer = ost_.Viewer();
  if (viewer.ShownPath().isEmpty()) return;
  if (busy_) return;
  const Busy busy(busy_);
  const SheetRead read = ReadAside(SheetInFront(), onProgress);
  if (onDone) onDone(read.problem.isEmpty());
  if (!read.problem.isEmpty()) return;
  FrameOnPlan(read.parts.front().box, viewer.Page());
  boxes_.offered = boxes_.framed;
}

// Enter takes a box that was not read yet: a drawn one, or the schedule that was found.
bool ScheduleForm::EnterBox() {
  const PageBox box = ost_.Viewer().Box().Drawn()->place;
  const bool offered = box == boxes_.offered;
  if (!offered && (box == boxes_.framed || (box == boxes_.taken && Visible()))) return false;
  boxes_.offered = {};
  Read();
  return true;
}

// The place of a row on the drawing, in the box's colour.
void ScheduleForm::FrameOnPlan(const PageBox& box, int page) {
  PdfDraw& viewer = ost_.Viewer();
  if (box.Empty() || viewer.ShownPath().isEmpty()) return;
  if (viewer.Page() != page) viewer.SetPage(page);
  boxes_.framed = {box.left - 2, box.top - 2, box.right + 2, box.bottom + 2};
  viewer.Box().Draw(viewer.Page(), {boxes_.framed.left, boxes_.framed.top},
                    {boxes_.framed.right, boxes_.framed.bottom});
}

// A click on the drawing, with no tool in hand, selects the row and the cell under it.
void ScheduleForm::ClickedOnPlan() {
  const PdfDraw& viewer = ost_.Viewer();
  if (!Visible() || busy_ || viewer.Tool() != PlanTool::None) return;
  const PagePoint at = viewer.CrossHair();
  for (size_t i = 0; i < rows_.size(); ++i) {
    const FinishRow& row = rows_[i];
    if (pages_[size_t(row.part)] != viewer.Page()) continue;
    const ScheduleTable& part = parts_[size_t(row.part)];
    const int column = ColumnUnder(part, size_t(row.row), at);
    if (column < 0) continue;
    clicked_ = true;
    Rows.SetIndex(int(i));
    const std::vector<int> cells = CellsFor(part.columns[size_t(column)].role);
    if (!cells.empty()) Cells.SetIndex(cells.front());
    clicked_ = false;
    return;
  }
}

}  // namespace tamo
