#pragma once

#include "player/stage.h"

namespace tamo::player {

// The forms alone, no window made: every step goes to the desk as a display would hand it over.
class FormsStage : public Stage {
 public:
  void Raise(Played& played) override { played_ = &played; }
  void Strike() override { played_ = nullptr; }

  void ChooseMenu(MenuEntry& entry) override;
  void Focus(Control& control) override;
  void Type(const QString& text) override;
  void PressKey(const Key& key) override;
  void Enter(const QString& text) override;
  void Paste(const QString& text) override;
  void Click(Control& control) override;
  void DoubleClick(Control& control) override;
  void RightClick(Control& control) override;
  void ClickNotice() override;
  void SelectRow(OrderedList& list, int row) override;
  void RightSelectRow(OrderedList& list, int row) override;
  void DoubleSelectRow(OrderedList& list, int row) override;
  void TickRow(CheckList& list, int row) override;
  void ScrollTo(OrderedList& list, int row) override;
  void ClickSuggestion(int row) override;
  void Pick(FileBrowser& browser, const QString& path, bool twice) override;
  void CloseBox(Form& form) override;

  void PlanMode(int mode) override;
  void PlanLine(PagePoint from, PagePoint to) override;
  void PlanCircle(PagePoint at) override;
  void PlanPress(PagePoint at) override;
  void PlanDrag(PagePoint from, PagePoint to) override;
  void PlanKey(const PlanStroke& stroke) override;
  void PlanScroll(double dx, double dy) override;
  void PlanPage(int page) override;
  void PlanBox(PagePoint from, PagePoint to) override;
  void PlanOutline(PlanTool tool, const std::vector<PagePoint>& points) override;

  bool SavePicture(Form&, const QString&) override { return false; }

 private:
  Desk& GetDesk() const { return played_->GetDesk(); }
  void GoTo(Control& control);
  Control& Focused() const;
  TextField& FocusedField() const;
  void GoToPlan();  // its window comes to the front

  Played* played_ = nullptr;
};

// The key that types a character; line ends, tabs and the like are the keys that make them.
Key KeyFor(QChar c);

}  // namespace tamo::player
