#pragma once

#include "common/control.h"
#include "common/form.h"
#include "common/kit.h"
#include "takeoff/takeoffreportrefresh.h"

namespace tamo {

// A project's bottom line items: named amounts that go onto its bottom line. The names are shared
// by all projects; the lines are written when the form is left, or when one is deleted.
class BottomLine : public Form {
 public:
  BottomLine(const Kit& kit, TakeoffReportRefresh& reports);

  Frame oiFrame{*this, "oiFrame"};
  Label ItemLabel{*this, "ItemLabel", "Item:"};
  TextField Item{*this, "Item", 20};
  Label ItemPrompt{*this, "ItemPrompt", "Leave blank and press Enter to finish"};
  Label PriceLabel{*this, "PriceLabel", "Price:"};
  TextField iPrice{*this, "iPrice", 11};
  OrderedList oiList{*this, "oiList"};      // the project's item lines, in order of entry
  OrderedList ItemList{*this, "ItemList"};  // known item names, drops from Item
  OrderedList EditList{*this, "EditList"};  // "Delete Item", "", "Exit"

  // The shell's menu entry, after its guards.
  void BottomLineItems(Form* owner);
  void SaveUnsaved();  // the program ends: no line is lost

  // A line was stored in oiList and not yet written; of the project ListJob.
  bool Unsaved() const { return unsaved_; }
  const QString& ListJob() const { return listJob_; }
  // Lines of the open project that an earlier run of the program could not write: they stand in the
  // list, unsaved, and the form is shown.
  void PutBack(Form* owner, const QStringList& lines);

  void LoadItems();
  void SaveItems();
  void LoadoiList();
  void SaveoiList();
  // What is behind its file is read again; the estimator stays where he is.
  void ReadAgain();

 private:
  void Bind();
  void FollowProject();
  void TakeItem();
  void Finish();
  void TakePrice();
  void NameSelected();
  void TakeLine();
  void EditSelected();

  const Kit kit_;
  TakeoffReportRefresh& reports_;
  QString listJob_;       // the project whose lines stand in oiList
  bool unsaved_ = false;  // a line was stored in oiList and not yet written
};

}  // namespace tamo
