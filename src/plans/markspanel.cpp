#include "plans/markspanel.h"

#include <algorithm>
#include <utility>

#include "common/chain.h"

namespace tamo {
namespace {

constexpr int kSheetWidth = 6;
constexpr int kKindWidth = 11;
constexpr int kValueWidth = 15;
constexpr int kNameWidth = 18;
constexpr int kLineWidth = 32;

QString Column(const QString& text, int width) {
  return text.left(width - 1).leftJustified(width);
}

// "10.0 feet" of `10.0 feet @ 1/4"=1'`.
QString ValueInWords(const Mark& mark) {
  if (mark.kind == Mark::Kind::Legend) return mark.label.section(QLatin1Char('\n'), 0, 0);
  if (mark.kind == Mark::Kind::Grouped) return mark.label;
  return mark.kind == Mark::Kind::Circle ? QStringLiteral("1")
                                         : mark.label.section(QLatin1String(" @ "), 0, 0);
}

QString LineInWords(const AccountedMark& account) {
  return account.tie ? account.tie->place.InWords() + QStringLiteral(": ") + account.tie->entry
                     : QString();
}

// What the columns cut, and what is wrong.
QString WordsOfRow(const AccountedMark& account) {
  QStringList words;
  if (const QString line = LineInWords(account); line.size() >= kLineWidth) words += line;
  if (!account.flag.isEmpty()) words += account.flag;
  return words.join(QStringLiteral(". "));
}

}  // namespace

QString MarksHead() {
  return QStringLiteral("  ") + Column(QStringLiteral("Sheet"), kSheetWidth) +
         Column(QStringLiteral("Kind"), kKindWidth) +
         Column(QStringLiteral("Measure"), kValueWidth) +
         Column(QStringLiteral("Entered into"), kLineWidth) +
         Column(QStringLiteral("Name"), kNameWidth);
}

// What is to be looked at has a sign at its begin, and the words at its end.
QString MarkRow(const Mark& mark, const AccountedMark& account) {
  const QString line = LineInWords(account);
  QString row = QLatin1String(account.flag.isEmpty() ? "  " : "! ") +
                Column(QString::number(mark.page), kSheetWidth) +
                Column(KindInWords(mark.kind), kKindWidth) +
                Column(ValueInWords(mark), kValueWidth) + Column(line, kLineWidth) +
                Column(mark.title, kNameWidth) + account.flag;
  while (row.endsWith(QLatin1Char(' '))) row.chop(1);
  return row;
}

MarksPanel::MarksPanel(const Kit& kit, OstControls& form, PdfDraw& viewer,
                       std::function<void()> save)
    : kit_(kit), form_(form), viewer_(viewer), save_(std::move(save)) {
  for (Control* control :
       std::initializer_list<Control*>{&form_.MarksList, &form_.MarkTitle, &form_.MarkToLine,
                                       &form_.MarksSummary, &form_.MarksTotals})
    control->PutInto(form_.MarksFrame);
  form_.MarksFrame.Hide();
  form_.MarksList.onClick = [this] { TakeRow(); };
  form_.MarksList.onDoubleClick = [this] { kit_.desk.Focus(form_.picPdfDraw); };
  form_.MarksList.onKey = [this](Key& key) {
    if (key.Is(Key::Name::Delete)) viewer_.Hand().Delete();
    if (key.Is(Key::Name::Escape)) BackToPlan(key);
    const bool back = key.Is(Key::Name::TakeBack);
    if (!back && !key.Is(Key::Name::BringBack)) return;
    key.Drop();
    viewer_.Key({back ? PlanKey::Undo : PlanKey::Redo, false, false});
  };
  OnEnter(form_.MarkTitle, [this] { TakeTitle(); });
  form_.MarkTitle.onKey = [this, enter = form_.MarkTitle.onKey](Key& key) {
    key.Is(Key::Name::Escape) ? BackToPlan(key) : enter(key);
  };
  form_.MarkToLine.onClick = [this] { GoToLine(); };
}

void MarksPanel::Toggle() {
  form_.MarksFrame.SetShown(!form_.MarksFrame.Shown());
  ReadAgain();
  Refresh();
  if (form_.MarksFrame.Shown()) return kit_.desk.Focus(form_.MarksList);
  kit_.desk.Focus(form_.picPdfDraw);
}

// What was typed and not entered is no name.
void MarksPanel::BackToPlan(Key& key) {
  key.Drop();
  ShowChosen();
  kit_.desk.Focus(form_.picPdfDraw);
}

void MarksPanel::Tell(const QString& words) {
  if (viewer_.onToolRefused) viewer_.onToolRefused(words);
}

bool MarksPanel::IsChosen() {
  if (viewer_.Hand().Chosen() != nullptr) return true;
  Tell(QStringLiteral("Choose a mark first: click it, or press N."));
  return false;
}

void MarksPanel::AskTitle() {
  if (!IsChosen()) return;
  form_.MarksFrame.Show();
  Refresh();
  kit_.desk.Focus(form_.MarkTitle);
  form_.MarkTitle.SelectAll();
}

void MarksPanel::TakeRow() {
  const int row = form_.MarksList.Index();
  if (row >= 0 && row < static_cast<int>(names_.size()))
    viewer_.Hand().Choose(names_[static_cast<size_t>(row)]);
}

void MarksPanel::TakeTitle() {
  viewer_.Hand().Rename(form_.MarkTitle.Text());
  kit_.desk.Focus(form_.picPdfDraw);
}

// A plan outside of any project keeps its marks until it is left, as it keeps measured ones.
void MarksPanel::SaveEdits() {
  const bool edited = std::exchange(unsaved_, false);
  if (edited && !kit_.shared.JobID.isEmpty() && viewer_.HasUnsavedMarks()) save_();
}

void MarksPanel::Edited() {
  unsaved_ = true;
  if (!viewer_.Hand().Nudging()) SaveEdits();
}

void MarksPanel::Chosen() {
  if (!viewer_.Hand().Nudging()) SaveEdits();
  ShowChosen();
}

void MarksPanel::ShowChosen() {
  const Mark* mark = viewer_.Hand().Chosen();
  form_.MarkTitle.SetEnabled(mark != nullptr);
  form_.MarkTitle.SetText(mark == nullptr ? QString() : mark->title);
  if (!form_.MarksFrame.Shown()) return;
  const auto found =
      mark == nullptr ? names_.end() : std::find(names_.begin(), names_.end(), mark->name);
  const auto row = static_cast<size_t>(found - names_.begin());
  form_.MarksList.SetIndex(row < names_.size() ? static_cast<int>(row) : -1);
  ShowSummary(row < words_.size() ? words_[row] : QString());
}

// How many there are, and what is to be said of the chosen one.
void MarksPanel::ShowSummary(const QString& chosen) {
  QString words =
      names_.size() == 1 ? QStringLiteral("1 mark") : QStringLiteral("%1 marks").arg(names_.size());
  if (flagged_ > 0) words += QStringLiteral(", %1 to be looked at").arg(flagged_);
  if (!chosen.isEmpty()) words += QStringLiteral(". ") + chosen;
  form_.MarksSummary.SetCaption(words);
  form_.MarksSummary.SetHover(words);
}

void MarksPanel::Follow(unsigned takeoff) {
  if (!form_.MarksFrame.Shown() || !form_.Visible()) return;
  if (filledPage_ != viewer_.Page()) FillTotals();
  if (filledFor_ == viewer_.MarksRevision() && takeoff_ == takeoff) return;
  filledFor_ = viewer_.MarksRevision();
  takeoff_ = takeoff;
  Fill();
}

void MarksPanel::Fill() {
  const std::vector<Mark>& marks = viewer_.MarksAsDrawn();
  TakeoffLines lines(kit_);
  const std::vector<AccountedMark> account = AccountOf(marks, lines);
  names_.clear();
  QStringList rows;
  words_.clear();
  flagged_ = 0;
  for (const size_t at : MarksInOrder(marks)) {
    names_.push_back(marks[at].name);
    rows += MarkRow(marks[at], account[at]);
    words_.push_back(WordsOfRow(account[at]));
    if (!account[at].flag.isEmpty()) ++flagged_;
  }
  form_.MarksList.Refill(rows);
  FillTotals();
  ShowChosen();
}

void MarksPanel::FillTotals() {
  filledPage_ = viewer_.Page();
  form_.MarksTotals.Refill(TotalRows(viewer_.MarksAsDrawn(), filledPage_));
}

void MarksPanel::GoToLine() {
  if (!IsChosen()) return;
  const Mark* mark = viewer_.Hand().Chosen();
  const std::optional<MarkTie> tie = TieOfText(mark->kept);
  if (!tie)
    return Tell(mark->kept.isEmpty()
                    ? QStringLiteral("This mark was not entered into any line of the takeoff.")
                    : QStringLiteral("What this mark was entered into can't be read."));
  const QString why = goToLine ? goToLine(tie->place) : QString();
  if (!why.isEmpty()) Tell(why);
}

}  // namespace tamo
