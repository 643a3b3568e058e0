#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "common/kit.h"
#include "plans/markaccount.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planlegends.h"

namespace tamo {

// The list of the plan's marks, a panel below the plan: each mark with its sheet, what it is, what
// it says, the line of the takeoff that it was entered into, and what is wrong with the two. A row
// that is taken chooses its mark on the plan; the field below names the chosen mark.
class MarksPanel {
 public:
  // `save` writes the marks into the plan's copy.
  MarksPanel(const Kit& kit, OstControls& form, PdfDraw& viewer, std::function<void()> save);

  void Toggle();
  void AskTitle();  // the field for the title, with the list
  bool IsChosen();  // a mark is; says so when none is
  // A mark was changed by hand: it is saved as marks of entries are. Steps of the arrows are saved
  // together, when they are over.
  void Edited();
  void Chosen();
  PlanLegends& Legends() { return legends_; }
  // After each event: the list is that of the plan. Another number says that the takeoff may have
  // become another one.
  void Follow(unsigned takeoff);
  void ReadAgain() { filledFor_ = 0; }  // the files may have been changed elsewhere
  // To the line of the chosen mark, by `goToLine`.
  void GoToLine();
  // Goes there; why not, in words, or "".
  std::function<QString(const TakeoffPlace& place)> goToLine;

 private:
  void Tell(const QString& words);
  void BackToPlan(Key& key);
  void Refresh() { Follow(takeoff_); }
  void Fill();
  void FillTotals();
  void ShowChosen();
  void ShowSummary(const QString& chosen);
  void TakeRow();
  void TakeTitle();
  void SaveEdits();

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanLegends legends_{viewer_};
  std::function<void()> save_;
  std::vector<QString> names_;  // of the rows
  std::vector<QString> words_;  // said of each when it is chosen
  int flagged_ = 0;
  unsigned filledFor_ = 0;
  int filledPage_ = 0;
  unsigned takeoff_ = 0;
  bool unsaved_ = false;
};

// The head over the list, and a row of it.
QString MarksHead();
QString MarkRow(const Mark& mark, const AccountedMark& account);

}  // namespace tamo
