#include "workspace/settingsform.h"

#include <QDir>
#include <algorithm>

#include "common/chain.h"
#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "records/datafolder.h"
#include "workspace/swatches.h"

namespace tamo {

SettingsForm::SettingsForm(const Kit& kit, FrontWindows& windows)
    : Form(kit.desk, QStringLiteral("Settings")), kit_(kit), windows_(windows) {
  AddText(QStringLiteral("LineColor"), &lineColor_);
  BindChain();
  BindDataPath();
  BindChoices();
  PaintSampleLine(lineColor_);
  DataPath.SetText(kit_.platform.homeFolder + kit_.shared.Separator + QStringLiteral("Tamo") +
                   kit_.shared.Separator);
  LoadSettings();
}

void SettingsForm::BindChain() {
  const auto leads = [this](TextField& field, TextField& next, Keys keys = Keys::Any,
                            const Step& step = {}) {
    OnFocusSelectAll(field);
    OnEnter(field, keys, [this, &next, step] {
      if (step) step();
      kit_.desk.Focus(next);
    });
  };
  leads(EstimatorNumber, EstimatorName, Keys::Digits, [this] { NormaliseEstimatorNumber(); });
  leads(EstimatorName, CompanyName);
  leads(CompanyName, Telephone);
  leads(Telephone, DataPath);
  leads(DataPath, EstimatorNumber, Keys::Any, [this] { EnterDataPath(); });
  EstimatorNumber.onLostFocus = [this] { NormaliseEstimatorNumber(); };
}

void SettingsForm::BindDataPath() {
  DataPath.onLostFocus = [this] { RepairDataPath(); };
  // The field keeps what was typed or stored elsewhere; the disk gets its own separator. A data
  // folder that is no whole path counts from the program folder.
  DataPath.onChange = [this] {
    const QString path = NativePath(DataPath.Text());
    const bool whole = QDir::isAbsolutePath(path);
    kit_.shared.DataPath = whole ? path : kit_.shared.zDir + kit_.shared.Separator + path;
  };
}

void SettingsForm::BindChoices() {
  HScroll1.onChange = [this] { Line1.SetWidth(HScroll1.Value()); };
  Line1.SetWidth(HScroll1.Value());
  AutoCheck.onChange = [this] { kit_.shared.AutoCheck = AutoCheck.Value(); };
  Option1.onClick = [this] { windows_.EnterMode(1); };
  Option2.onClick = [this] { windows_.EnterMode(2); };
  for (Option* option : {&LookSystem, &LookLight, &LookDark})
    option->onClick = [this] { TellLook(); };
  LookSystem.SetSelected(true);
  Command1.onClick = [this] {
    FixDataPath();
    Hide();
    SaveSettings();
  };
}

std::vector<std::unique_ptr<Swatch>> SettingsForm::MakeSwatches() {
  std::vector<std::unique_ptr<Swatch>> made;
  for (const SwatchRow& row : kSwatches) {
    auto swatch =
        std::make_unique<Swatch>(*this, QLatin1String(row.name), QLatin1String(row.caption));
    swatch->SetColour(QLatin1String(row.painted));
    const QString stored = QLatin1String(row.stored);
    if (!stored.isEmpty()) {
      swatch->onClick = [this, stored] { PaintSampleLine(stored); };
    }
    made.push_back(std::move(swatch));
  }
  return made;
}

void SettingsForm::PaintSampleLine(const QString& code) {
  lineColor_ = code;
  kit_.shared.SettingsLineColor = code;
  Line1.SetColour(code);
}

SettingsRecord SettingsForm::RecordOfFields() const {
  SettingsRecord record;
  record.estimatorNumber = EstimatorNumber.Text();
  record.estimatorName = EstimatorName.Text();
  record.companyName = CompanyName.Text();
  record.telephone = Telephone.Text();
  record.dataPath = DataPath.Text();
  record.lineColor = lineColor_;
  record.lineWidth = Line1.Width();
  if (Option1.Selected()) record.interfaceMode = QStringLiteral("1");
  if (Option2.Selected()) record.interfaceMode = QStringLiteral("2");
  record.autoCheck = AutoCheck.Value();
  if (Option3.Selected()) record.scales = QStringLiteral("3");
  if (Option4.Selected()) record.scales = QStringLiteral("4");
  record.look = Look();
  record.wholeQuantities = wholeQuantities_;
  return record;
}

void SettingsForm::LoadSettings() {
  kit_.shared.zDir = kit_.platform.programFolder;
  SettingsRecord record = RecordOfFields();
  if (ReadSettings(kit_.files, kit_.platform, record) == kNoError) TakeRecord(record);
  stored_ = Fields();
}

void SettingsForm::TakeRecord(const SettingsRecord& record) {
  wholeQuantities_ = record.wholeQuantities;
  SetLook(record.look);
  EstimatorNumber.SetText(record.estimatorNumber);
  EstimatorName.SetText(record.estimatorName);
  CompanyName.SetText(record.companyName);
  Telephone.SetText(record.telephone);
  DataPath.SetText(record.dataPath);
  if (record.lines < 6) return;
  PaintSampleLine(record.lineColor);
  kit_.shared.LineColor = record.lineColor;
  if (record.lines < 7) return;
  Line1.SetWidth(record.lineWidth);
  HScroll1.SetValue(record.lineWidth);
  kit_.shared.LineWidth = Line1.Width();
  if (!record.interfaceMode.isEmpty()) kit_.shared.GUIText = record.interfaceMode;
  Option1.SetSelected(record.interfaceMode == QLatin1String("1"));
  Option2.SetSelected(record.interfaceMode == QLatin1String("2"));
  AutoCheck.SetValue(record.autoCheck);
  Option3.SetSelected(record.scales == QLatin1String("3"));
  Option4.SetSelected(record.scales == QLatin1String("4"));
}

void SettingsForm::SaveSettings() {
  if (TrimmedBlanks(DataPath.Text()).isEmpty()) {
    DataPath.SetText(kit_.shared.zDir + kit_.shared.Separator);
  } else {
    MakeDataFolders(kit_.files, kit_.shared);
  }
  kit_.shared.LineWidth = Line1.Width();
  WriteSettings(kit_.files, kit_.platform, RecordOfFields());
  stored_ = Fields();
}

// A number that was only filled in is no entry.
SettingsForm::Values SettingsForm::Fields() const {
  const QString number = EstimatorNumber.Text();
  Values values{{EstimatorNumber.Name(), number.isEmpty() ? QStringLiteral("00") : number}};
  for (const TextField* field : {&EstimatorName, &CompanyName, &Telephone, &DataPath})
    values += {field->Name(), field->Text()};
  values += {QStringLiteral("LineColor"), lineColor_};
  values += {HScroll1.Name(), QString::number(Line1.Width())};
  values += {AutoCheck.Name(), QString::number(AutoCheck.Value())};
  for (const Option* option :
       {&Option1, &Option2, &Option3, &Option4, &LookSystem, &LookLight, &LookDark})
    values += {option->Name(), QString::number(option->Selected() ? 1 : 0)};
  return values;
}

void SettingsForm::PutBack(const Values& values) {
  for (const auto& [name, text] : values) {
    Control* control = Find(name);
    if (name == QLatin1String("LineColor")) PaintSampleLine(text);
    if (auto* field = dynamic_cast<TextField*>(control)) field->SetText(text);
    if (auto* option = dynamic_cast<Option*>(control)) option->SetSelected(text.toInt() == 1);
    if (control == &HScroll1) HScroll1.SetValue(text.toInt());
    if (control == &AutoCheck) AutoCheck.SetValue(text.toInt());
  }
  TellLook();
}

QString SettingsForm::Look() const {
  if (LookLight.Selected()) return QStringLiteral("Light");
  return LookDark.Selected() ? QStringLiteral("Dark") : QString();
}

void SettingsForm::SetLook(const QString& look) {
  LookLight.SetSelected(look == QLatin1String("Light"));
  LookDark.SetSelected(look == QLatin1String("Dark"));
  LookSystem.SetSelected(Look().isEmpty());
  TellLook();
}

void SettingsForm::TellLook() {
  if (onLook) onLook();
}

void SettingsForm::SetWholeQuantities(bool on) {
  wholeQuantities_ = on;
  if (!WriteWholeQuantities(kit_.files, kit_.platform, on)) SaveSettings();
}

void SettingsForm::FixDataPath() {
  DataPath.SetText(FixedDataPath(DataPath.Text(), kit_.shared.Separator[0]));
  for (const QString& level : FolderLevels(kit_.shared.DataPath)) kit_.files.MakeFolder(level);
}

void SettingsForm::EnterDataPath() {
  DataPath.SetText(FixedDataPath(DataPath.Text(), kit_.shared.Separator[0]));
  MakeDataFolders(kit_.files, kit_.shared);
}

void SettingsForm::NormaliseEstimatorNumber() {
  const double number = std::min(Truncated(Value(EstimatorNumber.Text())), 99.0);
  QString text = NumberText(number);
  while (text.size() < 2) text.prepend(QLatin1Char('0'));
  EstimatorNumber.SetText(text);
}

void SettingsForm::RepairDataPath() {
  const QString& separator = kit_.shared.Separator;
  QString path = DataPath.Text();
  if (TrimmedBlanks(path).isEmpty())
    path = kit_.shared.zDir + separator + QStringLiteral("Tamo") + separator;
  if (!EndsInSeparator(path)) path += separator;
  const QString end = path.right(5).toUpper();
  if (!end.startsWith(QLatin1String("TAMO"))) path += QStringLiteral("Tamo") + separator;
  DataPath.SetText(path);
  FixDataPath();
}

void SettingsForm::Toggle(Form* owner) {
  if (Visible()) {
    Hide();
  } else {
    Show(owner);
  }
}

}  // namespace tamo
