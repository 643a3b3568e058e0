#include "windows/findonplan.h"

namespace tamo {
namespace {

constexpr int kLooks = 50;  // milliseconds between two looks for sheets that were read

}  // namespace

FindOnPlan::FindOnPlan(PdfDraw& viewer, PlanCanvas& canvas, Display& display)
    : viewer_(viewer), canvas_(canvas), display_(display) {
  canvas_.foundOn = [this](int page) { return BoxesOn(page); };
  QObject::connect(&looks_, &QTimer::timeout, &looks_, [this] { TakeMore(); });
}

void FindOnPlan::Begin() {
  texts_.Want(viewer_.OpenedPlan(), viewer_.PageCount(), viewer_.Page());
  rows_.clear();
  for (const SheetTexts::Line& line : texts_.Lines()) rows_ += line.text;
  if (!texts_.Done()) looks_.start(kLooks);
}

void FindOnPlan::Mark(const QString& text) {
  text_ = text;
  row_ = -1;
  if (text.isEmpty()) {
    looks_.stop();
    texts_.Drop();
    rows_.clear();
  } else {
    Begin();
  }
  canvas_.viewport()->update();
}

void FindOnPlan::TakeMore() {
  if (!texts_.Take()) return;
  if (texts_.Done()) looks_.stop();
  const std::vector<SheetTexts::Line>& lines = texts_.Lines();
  for (size_t i = size_t(rows_.size()); i < lines.size(); ++i) rows_ += lines[i].text;
  canvas_.viewport()->update();
  if (onMore) onMore();
}

void FindOnPlan::GoTo(int row) {
  row_ = row;
  if (row >= 0 && row < rows_.size()) {
    const SheetTexts::Line& line = texts_.Lines()[size_t(row)];
    if (viewer_.Page() != line.page)
      display_.GetDesk().Dispatch([&] { viewer_.TurnPage(line.page); });
    canvas_.PlaceInView(line.box.Middle());
  }
  canvas_.viewport()->update();
}

std::vector<FoundBox> FindOnPlan::BoxesOn(int page) const {
  std::vector<FoundBox> boxes;
  if (text_.isEmpty()) return boxes;
  const std::vector<SheetTexts::Line>& lines = texts_.Lines();
  for (size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].page == page && lines[i].text.contains(text_, Qt::CaseInsensitive))
      boxes.push_back({lines[i].box, int(i) == row_});
  }
  return boxes;
}

QString FindOnPlan::Where(int row) const {
  return QStringLiteral("Sheet %1").arg(texts_.Lines()[size_t(row)].page);
}

QString FindOnPlan::Holding(int rows) const {
  return rows == 1 ? QStringLiteral("no other place has it")
                   : QStringLiteral("%1 places have it").arg(rows);
}

QString FindOnPlan::Rest() const {
  if (texts_.Sheets() == 0) return QStringLiteral("No plan is open that could be looked through.");
  if (!texts_.Done())
    return QStringLiteral("%1 of %2 sheets are read.")
        .arg(texts_.SheetsRead())
        .arg(texts_.Sheets());
  if (texts_.Lines().empty())
    return QStringLiteral("The sheets hold no text: they are scanned, or drawn as lines.");
  if (texts_.SheetsFailed() > 0)
    return QStringLiteral("%1 of %2 sheets could not be read, or only in part.")
        .arg(texts_.SheetsFailed())
        .arg(texts_.Sheets());
  return {};
}

}  // namespace tamo
