#include "takeoff/bottomline.h"

#include "common/chain.h"
#include "common/failure.h"
#include "records/datafolder.h"
#include "records/itemline.h"
#include "records/itemsfile.h"
#include "records/namelists.h"
#include "takeoff/bottomlinemoney.h"

namespace tamo {

BottomLine::BottomLine(const Kit& kit, TakeoffReportRefresh& reports)
    : Form(kit.desk, "BottomLine"), kit_(kit), reports_(reports) {
  SetCaption(QStringLiteral("The Bottom Line"));
  for (Control* control : Controls()) {
    if (control != &oiFrame) control->PutInto(oiFrame);
  }
  DropFrom(Item, ItemList);
  KeepUnseen(EditList);
  EditList.SetRows({QStringLiteral("Delete Item"), QString(), QStringLiteral("Exit")});
  Bind();
}

void BottomLine::Bind() {
  onActivate = [this] {
    LoadItems();
    FollowProject();
  };
  // Closing the window leaves the form as an empty Item does, so that no line is lost.
  onClose = [this] {
    Finish();
    return true;
  };
  OnEnter(
      Item, Keys::Any, [this] { TakeItem(); }, [this] { Finish(); });
  OnFocusSelectAll(Item);
  Item.onDoubleClick = [this] { Toggle(ItemList); };
  OnEnter(iPrice, [this] { TakePrice(); });
  SayTakenNumber(iPrice);
  OnFocusSelectAll(iPrice);
  ItemList.onSelect = [this] { NameSelected(); };
  oiList.onClick = [this] { TakeLine(); };
  oiList.onRightClick = [this] { EditList.SetShown(oiList.Index() >= 0); };
  EditList.onSelect = [this] { EditSelected(); };
}

void BottomLine::BottomLineItems(Form* owner) {
  oiFrame.Show();
  Show(owner);
  LoadItems();
  if (unsaved_) SaveoiList();
  LoadoiList();
  GetDesk().Focus(Item);
}

void BottomLine::PutBack(Form* owner, const QStringList& lines) {
  BottomLineItems(owner);
  oiList.SetRows(lines);
  unsaved_ = true;
}

// The lines of another project than the open one are written there before they leave the screen.
void BottomLine::FollowProject() {
  if (listJob_ == kit_.shared.JobID) return;
  if (unsaved_) SaveoiList();
  LoadoiList();
}

void BottomLine::LoadItems() {
  QStringList names;
  ReadNamesDelimited(kit_.files, kit_.shared, NameList::Items, names);
  ItemList.SetRows(names);
}

void BottomLine::SaveItems() {
  WriteNames(kit_.files, kit_.shared, NameList::Items, ItemList.Rows());
}

void BottomLine::LoadoiList() {
  QStringList lines;
  ReadItemLines(kit_.files, kit_.shared, lines);
  oiList.SetRows(lines);
  listJob_ = kit_.shared.JobID;
  unsaved_ = false;
}

void BottomLine::ReadAgain() {
  if (NamesAreBehind(kit_.files, kit_.shared, NameList::Items)) LoadItems();
  if (unsaved_ || listJob_.isEmpty() || listJob_ != kit_.shared.JobID) return;
  QStringList lines;
  if (kit_.files.IsBehind(ProjectFolder(kit_.shared).Items()) &&
      ReadItemLines(kit_.files, kit_.shared, lines) == kNoError)
    oiList.Refill(lines);
}

void BottomLine::SaveoiList() {
  if (!listJob_.isEmpty()) {
    WriteItemLines(kit_.files, DataFolder(kit_.shared).Project(listJob_), oiList.Rows());
  }
  unsaved_ = false;
}

void BottomLine::TakeItem() {
  // A stored name ends in a blank, so a typed one is added each time; one taken from the list is
  // found (held by a test).
  if (ItemList.Find(Item.Text()) < 0) {
    ItemList.Add(Item.Text() + QLatin1Char(' '));
    SaveItems();
  }
  GetDesk().Focus(iPrice);
}

void BottomLine::SaveUnsaved() {
  if (unsaved_) SaveoiList();
}

void BottomLine::Finish() {
  Hide();
  SaveoiList();
  reports_.PrintReport();
}

void BottomLine::TakePrice() {
  iPrice.SetText(BottomLineMoney(iPrice.Text()));
  const QString line = ItemLine::Of(Item.Text(), iPrice.Text()).Text();
  int at = 0;
  while (at < oiList.Count() && ItemLine(oiList.Row(at)).SearchName() != Item.Text()) ++at;
  if (at == oiList.Count()) {
    oiList.Add(line);
  } else {
    oiList.SetRow(at, line);
  }
  unsaved_ = true;
  SaveItems();
  reports_.PrintReport();
  iPrice.Clear();
  Item.Clear();
  GetDesk().Focus(Item);
}

void BottomLine::NameSelected() {
  if (ItemList.Index() < 0) return;
  ItemList.Hide();
  Item.SetText(ItemList.Selected());
  GetDesk().Focus(Item);
  Item.SelectAll();  // also when it had the focus already
}

void BottomLine::TakeLine() {
  if (oiList.Index() < 0) return;
  const ItemLine line(oiList.Selected());
  Item.SetText(line.Name());
  iPrice.SetText(line.Price());
  GetDesk().Focus(iPrice);
}

void BottomLine::EditSelected() {
  const int command = EditList.Index();
  if (command != 0 && command != 2) return;
  const bool removes = command == 0 && oiList.Index() >= 0;
  if (removes) oiList.Remove(oiList.Index());
  EditList.SetIndex(-1);
  EditList.Hide();
  if (removes) SaveoiList();
}

}  // namespace tamo
