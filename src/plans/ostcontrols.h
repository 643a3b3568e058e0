#pragma once

#include "common/form.h"
#include "plans/mark.h"
#include "plans/picturebox.h"

namespace tamo {

// The controls of the plan form. What they do is in the parts of OSTForm, which share them: each
// part can be tried with these alone.
struct OstControls : Form {
  explicit OstControls(Desk& desk) : Form(desk, QStringLiteral("OST")) {}

  PictureBox picPdfThumbnails{*this, "picPdfThumbnails"};
  PictureBox picPdfDraw{*this, "picPdfDraw"};
  Label GoesTo{*this, "GoesTo"};  // where the next length or count goes
  TextField ProjectName{*this, "ProjectName"};
  TextField PlanLocation{*this, "PlanLocation"};
  TextField PageText{*this, "PageText"};
  TextField ZoomLevel{*this, "ZoomLevel"};
  TextField Mode{*this, "Mode"};  // "Loading", "Measuring" or "Released"
  TextField Scale1{*this, "Scale1"};
  TextField Scale2{*this, "Scale2"};
  TextField Text5{*this, "Text5"};
  TextField IsScale{*this, "IsScale"};
  // The scale in words, always in sight, with a warning when the viewer is in another unit, and the
  // button that is shown beside that warning.
  Label ScaleInForce{*this, "ScaleInForce"};
  Button SetInches{*this, "SetInches", "Set Inches"};
  Label ToolHint{*this, "ToolHint"};  // what the tool in hand does next, or why it can't
  // Above the plan: what speaks against the scale in force on this sheet. The button takes the one
  // that belongs to it, the switch has it taken by itself.
  Label ScaleNote{*this, "ScaleNote"};
  Button TakeScale{*this, "TakeScale", "&Use"};
  CheckBox FollowSheet{*this, "FollowSheet", "Scale Follows t&he Sheet"};
  TextField DistanceText{*this, "DistanceText"};
  // To check the scale against, or to set it by: feet, or any common form of a length.
  TextField KnownDimension{*this, "KnownDimension"};
  Button CheckDimension{*this, "CheckDimension", "Check a &Dimension"};
  Button Calibrate{*this, "Calibrate", "Cali&brate"};
  Label DimensionResult{*this, "DimensionResult"};
  CheckBox Check1{*this, "Check1", "Turn Lines On"};
  Swatch Line1{*this, "Line1"};
  Button Command2{*this, "Command2", "Remove Last Mark"};
  Button Command3{*this, "Command3", "Plan Notes"};
  TextField PlanNotes{*this, "PlanNotes"};
  // A strip that is shown while the plan asked for wants a password.
  Frame LockedPlan{*this, "LockedPlan"};
  TextField PlanPassword{*this, "PlanPassword"};
  Button UnlockPlan{*this, "UnlockPlan", "Open the &Plan"};
  Label PlanProblem{*this, "PlanProblem"};  // why the last plan could not be opened or saved
  Frame Frame1{*this, "Frame1"};
  FileBrowser Drive1{*this, "Drive1", FileBrowser::Kind::Drive};
  FileBrowser Dir1{*this, "Dir1", FileBrowser::Kind::Folder};
  FileBrowser File1{*this, "File1", FileBrowser::Kind::File, "*.pdf"};
  Frame ColorFrame{*this, "ColorFrame"};
  // To find one's way: a sheet by its number, the plan's bookmarks and the sheet's links, layers.
  // One of the three is shown at a time, beside the plan.
  Frame GoToFrame{*this, "GoToFrame"};
  TextField SheetWanted{*this, "SheetWanted", 60};
  Label SheetWords{*this, "SheetWords"};
  OrderedList SheetList{*this, "SheetList"};
  Frame BookmarkFrame{*this, "BookmarkFrame"};
  Label BookmarkWords{*this, "BookmarkWords"};
  OrderedList BookmarkList{*this, "BookmarkList"};
  OrderedList LinkList{*this, "LinkList"};
  Frame LayerFrame{*this, "LayerFrame"};
  Label LayerWords{*this, "LayerWords"};
  CheckList LayerList{*this, "LayerList"};
  Button ShowAllLayers{*this, "ShowAllLayers", "Show &All Layers"};
  // The marks of the plan, below it.
  Frame MarksFrame{*this, "MarksFrame"};
  OrderedList MarksList{*this, "MarksList"};
  TextField MarkTitle{*this, "MarkTitle", kLongestTitle};  // of the chosen mark
  Button MarkToLine{*this, "MarkToLine", "To Its &Takeoff Line (F7)"};
  Label MarksSummary{*this, "MarksSummary"};
  OrderedList MarksTotals{*this, "MarksTotals"};  // by system, of the sheet and of the plan
};

}  // namespace tamo
