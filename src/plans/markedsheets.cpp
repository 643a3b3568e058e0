#include "plans/markedsheets.h"

#include <QRandomGenerator>
#include <algorithm>
#include <utility>

#include "plans/countgroups.h"

namespace tamo {
namespace {

bool IsWidth(double points) {
  return IsOnPaper(points) && points > 0;
}

}  // namespace

void MarkedSheets::SetMarkColour(const QString& colour) {
  if (!IsColourCode(colour)) return;
  colour_ = colour;
  Raise(onPenChanged);
}

void MarkedSheets::SetMarkWidth(double points) {
  if (!IsWidth(points)) return;
  width_ = points;
  Raise(onPenChanged);
}

void MarkedSheets::SetMarkerSize(double points) {
  if (IsWidth(points)) markerSize_ = points;
}

std::vector<Mark> MarkedSheets::Marks() const {
  return {marks_.rbegin(), marks_.rend()};
}

void MarkedSheets::FillMarks(std::vector<Mark> marks) {
  std::erase_if(marks, [](const Mark& mark) { return mark.kind == Mark::Kind::Total; });
  SettleGroups(marks);
  marks_ = std::move(marks);
  ++revision_;
  done_.clear();
  undone_.clear();
  lastNumber_ = 0;
  for (const Mark& mark : marks_) lastNumber_ = std::max(lastNumber_, MarkNumber(mark.name));
}

Mark MarkedSheets::NewMark(Mark::Kind kind, std::vector<PagePoint> points) const {
  Mark mark;
  mark.kind = kind;
  mark.page = Page();
  mark.points = std::move(points);
  mark.colour = colour_;
  mark.width = width_;
  return mark;
}

void MarkedSheets::AddMark(Mark mark) {
  mark.name = MarkName(++lastNumber_, QRandomGenerator::global()->generate());
  TakeStep({Step::What::Added, marks_.size(), std::move(mark), {}, false, false});
}

void MarkedSheets::DeleteMark(int index) {
  if (index < 0 || static_cast<size_t>(index) >= marks_.size()) return;
  const size_t at = marks_.size() - 1 - static_cast<size_t>(index);
  TakeStep({Step::What::Deleted, at, marks_[at], {}, false, false});
}

void MarkedSheets::TakeStep(Step step) {
  done_.push_back(std::move(step));
  undone_.clear();
  Do(Step(done_.back()), true);
}

bool MarkedSheets::Undo() {
  if (done_.empty()) return false;
  bool more = true;
  while (more && !done_.empty()) {
    undone_.push_back(done_.back());
    done_.pop_back();
    Put(undone_.back(), false);
    more = undone_.back().joined;
  }
  Tell(Step(undone_.back()));
  return true;
}

bool MarkedSheets::Redo() {
  if (undone_.empty()) return false;
  do {
    done_.push_back(undone_.back());
    undone_.pop_back();
    Put(done_.back(), true);
  } while (!undone_.empty() && undone_.back().joined);
  Tell(Step(done_.back()));
  return true;
}

bool MarkedSheets::WasDrawnHere(const QString& name) const {
  return std::any_of(done_.begin(), done_.end(), [&](const Step& step) {
    return step.what == Step::What::Added && step.mark.name == name;
  });
}

bool MarkedSheets::TakeOff(const QString& name, Mark& mark) {
  const auto found = std::find_if(marks_.begin(), marks_.end(),
                                  [&](const Mark& other) { return other.name == name; });
  if (found == marks_.end()) return false;
  mark = *found;
  DeleteMark(static_cast<int>(marks_.end() - found) - 1);
  return true;
}

// A circle whose number another one has by now gets a free one.
Mark MarkedSheets::Settled(Mark mark) const {
  const bool taken = std::any_of(marks_.begin(), marks_.end(), [&](const Mark& other) {
    return other.kind == mark.kind && other.group == mark.group && other.label == mark.label;
  });
  if (mark.kind == Mark::Kind::Grouped && taken)
    mark.label = GroupLabel(mark.group, FreeNumbers(marks_, mark.group, 1).front());
  return mark;
}

bool MarkedSheets::PutBack(const Mark& mark) {
  if (FindMark(mark.name) != nullptr) return false;
  TakeStep({Step::What::Added, marks_.size(), Settled(mark), {}, false, false});
  return true;
}

// Marks that are drawn later are newer by their numbers, too.
void MarkedSheets::TakeOver(const std::vector<Mark>& marks) {
  for (const Mark& mark : marks) {
    if (FindMark(mark.name) != nullptr) continue;
    lastNumber_ = std::max(lastNumber_, MarkNumber(mark.name));
    done_.push_back({Step::What::Added, marks_.size(), Settled(mark), {}, false, false});
    Put(done_.back(), true);
    undone_.clear();
  }
  Repaint();
}

void MarkedSheets::AddMarks(std::vector<Mark> marks) {
  for (size_t i = 0; i < marks.size(); ++i) {
    Mark& mark = marks[i];
    mark.name = MarkName(++lastNumber_, QRandomGenerator::global()->generate());
    done_.push_back({Step::What::Added, marks_.size(), std::move(mark), {}, false, i > 0});
    Put(done_.back(), true);
  }
  if (marks.empty()) return;
  undone_.clear();
  Tell(Step(done_.back()));
}

const Mark* MarkedSheets::FindMark(const QString& name) const {
  const auto found = std::find_if(marks_.begin(), marks_.end(),
                                  [&](const Mark& mark) { return mark.name == name; });
  return found == marks_.end() ? nullptr : &*found;
}

void MarkedSheets::ChangeMark(const Mark& mark, bool joinLast) {
  const Mark* found = FindMark(mark.name);
  if (found == nullptr || *found == mark) return;
  const auto at = static_cast<size_t>(found - marks_.data());
  const bool joins = joinLast && !done_.empty() && done_.back().what == Step::What::Changed &&
                     done_.back().mark.name == mark.name;
  if (!joins) return TakeStep({Step::What::Changed, at, mark, *found, true, false});
  done_.back().mark = mark;
  undone_.clear();
  Do(Step(done_.back()), true);
}

void MarkedSheets::ChangeMarks(const std::vector<Mark>& marks) {
  bool joined = false;
  for (const Mark& mark : marks) {
    const Mark* found = FindMark(mark.name);
    if (found == nullptr || *found == mark) continue;
    const auto at = static_cast<size_t>(found - marks_.data());
    done_.push_back({Step::What::Changed, at, mark, *found, true, joined});
    Put(done_.back(), true);
    joined = true;
  }
  if (!joined) return;
  undone_.clear();
  Tell(Step(done_.back()));
}

QString MarkedSheets::PlaceMark(Mark mark) {
  mark.name = MarkName(++lastNumber_, QRandomGenerator::global()->generate());
  QString name = mark.name;
  TakeStep({Step::What::Added, marks_.size(), std::move(mark), {}, true, false});
  return name;
}

void MarkedSheets::RemoveMark(const QString& name) {
  const Mark* found = FindMark(name);
  if (found == nullptr) return;
  const auto at = static_cast<size_t>(found - marks_.data());
  TakeStep({Step::What::Deleted, at, *found, {}, true, false});
}

void MarkedSheets::KeepWith(const QString& name, const QString& kept) {
  ++revision_;
  const auto keep = [&](Mark& mark) {
    if (mark.name == name) mark.kept = kept;
  };
  for (Mark& mark : marks_) keep(mark);
  for (std::vector<Step>* steps : {&done_, &undone_}) {
    for (Step& step : *steps) {
      keep(step.mark);
      keep(step.before);
    }
  }
}

void MarkedSheets::Do(const Step& step, bool forward) {
  Put(step, forward);
  Tell(step);
}

// Of what comes or goes together the last tells what it is.
void MarkedSheets::Tell(const Step& last) {
  Repaint();
  const bool counts = last.what != Step::What::Changed;
  if (counts && last.mark.kind == Mark::Kind::Circle) Raise(onCircleCountChanged, CircleCount());
  if (counts && last.mark.kind == Mark::Kind::Grouped)
    Raise(onGroupCountChanged, last.mark.group, CountInGroup(marks_, last.mark.group));
  if (last.edits) Raise(onMarkEdited);
}

void MarkedSheets::Put(const Step& step, bool forward) {
  ++revision_;
  if (step.what == Step::What::Changed) {
    if (step.at < marks_.size()) marks_[step.at] = forward ? step.mark : step.before;
    return;
  }
  const auto place = static_cast<std::ptrdiff_t>(std::min(step.at, marks_.size()));
  if ((step.what == Step::What::Added) == forward) {
    marks_.insert(marks_.begin() + place, step.mark);
  } else {
    marks_.erase(marks_.begin() + place);
  }
}

int MarkedSheets::CircleCount() const {
  return static_cast<int>(std::count_if(marks_.begin(), marks_.end(), [](const Mark& mark) {
    return mark.kind == Mark::Kind::Circle;
  }));
}

}  // namespace tamo
