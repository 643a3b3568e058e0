#include "plans/plangoto.h"

#include <algorithm>
#include <numeric>

#include "plans/sheetfinder.h"

namespace tamo {

PlanGoTo::PlanGoTo(const Kit& kit, OstControls& form, SheetBook& book, PlanJumps& jumps)
    : kit_(kit), form_(form), book_(book), jumps_(jumps) {
  for (Control* control :
       std::initializer_list<Control*>{&form_.SheetWanted, &form_.SheetWords, &form_.SheetList})
    control->PutInto(form_.GoToFrame);
  form_.GoToFrame.SetCaption(QStringLiteral("Go to sheet"));
  form_.GoToFrame.Hide();
  form_.SheetList.takesFocus = false;
  form_.SheetList.inTabOrder = false;
  form_.SheetWanted.onChange = [this] { Fill(); };
  form_.SheetWanted.onKey = [this](Key& key) {
    if (TakeKey(key)) key.Drop();
  };
  form_.SheetList.onClick = [this] { Go(form_.SheetList.Index()); };
}

bool PlanGoTo::TakeKey(const Key& key) {
  if (key.IsEnter()) {
    Enter();
  } else if (key.Is(Key::Name::Escape)) {
    Close();
  } else if (key.Is(Key::Name::Down)) {
    Walk(1);
  } else if (key.Is(Key::Name::Up)) {
    Walk(-1);
  } else {
    return false;
  }
  return true;
}

void PlanGoTo::Open() {
  form_.Frame1.Hide();
  form_.BookmarkFrame.Hide();
  form_.LayerFrame.Hide();
  form_.GoToFrame.Show();
  form_.SheetWanted.Clear();
  Fill();
  kit_.desk.Focus(form_.SheetWanted);
}

void PlanGoTo::Close() {
  form_.GoToFrame.Hide();
  kit_.desk.Focus(form_.picPdfDraw);
}

void PlanGoTo::BookNews() {
  if (form_.GoToFrame.Shown()) Fill();
}

// The row that somebody has walked to stays the one in hand while sheets are still being read.
void PlanGoTo::Fill() {
  const QString typed = form_.SheetWanted.Text();
  const int walked = form_.SheetList.Index() < 0 ? 0 : pages_[size_t(form_.SheetList.Index())];
  if (typed.trimmed().isEmpty()) {
    pages_.resize(size_t(book_.Sheets()));
    std::iota(pages_.begin(), pages_.end(), 1);
  } else {
    pages_ = SheetsCalled(typed, book_);
  }
  QStringList rows;
  for (const int page : pages_) rows += SheetInWords(book_, page);
  form_.SheetList.SetRows(rows);
  const auto again = std::find(pages_.begin(), pages_.end(), walked);
  if (again != pages_.end()) form_.SheetList.SetIndex(int(again - pages_.begin()));
  if (pages_.empty()) {
    form_.SheetWords.SetCaption(NoSheetInWords(typed, book_));
  } else if (!book_.Done()) {
    form_.SheetWords.SetCaption(
        QStringLiteral("%1 of %2 sheets are read.").arg(book_.SheetsRead()).arg(book_.Sheets()));
  } else {
    form_.SheetWords.SetCaption(
        QStringLiteral("Type a number such as A-601, a name or a page; Enter goes there."));
  }
}

void PlanGoTo::Walk(int step) {
  if (pages_.empty()) return;
  const int to = form_.SheetList.Index() + step;
  form_.SheetList.SetIndex(std::clamp(to, 0, int(pages_.size()) - 1));
}

void PlanGoTo::Enter() {
  if (form_.SheetList.Index() >= 0) return Go(form_.SheetList.Index());
  if (form_.SheetWanted.Text().trimmed().isEmpty()) return Close();
  if (pages_.size() == 1) return Go(0);
  if (pages_.empty()) return form_.SheetWanted.SelectAll();
  form_.SheetWords.SetCaption(QStringLiteral("%1 sheets may be meant: walk to one by Down, Enter "
                                             "takes it.")
                                  .arg(pages_.size()));
  form_.SheetList.SetIndex(0);
}

void PlanGoTo::Go(int row) {
  if (row < 0 || row >= int(pages_.size())) return;
  const int page = pages_[size_t(row)];
  Close();
  jumps_.GoToPage(page);
}

}  // namespace tamo
