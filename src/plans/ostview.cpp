#include <algorithm>

#include "common/numbers.h"
#include "plans/ostform.h"

// Zoom, pages, colours, marks and the notes panel.

namespace tamo {
namespace {

constexpr double kMostPages = 1e6;

bool IsNumericColour(const QString& code) {
  return code.size() == 9 && std::all_of(code.begin(), code.end(), [](QChar c) {
           return c >= QLatin1Char('0') && c <= QLatin1Char('9');
         });
}

}  // namespace

// --- Zoom

void OSTForm::SetZoomByLevel(const QString& level) {
  viewer_.SetZoom(ZoomPerCent(Value(level)));
}

void OSTForm::ShowLevel(double level) {
  const QString text = NumberText(level);
  SetZoomByLevel(text);
  ZoomLevel.SetText(text);
}

// Zooming in is kept in the record at once, zooming out and typing a level are not: they come there
// with the next save of anything else. A test holds the difference.
void OSTForm::ZoomIn() {
  Mode.SetText(QStringLiteral("Released"));
  ShowLevel(std::min(Value(ZoomLevel.Text()) + 1, 10.0));
  keeper_.SaveJobNFO();
}

void OSTForm::ZoomOut() {
  Mode.SetText(QStringLiteral("Released"));
  ShowLevel(std::max(Value(ZoomLevel.Text()) - 1, 1.0));
  SaveRecordInVain();
}

void OSTForm::SaveRecordInVain() {
  if (!Visible() || Loading()) return;
  kit_.shared.LoadingJobNFO = QStringLiteral("True");
  keeper_.SaveJobNFO();
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
}

void OSTForm::TakeZoomLevel() {
  ShowLevel(std::clamp(Truncated(Value(ZoomLevel.Text())), 1.0, 12.0));
}

// --- Pages

void OSTForm::TakePage() {
  viewer_.SetPage(static_cast<int>(std::clamp(Value(PageText.Text()), 1.0, kMostPages)));
  Mode.SetText(QStringLiteral("Released"));
}

void OSTForm::ShowPage() {
  PageText.SetText(QStringLiteral("%1/%2").arg(viewer_.Page()).arg(viewer_.PageCount()));
}

// --- Tools, colours, marks

void OSTForm::ModeChanged(int mode) {
  if (mode != PdfDraw::Measuring) {
    Mode.SetText(QStringLiteral("Released"));
    return;
  }
  Mode.SetText(QStringLiteral("Measuring"));
  const QString& code = kit_.shared.LineColor;
  if (IsNumericColour(code)) viewer_.SetMarkColour(code);
  Line1.SetWidth(kit_.shared.LineWidth);
  viewer_.SetMarkWidth(kit_.shared.LineWidth / 96.0 * 72);
}

// For the moment only: the next time measuring begins, the colour of the system in work comes back.
void OSTForm::ChooseColour(const QString& code) {
  ColorFrame.Hide();
  Line1.SetColour(code);
  viewer_.SetMarkColour(Line1.Colour());
}

void OSTForm::RemoveLastMark() {
  if (ActiveControl() == &picPdfDraw) viewer_.DeleteMark(0);
}

void OSTForm::ToggleFrame(Frame& frame) {
  frame.SetShown(!frame.Shown());
}

void OSTForm::ToggleNotes() {
  if (!PlanNotes.Shown()) {
    PlanNotes.Show();
    kit_.desk.Focus(PlanNotes);
    return;
  }
  PlanNotes.Hide();
  viewer_.BringToFront();
  kit_.desk.Focus(picPdfDraw);
}

}  // namespace tamo
