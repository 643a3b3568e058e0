#include <algorithm>

#include "common/control.h"
#include "common/failure.h"
#include "common/form.h"

namespace tamo {

OrderedList::OrderedList(Form& form, const QString& name) : Control(form, name) {
  form.Register(this);
}

void OrderedList::Check(int at) const {
  if (at < 0 || at >= Count()) {
    throw RunTimeFailure(
        kSubscript,
        QStringLiteral(
            "No line is selected in %1, or it is not there any more. Select a line first.")
            .arg(Name()));
  }
}

void OrderedList::RowsChanged() {
  ++rowsRevision_;
  Changed();
}

QString OrderedList::Row(int at) const {
  Check(at);
  return rows_.At(at);
}

void OrderedList::SetRow(int at, const QString& text) {
  Check(at);
  rows_.Change()[at] = text;
  RowsChanged();
}

void OrderedList::Add(const QString& text) {
  rows_.Change().append(text);
  RowInserted(Count() - 1);
  RowsChanged();
}

void OrderedList::AddAll(const QStringList& rows) {
  if (Empty()) {
    TakeRows(rows);
    return;
  }
  for (const QString& row : rows) {
    rows_.Change().append(row);
    RowInserted(Count() - 1);
  }
  RowsChanged();
}

void OrderedList::Insert(int at, const QString& text) {
  if (at != Count()) Check(at);
  rows_.Change().insert(at, text);
  if (index_ >= at) ++index_;
  RowInserted(at);
  RowsChanged();
}

void OrderedList::Remove(int at) {
  Check(at);
  rows_.Change().removeAt(at);
  if (index_ == at) {
    index_ = -1;
  } else if (index_ > at) {
    --index_;
  }
  top_ = std::clamp(top_, 0, std::max(0, Count() - 1));
  RowRemoved(at);
  RowsChanged();
}

void OrderedList::Clear() {
  if (Empty() && index_ == -1 && top_ == 0) return;
  rows_ = {};
  index_ = -1;
  top_ = 0;
  RowsCleared();
  RowsChanged();
}

void OrderedList::SetRows(const QStringList& rows) {
  TakeRows(rows);
}

void OrderedList::TakeRows(ListRows rows) {
  Clear();
  rows_ = std::move(rows);
  RowsFilled();
  RowsChanged();
}

void OrderedList::Refill(const QStringList& rows) {
  const QStringList before = Rows();
  const int selected = index_;
  const int top = top_;
  TakeRows(ListRows(rows));
  index_ = RowAfter(before, selected);
  SetTop(top);
  Changed();
}

int OrderedList::RowAfter(const QStringList& before, int at) const {
  if (at < 0 || at >= before.size()) return -1;
  return at < Count() && Row(at) == before[at] ? at : Find(before[at]);
}

void OrderedList::SetIndex(int index) {
  if (index == index_) return;
  if (index != -1) Check(index);
  index_ = index;
  Changed();
  if (onSelect) onSelect();
}

void OrderedList::SetTop(int row) {
  row = std::clamp(row, 0, std::max(0, Count() - 1));
  if (row == top_) return;
  top_ = row;
  Changed();
}

int OrderedList::Find(const QString& text) const {
  return static_cast<int>(Rows().indexOf(text));
}

int OrderedList::FindAnyCase(const QString& text) const {
  const QString upper = text.toUpper();
  for (int i = 0; i < Count(); ++i) {
    if (Row(i).toUpper() == upper) return i;
  }
  return -1;
}

void OrderedList::ClickRow(int row) {
  SetIndex(row);
}

void OrderedList::RowInserted(int) {}
void OrderedList::RowRemoved(int) {}
void OrderedList::RowsCleared() {}
void OrderedList::RowsFilled() {}

bool CheckList::Ticked(int row) const {
  return row >= 0 && row < Count() && ticked_[static_cast<size_t>(row)];
}

void CheckList::SetTicked(int row, bool ticked) {
  if (row < 0 || row >= Count() || ticked_[static_cast<size_t>(row)] == ticked) return;
  ticked_[static_cast<size_t>(row)] = ticked;
  Changed();
}

void CheckList::TickByUser(int row) {
  Row(row);
  ticked_[static_cast<size_t>(row)] = !ticked_[static_cast<size_t>(row)];
  Changed();
  if (onTick) onTick(row);
}

void CheckList::RowInserted(int at) {
  ticked_.insert(ticked_.begin() + at, false);
}
void CheckList::RowRemoved(int at) {
  ticked_.erase(ticked_.begin() + at);
}
void CheckList::RowsCleared() {
  ticked_.clear();
}
void CheckList::RowsFilled() {
  ticked_.assign(static_cast<size_t>(Count()), false);
}

}  // namespace tamo
