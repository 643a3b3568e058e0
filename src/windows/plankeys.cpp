#include "windows/plankeys.h"

#include <QKeyEvent>
#include <optional>
#include <utility>

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
  static constexpr std::pair<int, PlanKey> kKeys[] = {
      {Qt::Key_B, PlanKey::Arc},     {Qt::Key_S, PlanKey::Snap},
      {Qt::Key_N, PlanKey::No},      {Qt::Key_P, PlanKey::MarkBefore},
      {Qt::Key_D, PlanKey::Compare}, {Qt::Key_2, PlanKey::TwoPoints},
      {Qt::Key_O, PlanKey::Layer},   {Qt::Key_X, PlanKey::SwapSides}};
  for (const auto& [known, key] : kKeys) {
    if (known == code) return key;
  }
  return std::nullopt;
}

}  // namespace

void PlanKeys::Press(const PlanStroke& stroke) {
  desk_.Dispatch([&] { viewer_.Key(stroke); });
}

// The helpers that count; while symbols that were found are asked about, letters answer.
bool PlanKeys::TakeCountLetter(int key) {
  static constexpr std::pair<int, PlanKey> kAnswers[] = {
      {Qt::Key_Y, PlanKey::Yes}, {Qt::Key_N, PlanKey::No}, {Qt::Key_A, PlanKey::All}};
  if (key == Qt::Key_G && onGroups) {
    onGroups();
    return true;
  }
  if (key == Qt::Key_I) desk_.Dispatch([this] { viewer_.Same().Start(); });
  if (key == Qt::Key_I || !viewer_.Same().Asking()) return key == Qt::Key_I;
  for (const auto& [letter, answer] : kAnswers) {
    if (letter != key) continue;
    Press({answer, false, false});
    return true;
  }
  return false;
}

// The tool bar by letters, while the keys go to the plan.
bool PlanKeys::TakeLetter(int key) {
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
    Press({*plan, false, false});
    return true;
  }
  return key == Qt::Key_Tab ? TakeNextSnap() : TakeLook(key);
}

// How the sheet is looked at.
bool PlanKeys::TakeLook(int key) {
  switch (key) {
    case Qt::Key_T:
      canvas_.TurnView();
      return true;
    case Qt::Key_Plus:
      canvas_.ZoomByKey(onZoomIn);
      return true;
    case Qt::Key_Minus:
      canvas_.ZoomByKey(onZoomOut);
      return true;
    case Qt::Key_F:
      canvas_.FitPage();
      return true;
    case Qt::Key_W:
      canvas_.FitWidth();
      return true;
    default:
      return false;
  }
}

// Where there is nothing to snap to, Tab goes on to the next field as everywhere.
bool PlanKeys::TakeNextSnap() {
  bool taken = false;
  desk_.Dispatch([&] {
    taken = viewer_.Hand().TakeKey({PlanKey::NextSnap, false, false}) ||
            viewer_.Snap().TakeKey(PlanKey::NextSnap);
  });
  return taken;
}

// To the next page, or with Ctrl to another sheet of the plan that is laid over this one.
void PlanKeys::TakePageKey(bool next, bool ctrl) {
  if (ctrl) return Press({next ? PlanKey::PairNext : PlanKey::PairBefore, false, true});
  const int page = viewer_.Page() + (next ? 1 : -1);
  desk_.Dispatch([&] { viewer_.TurnPage(page); });
}

bool PlanKeys::Take(const QKeyEvent& event) {
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  if (event.modifiers().testFlag(Qt::AltModifier)) return false;
  canvas_.FinishScroll();
  if (!ctrl && shift && event.key() == Qt::Key_N) {
    Press({PlanKey::No, true, false});
    return true;
  }
  if (!ctrl && (TakeCountLetter(event.key()) || TakeLetter(event.key()))) return true;
  if (event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp) {
    TakePageKey(event.key() == Qt::Key_PageDown, ctrl);
    return true;
  }
  const std::optional<PlanKey> key = PlanKeyOf(event.key());
  if (!key) return false;
  const bool needsCtrl = *key == PlanKey::Undo || *key == PlanKey::Redo;
  if (needsCtrl && !ctrl) return false;
  Press({*key, shift, ctrl});
  return true;
}

}  // namespace tamo
