#pragma once

#include <QList>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "records/settingsfile.h"
#include "workspace/frontwindows.h"

namespace tamo {

// What is set once per installation: the estimator, the company, the data folder, the plan line's
// colour and width, the shell, and whether open reports follow each save. Changes act at once; they
// reach the disk by "Exit Settings".
class SettingsForm : public Form {
 public:
  SettingsForm(const Kit& kit, FrontWindows& windows);

  void LoadSettings();
  void SaveSettings();
  // Brings the data folder's text to its form and makes every level of it.
  void FixDataPath();
  // The menu entry: hides the form when it is visible, otherwise shows it with the calling shell as
  // owner.
  void Toggle(Form* owner);

  // The form holds what its file does not yet; the values are the texts of its fields and choices,
  // by name.
  using Values = QList<std::pair<QString, QString>>;
  Values Fields() const;
  bool Waits() const { return Fields() != stored_; }
  // What an earlier run of the program had in its fields and did not store.
  void PutBack(const Values& values);

  // Whether the report strip's switch "Read whole quantities" is on. It is kept as one word in the
  // last line of the file, which is rewritten at once; the other fields' changes stay unsaved.
  bool WholeQuantities() const { return wholeQuantities_; }
  void SetWholeQuantities(bool on);

  // "Light", "Dark", or "" for as the desktop is.
  QString Look() const;
  std::function<void()> onLook;  // it was chosen, or read, for whoever shows windows

  TextField EstimatorNumber{*this, "EstimatorNumber"};
  TextField EstimatorName{*this, "EstimatorName"};
  TextField CompanyName{*this, "CompanyName"};
  TextField Telephone{*this, "Telephone"};
  TextField DataPath{*this, "DataPath"};
  // In the order of the eye: so the keys walk.
  std::vector<std::unique_ptr<Swatch>> swatches = MakeSwatches();
  Swatch Line1{*this, "Line1"};  // the sample line
  ScrollBar HScroll1{*this, "HScroll1", 2, 6, 3};
  Option Option1{*this, "Option1", "On Site Takeoff", 1};
  Option Option2{*this, "Option2", "Online Plans", 1};
  Option Option3{*this, "Option3", "U.S. Scale", 2};
  Option Option4{*this, "Option4", "Metric Scale", 2};
  // The colours of the windows; they change at once.
  Option LookSystem{*this, "LookSystem", "As the Desktop", 3};
  Option LookLight{*this, "LookLight", "Light", 3};
  Option LookDark{*this, "LookDark", "Dark", 3};
  CheckBox AutoCheck{*this, "AutoCheck", "AutoUpdate Reports"};
  Label PlanGuard{*this, "PlanGuard"};  // what the system lacks to shut in the reader of plans
  Button Command1{*this, "Command1", "Exit Settings"};

 private:
  void BindChain();
  void BindDataPath();
  void BindChoices();
  void SetLook(const QString& look);
  void TellLook();
  std::vector<std::unique_ptr<Swatch>> MakeSwatches();
  SettingsRecord RecordOfFields() const;
  void TakeRecord(const SettingsRecord& record);
  void NormaliseEstimatorNumber();
  void RepairDataPath();
  void EnterDataPath();
  void PaintSampleLine(const QString& code);

  const Kit kit_;
  FrontWindows& windows_;
  Values stored_;  // as they were last read or written
  bool wholeQuantities_ = false;
  QString lineColor_ = QStringLiteral("255000000");
};

}  // namespace tamo
