#include "plans/drawingboard.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cmath>
#include <utility>

#include "plans/fraction.h"

namespace tamo {

namespace {

template <typename Event, typename... Args>
void Raise(const Event& event, Args&&... args) {
  if (event) event(std::forward<Args>(args)...);
}

QStringList NamesOf(const std::vector<Mark>& marks) {
  QStringList names;
  for (const Mark& mark : marks) names.push_back(mark.name);
  return names;
}

bool Sane(double value) {
  return std::isfinite(value) && std::abs(value) < 1e6;
}

}  // namespace

// --- The plan on the board

QString DrawingBoard::ShownFile() const {
  const qsizetype cut =
      std::max(path_.lastIndexOf(QLatin1Char('/')), path_.lastIndexOf(QLatin1Char('\\')));
  return path_.mid(cut + 1);
}

void DrawingBoard::ShowPlan(const QString& path, std::vector<PageSize> sizes,
                            std::vector<Mark> marks) {
  BeginPlan(path);
  FillPlan(std::move(sizes), std::move(marks));
}

void DrawingBoard::BeginPlan(const QString& path) {
  path_ = path;
  wantedPage_ = 1;
  std::fill(std::begin(view_), std::end(view_), 0);
  unitIndex_ = Inches;
  unitName_ = QStringLiteral("feet");
  checkNext_ = false;
  boxNext_ = false;
  boxing_ = false;
  box_.reset();
  line_ = LineState::None;
  marks_.clear();
  if (tool_ != NoTool) PickTool(NoTool);
}

void DrawingBoard::FillPlan(std::vector<PageSize> sizes, std::vector<Mark> marks) {
  if (sizes.empty()) sizes.emplace_back();
  sizes_ = std::move(sizes);
  marks_ = std::move(marks);
  done_.clear();
  undone_.clear();
  saved_ = NamesOf(marks_);
  lastNumber_ = 0;
  for (const Mark& mark : marks_) lastNumber_ = std::max(lastNumber_, MarkNumber(mark.name));
  page_ = std::clamp(wantedPage_, 1, PageCount());
  const PageSize size = SizeOfPage(page_);
  crossHair_ = {size.width / 2, size.height / 2};
  Raise(onPageChanged);
  ViewChanged();
  Repaint();
}

void DrawingBoard::MarkSaved(const QString& path) {
  path_ = path;
  saved_ = NamesOf(marks_);
}

bool DrawingBoard::HasUnsavedMarks() const {
  return saved_ != NamesOf(marks_);
}

QString DrawingBoard::NextName() {
  return MarkName(++lastNumber_, QRandomGenerator::global()->generate());
}

void DrawingBoard::SetSizeOfPage(int page, PageSize size) {
  if (page >= 1 && page <= PageCount()) sizes_[static_cast<size_t>(page) - 1] = size;
}

// --- Pages, zoom, view

void DrawingBoard::SetPage(int page) {
  wantedPage_ = page;
  const int next = std::clamp(page, 1, PageCount());
  if (next != page_) DropLine();
  page_ = next;
  Raise(onPageChanged);
  ViewChanged();
}

PageSize DrawingBoard::SizeOfPage(int page) const {
  if (page < 1 || page > PageCount()) return PageSize();
  return sizes_[static_cast<size_t>(page) - 1];
}

void DrawingBoard::SetZoom(int perCent) {
  zoom_ = std::clamp(perCent, 5, 1600);
  ViewChanged();
}

void DrawingBoard::SetViewValue(int index, int value) {
  if (index < Horizontal || index > Rotation) return;
  view_[index] = value;
  ViewChanged();
}

int DrawingBoard::ViewValue(int index) const {
  return index < Horizontal || index > Rotation ? 0 : view_[index];
}

void DrawingBoard::ScrollBy(double dx, double dy) {
  if (!Sane(dx) || !Sane(dy)) return;
  PageSize size = SizeOfPage(page_);
  if (static_cast<int>(std::floor(view_[Rotation] / 90.0 + 0.5)) % 2 != 0)
    std::swap(size.width, size.height);
  const auto moved = [](int from, double by, double most) {
    const double last = std::max(0.0, std::floor(most));
    const double start = std::clamp(static_cast<double>(from), 0.0, last);
    return static_cast<int>(std::clamp(std::floor(start + by + 0.5), 0.0, last));
  };
  const int x = moved(view_[Horizontal], dx, size.width);
  const int y = moved(view_[Vertical], dy, size.height);
  if (x == view_[Horizontal] && y == view_[Vertical]) return;
  view_[Horizontal] = x;
  view_[Vertical] = y;
  ViewChanged();
  Raise(onScrolled);
}

// --- Marks

void DrawingBoard::SetMarkColour(const QString& colour) {
  if (IsColourCode(colour)) colour_ = colour;
}

void DrawingBoard::SetMarkWidth(double points) {
  if (Sane(points) && points > 0) width_ = points;
}

void DrawingBoard::SetMarkerSize(double points) {
  if (Sane(points) && points > 0) markerSize_ = points;
}

std::vector<Mark> DrawingBoard::Marks() const {
  return {marks_.rbegin(), marks_.rend()};
}

void DrawingBoard::Add(Mark mark) {
  mark.name = NextName();
  const Step step{true, marks_.size(), std::move(mark)};
  done_.push_back(step);
  undone_.clear();
  Do(step, true);
}

void DrawingBoard::DeleteMark(int index) {
  if (index < 0 || static_cast<size_t>(index) >= marks_.size()) return;
  const size_t at = marks_.size() - 1 - static_cast<size_t>(index);
  const Step step{false, at, marks_[at]};
  done_.push_back(step);
  undone_.clear();
  Do(step, true);
}

bool DrawingBoard::Undo() {
  if (done_.empty()) return false;
  undone_.push_back(done_.back());
  done_.pop_back();
  Do(undone_.back(), false);
  return true;
}

bool DrawingBoard::Redo() {
  if (undone_.empty()) return false;
  done_.push_back(undone_.back());
  undone_.pop_back();
  Do(done_.back(), true);
  return true;
}

void DrawingBoard::Do(const Step& step, bool forward) {
  const auto place = static_cast<std::ptrdiff_t>(std::min(step.at, marks_.size()));
  const bool circle = step.mark.kind == Mark::Kind::Circle;
  if (step.added == forward) {
    marks_.insert(marks_.begin() + place, step.mark);
  } else {
    marks_.erase(marks_.begin() + place);
  }
  Repaint();
  if (circle) Raise(onCircleCountChanged, CircleCount());
}

int DrawingBoard::CircleCount() const {
  return static_cast<int>(std::count_if(marks_.begin(), marks_.end(), [](const Mark& mark) {
    return mark.kind == Mark::Kind::Circle;
  }));
}

// --- Measuring

double DrawingBoard::EvaluateFraction(const QString& text) const {
  return FractionValue(text);
}

void DrawingBoard::SetUnitIndex(int index) {
  if (index >= Inches && index <= Millimetres) unitIndex_ = index;
}

double DrawingBoard::PaperLength() const {
  const double inches = Distance(from_, to_) / 72;
  if (unitIndex_ == Centimetres) return inches * 2.54;
  return unitIndex_ == Millimetres ? inches * 25.4 : inches;
}

QString DrawingBoard::PaperUnit() const {
  if (unitIndex_ == Centimetres) return QStringLiteral("cm");
  return unitIndex_ == Millimetres ? QStringLiteral("mm") : QStringLiteral("inches");
}

LineInWork DrawingBoard::LineWork() const {
  LineInWork work;
  work.page = page_;
  work.active = line_ != LineState::None;
  if (!work.active) return work;
  work.check = checkNext_;
  work.from = from_;
  work.to = to_;
  double length = PaperLength();
  QString label = PaperUnit();
  Raise(onLineRunning, length, label);
  work.text = LengthText(length) + QLatin1Char(' ') + label;
  return work;
}

void DrawingBoard::Print() {
  Raise(onPrint);
}

void DrawingBoard::BringToFront() {
  Raise(onBringToFront);
}

void DrawingBoard::Repaint() {
  Raise(onMarksChanged);
}

void DrawingBoard::ViewChanged() {
  Raise(onViewChanged);
}

}  // namespace tamo
