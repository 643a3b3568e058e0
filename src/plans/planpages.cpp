#include "plans/planpages.h"

#include <algorithm>

#include "common/numbers.h"
#include "plans/measuring.h"

namespace tamo {
namespace {

constexpr double kMostPages = 1e6;

}  // namespace

PlanPages::PlanPages(OstControls& form, PdfDraw& viewer, PlanRecord& record)
    : form_(form), viewer_(viewer), record_(record) {
  form_.ZoomLevel.onChange = [this] { SaveSuppressed(); };
}

void PlanPages::SetZoomByLevel(const QString& level) {
  viewer_.SetZoom(ZoomPerCent(Value(level)));
}

void PlanPages::ShowLevel(double level) {
  const QString text = NumberText(level);
  SetZoomByLevel(text);
  form_.ZoomLevel.SetText(text);
}

// Zooming in is kept in the record at once, zooming out and typing a level are not: they come there
// with the next save of anything else. A test holds the difference.
void PlanPages::ZoomIn() {
  form_.Mode.SetText(QStringLiteral("Released"));
  ShowLevel(std::min(Value(form_.ZoomLevel.Text()) + 1, 10.0));
  record_.Save();
}

void PlanPages::ZoomOut() {
  form_.Mode.SetText(QStringLiteral("Released"));
  ShowLevel(std::max(Value(form_.ZoomLevel.Text()) - 1, 1.0));
  SaveSuppressed();
}

void PlanPages::SaveSuppressed() {
  if (form_.Visible()) record_.SaveSuppressed();
}

void PlanPages::TakeZoomLevel() {
  ShowLevel(std::clamp(Truncated(Value(form_.ZoomLevel.Text())), 1.0, 12.0));
}

void PlanPages::TakePage() {
  viewer_.SetPage(static_cast<int>(std::clamp(Value(form_.PageText.Text()), 1.0, kMostPages)));
  form_.Mode.SetText(QStringLiteral("Released"));
}

void PlanPages::ShowPage() {
  form_.PageText.SetText(QStringLiteral("%1/%2").arg(viewer_.Page()).arg(viewer_.PageCount()));
}

}  // namespace tamo
