#include <QKeyEvent>
#include <optional>

#include "windows/plancanvas.h"

namespace tamo {
namespace {

std::optional<PlanKey> PlanKeyOf(int code) {
  static constexpr std::pair<int, PlanKey> kKeys[] = {{Qt::Key_Left, PlanKey::Left},
                                                      {Qt::Key_Right, PlanKey::Right},
                                                      {Qt::Key_Up, PlanKey::Up},
                                                      {Qt::Key_Down, PlanKey::Down},
                                                      {Qt::Key_Space, PlanKey::Space},
                                                      {Qt::Key_Return, PlanKey::Enter},
                                                      {Qt::Key_Enter, PlanKey::Enter},
                                                      {Qt::Key_Escape, PlanKey::Escape},
                                                      {Qt::Key_Backspace, PlanKey::Backspace},
                                                      {Qt::Key_Delete, PlanKey::Delete},
                                                      {Qt::Key_Z, PlanKey::Undo},
                                                      {Qt::Key_Y, PlanKey::Redo}};
  for (const auto& [known, key] : kKeys) {
    if (known == code) return key;
  }
  return std::nullopt;
}

std::optional<PlanKey> LetterOf(int code) {
  static constexpr std::pair<int, PlanKey> kKeys[] = {{Qt::Key_B, PlanKey::Arc},
                                                      {Qt::Key_S, PlanKey::Snap},
                                                      {Qt::Key_N, PlanKey::No},
                                                      {Qt::Key_P, PlanKey::MarkBefore}};
  for (const auto& [known, key] : kKeys) {
    if (known == code) return key;
  }
  return std::nullopt;
}

}  // namespace

// While symbols that were found are asked about, letters answer.
bool PlanCanvas::TakeAnswer(int key) {
  static constexpr std::pair<int, PlanKey> kAnswers[] = {
      {Qt::Key_Y, PlanKey::Yes}, {Qt::Key_N, PlanKey::No}, {Qt::Key_A, PlanKey::All}};
  if (!viewer_.Same().Asking()) return false;
  for (const auto& [letter, answer] : kAnswers) {
    if (letter != key) continue;
    desk_.Dispatch([&, answer = answer] { viewer_.Key({answer, false, false}); });
    return true;
  }
  return false;
}

// The tool bar by letters, while the keys go to the plan.
bool PlanCanvas::TakeLetter(int key) {
  if (TakeAnswer(key)) return true;
  static constexpr std::pair<int, PlanTool> kTools[] = {
      {Qt::Key_V, PlanTool::None},     {Qt::Key_M, PlanTool::Measuring},
      {Qt::Key_C, PlanTool::Counting}, {Qt::Key_L, PlanTool::Polyline},
      {Qt::Key_A, PlanTool::Area},     {Qt::Key_R, PlanTool::Rectangle},
      {Qt::Key_K, PlanTool::CutOut},   {Qt::Key_E, PlanTool::Perimeter}};
  for (const auto& [letter, tool] : kTools) {
    if (letter != key) continue;
    desk_.Dispatch([&, tool = tool] { viewer_.PickTool(tool); });
    return true;
  }
  if (const std::optional<PlanKey> plan = LetterOf(key)) {
    desk_.Dispatch([&] { viewer_.Key({*plan, false, false}); });
    return true;
  }
  switch (key) {
    case Qt::Key_Tab:
      return TakeNextSnap();
    case Qt::Key_I:
      desk_.Dispatch([this] { viewer_.Same().Start(); });
      return true;
    case Qt::Key_T:
      TurnView();
      return true;
    case Qt::Key_Plus:
      ZoomByKey(onZoomIn);
      return true;
    case Qt::Key_Minus:
      ZoomByKey(onZoomOut);
      return true;
    case Qt::Key_F:
      FitPage();
      return true;
    case Qt::Key_W:
      FitWidth();
      return true;
    default:
      return false;
  }
}

// Where there is nothing to snap to, Tab goes on to the next field as everywhere.
bool PlanCanvas::TakeNextSnap() {
  bool taken = false;
  desk_.Dispatch([&] {
    taken = viewer_.Hand().TakeKey({PlanKey::NextSnap, false, false}) ||
            viewer_.Snap().TakeKey(PlanKey::NextSnap);
  });
  return taken;
}

bool PlanCanvas::TakeKey(const QKeyEvent& event) {
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  if (event.modifiers().testFlag(Qt::AltModifier)) return false;
  FinishScroll();
  if (!ctrl && TakeLetter(event.key())) return true;
  if (event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp) {
    const int page = viewer_.Page() + (event.key() == Qt::Key_PageDown ? 1 : -1);
    desk_.Dispatch([&] { viewer_.TurnPage(page); });
    return true;
  }
  const std::optional<PlanKey> key = PlanKeyOf(event.key());
  if (!key) return false;
  const bool needsCtrl = *key == PlanKey::Undo || *key == PlanKey::Redo;
  if (needsCtrl && !ctrl) return false;
  desk_.Dispatch([&] { viewer_.Key({*key, shift, ctrl}); });
  return true;
}

PlanBinding::PlanBinding(Display& display, Control& control, PlanCanvas& canvas)
    : Binding(display, control, canvas), canvas_(canvas) {}

bool PlanBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
      canvas_.viewport()->update();
    return TakeCommon(event);
  }
  auto& key = static_cast<QKeyEvent&>(*event);
  return canvas_.TakeKey(key) || GetDisplay().TakeKey(*this, key);
}

PlanCanvas* FindPlanCanvas(const QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>(QStringLiteral("picPdfDraw"))) {
    if (auto* canvas = dynamic_cast<PlanCanvas*>(widget)) return canvas;
  }
  return nullptr;
}

}  // namespace tamo
