#include "plans/markedsheets.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plans/countgroups.h"

namespace tamo {
namespace {

bool IsWidth(double points) {
  return std::isfinite(points) && points > 0 && points < 1e6;
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
  done_.push_back({true, marks_.size(), std::move(mark)});
  undone_.clear();
  Do(Step(done_.back()), true);
}

void MarkedSheets::DeleteMark(int index) {
  if (index < 0 || static_cast<size_t>(index) >= marks_.size()) return;
  const size_t at = marks_.size() - 1 - static_cast<size_t>(index);
  done_.push_back({false, at, marks_[at]});
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
  Tell(Mark(undone_.back().mark));
  return true;
}

bool MarkedSheets::Redo() {
  if (undone_.empty()) return false;
  do {
    done_.push_back(undone_.back());
    undone_.pop_back();
    Put(done_.back(), true);
  } while (!undone_.empty() && undone_.back().joined);
  Tell(Mark(done_.back().mark));
  return true;
}

bool MarkedSheets::WasDrawnHere(const QString& name) const {
  return std::any_of(done_.begin(), done_.end(),
                     [&](const Step& step) { return step.added && step.mark.name == name; });
}

bool MarkedSheets::TakeOff(const QString& name, Mark& mark) {
  const auto found = std::find_if(marks_.begin(), marks_.end(),
                                  [&](const Mark& other) { return other.name == name; });
  if (found == marks_.end()) return false;
  mark = *found;
  DeleteMark(static_cast<int>(marks_.end() - found) - 1);
  return true;
}

bool MarkedSheets::PutBack(const Mark& mark) {
  if (std::any_of(marks_.begin(), marks_.end(),
                  [&](const Mark& other) { return other.name == mark.name; }))
    return false;
  done_.push_back({true, marks_.size(), mark});
  undone_.clear();
  Do(Step(done_.back()), true);
  return true;
}

void MarkedSheets::AddMarks(std::vector<Mark> marks) {
  for (size_t i = 0; i < marks.size(); ++i) {
    Mark& mark = marks[i];
    mark.name = MarkName(++lastNumber_, QRandomGenerator::global()->generate());
    done_.push_back({true, marks_.size(), std::move(mark), i > 0});
    Put(done_.back(), true);
  }
  if (marks.empty()) return;
  undone_.clear();
  Tell(Mark(done_.back().mark));
}

void MarkedSheets::Do(const Step& step, bool forward) {
  Put(step, forward);
  Tell(step.mark);
}

// Of what comes or goes together the last tells what it is.
void MarkedSheets::Tell(const Mark& last) {
  Repaint();
  if (last.kind == Mark::Kind::Circle) Raise(onCircleCountChanged, CircleCount());
  if (last.kind == Mark::Kind::Grouped)
    Raise(onGroupCountChanged, last.group, CountInGroup(marks_, last.group));
}

void MarkedSheets::Put(const Step& step, bool forward) {
  const auto place = static_cast<std::ptrdiff_t>(std::min(step.at, marks_.size()));
  if (step.added == forward) {
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
