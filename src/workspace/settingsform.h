#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "workspace/modeshell.h"

namespace tamo {

// What is set once per installation: the estimator, the company, the data folder, the plan line's
// colour and width, the shell, and whether open reports follow each save. Changes act at once; they
// reach the disk by "Exit Settings".
class SettingsForm : public Form {
 public:
  SettingsForm(const Kit& kit, ModeShell& shell);

  void LoadSettings();
  void SaveSettings();
  // Brings the data folder's text to its form and makes every level of it.
  void FixDataPath();
  // The menu entry: hides the form when it is visible, otherwise shows it with the calling shell as
  // owner.
  void Toggle(Form* owner);

  // Whether the report strip's switch "Read whole quantities" is on. It is kept as one word in the
  // last line of the file, which is rewritten at once; the other fields' changes stay unsaved.
  bool WholeQuantities() const { return wholeQuantities_; }
  void SetWholeQuantities(bool on);

  TextField EstimatorNumber, EstimatorName, CompanyName, Telephone, DataPath;
  Swatch Line1;  // the sample line
  ScrollBar HScroll1;
  Option Option1, Option2;
  CheckBox AutoCheck;
  Option Option3, Option4;
  Button Command1;
  std::vector<std::unique_ptr<Swatch>> swatches;

 private:
  QString SettingsPath(bool forWriting) const;
  void TakeLine6(QString code);
  void NormaliseEstimatorNumber();
  void RepairDataPath();
  void MakeSwatches();
  void PaintSampleLine(const QString& code);

  const Kit kit_;
  ModeShell& shell_;
  bool wholeQuantities_ = false;
  QString lineColor_ = QStringLiteral("255000000");
};

}  // namespace tamo
