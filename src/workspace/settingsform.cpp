#include "workspace/settingsform.h"

#include <QDir>
#include <algorithm>

#include "common/columns.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "records/datafolder.h"
#include "workspace/swatches.h"

namespace tamo {
namespace {

constexpr int kReserveLines = 11;
const QString kDefaultColour = QStringLiteral("255000000");
const QString kWholeQuantities = QStringLiteral("WholeQuantities");

int WholeNumber(const QString& text, int least, int most) {
  return static_cast<int>(
      std::clamp(Truncated(Value(text)), static_cast<double>(least), static_cast<double>(most)));
}

}  // namespace

SettingsForm::SettingsForm(const Kit& kit, ModeShell& shell)
    : Form(kit.desk, QStringLiteral("Settings")),
      EstimatorNumber(*this, QStringLiteral("EstimatorNumber")),
      EstimatorName(*this, QStringLiteral("EstimatorName")),
      CompanyName(*this, QStringLiteral("CompanyName")),
      Telephone(*this, QStringLiteral("Telephone")),
      DataPath(*this, QStringLiteral("DataPath")),
      Line1(*this, QStringLiteral("Line1")),
      HScroll1(*this, QStringLiteral("HScroll1"), 2, 6, 3),
      Option1(*this, QStringLiteral("Option1"), QStringLiteral("On Site Takeoff"), 1),
      Option2(*this, QStringLiteral("Option2"), QStringLiteral("Online Plans"), 1),
      AutoCheck(*this, QStringLiteral("AutoCheck"), QStringLiteral("AutoUpdate Reports")),
      Option3(*this, QStringLiteral("Option3"), QStringLiteral("U.S. Scale"), 2),
      Option4(*this, QStringLiteral("Option4"), QStringLiteral("Metric Scale"), 2),
      Command1(*this, QStringLiteral("Command1"), QStringLiteral("Exit Settings")),
      kit_(kit),
      shell_(shell) {
  AddText(QStringLiteral("LineColor"), &lineColor_);
  MakeSwatches();

  const std::array<TextField*, 5> chain = {&EstimatorNumber, &EstimatorName, &CompanyName,
                                           &Telephone, &DataPath};
  for (size_t i = 0; i < chain.size(); ++i) {
    TextField* field = chain[i];
    TextField* next = chain[(i + 1) % chain.size()];
    field->onGotFocus = [field] { field->SelectAll(); };
    field->onKey = [this, field, next](Key& key) {
      if (field == &EstimatorNumber && key.name != Key::Name::Enter &&
          key.name != Key::Name::Backspace) {
        const bool typed = key.Is(Key::Name::Character) || key.Is(Key::Name::Space);
        if (typed && !(key.character >= QLatin1Char('0') && key.character <= QLatin1Char('9')))
          key.Drop();
      }
      if (!key.IsEnter()) return;
      key.Drop();
      if (field == &EstimatorNumber) NormaliseEstimatorNumber();
      if (field == &DataPath) {
        DataPath.SetText(FixedDataPath(DataPath.Text(), kit_.shared.Separator[0]));
        MakeDataFolders(kit_.files, kit_.shared);
      }
      kit_.desk.Focus(*next);
    };
  }
  EstimatorNumber.onLostFocus = [this] { NormaliseEstimatorNumber(); };
  DataPath.onLostFocus = [this] { RepairDataPath(); };
  // A data folder that is no whole path counts from the program folder.
  DataPath.onChange = [this] {
    // The field keeps what was typed or stored elsewhere; the disk gets its own separator.
    const QString path = NativePath(DataPath.Text());
    const bool whole = QDir::isAbsolutePath(path);
    kit_.shared.DataPath = whole ? path : kit_.shared.zDir + kit_.shared.Separator + path;
  };
  HScroll1.onChange = [this] { Line1.SetWidth(HScroll1.Value()); };
  Line1.SetWidth(HScroll1.Value());
  AutoCheck.onChange = [this] { kit_.shared.AutoCheck = AutoCheck.Value(); };
  Option1.onClick = [this] { shell_.EnterMode(1); };
  Option2.onClick = [this] { shell_.EnterMode(2); };
  Command1.onClick = [this] {
    FixDataPath();
    Hide();
    SaveSettings();
  };

  PaintSampleLine(kDefaultColour);
  DataPath.SetText(kit_.platform.homeFolder + kit_.shared.Separator + QStringLiteral("Tamo") +
                   kit_.shared.Separator);
  LoadSettings();
}

void SettingsForm::MakeSwatches() {
  for (const SwatchRow& row : kSwatches) {
    auto swatch =
        std::make_unique<Swatch>(*this, QLatin1String(row.name), QLatin1String(row.caption));
    swatch->SetColour(QLatin1String(row.painted));
    const QString stored = QLatin1String(row.stored);
    if (!stored.isEmpty()) {
      swatch->onClick = [this, stored] { PaintSampleLine(stored); };
    }
    swatches.push_back(std::move(swatch));
  }
}

void SettingsForm::PaintSampleLine(const QString& code) {
  lineColor_ = code;
  kit_.shared.SettingsLineColor = code;
  Line1.SetColour(code);
}

// In an installed program whose folder belongs to the machine, each user has a file of their own.
QString SettingsForm::SettingsPath(bool forWriting) const {
  QString beside = kit_.shared.zDir + kit_.shared.Separator + QStringLiteral("Settings.tamo");
  if (kit_.files.GetDisk().CanWrite(kit_.shared.zDir)) return beside;
  QString own =
      kit_.platform.configFolder + kit_.shared.Separator + QStringLiteral("Settings.tamo");
  return forWriting || kit_.files.Exists(own) ? own : beside;
}

void SettingsForm::LoadSettings() {
  kit_.shared.zDir = kit_.platform.programFolder;
  QStringList lines;
  if (kit_.files.ReadLines(SettingsPath(false), lines) != 0) return;
  wholeQuantities_ = !lines.isEmpty() && lines.last() == kWholeQuantities;

  LineReader reader(lines);
  QString line;
  for (TextField* field : {&EstimatorNumber, &EstimatorName, &CompanyName, &Telephone, &DataPath}) {
    if (reader.Read(line)) field->SetText(line);
  }
  if (!reader.Read(line)) return;
  TakeLine6(line);
  if (!reader.Read(line)) return;
  Line1.SetWidth(WholeNumber(line, 0, 100));
  HScroll1.SetValue(WholeNumber(line, 0, 100));
  kit_.shared.LineWidth = Line1.Width();
  Option1.SetSelected(false);
  Option2.SetSelected(false);
  if (!reader.Read(line)) return;
  if (line == QLatin1String("1") || line == QLatin1String("2")) {
    kit_.shared.GUIText = line;
    (line == QLatin1String("1") ? Option1 : Option2).SetSelected(true);
  }
  if (!reader.Read(line)) return;
  AutoCheck.SetValue(Value(line) == 1 ? 1 : 0);
  Option3.SetSelected(false);
  Option4.SetSelected(false);
  if (!reader.Read(line)) return;
  if (line == QLatin1String("3")) Option3.SetSelected(true);
  if (line == QLatin1String("4")) Option4.SetSelected(true);
}

void SettingsForm::TakeLine6(QString code) {
  if (code.size() != 9) code = kDefaultColour;
  PaintSampleLine(code);
  kit_.shared.LineColor = code;
}

void SettingsForm::SaveSettings() {
  const QString& separator = kit_.shared.Separator;
  if (TrimmedBlanks(DataPath.Text()).isEmpty()) {
    DataPath.SetText(kit_.shared.zDir + separator);
  } else {
    MakeDataFolders(kit_.files, kit_.shared);
  }
  QStringList lines = {EstimatorNumber.Text(),
                       EstimatorName.Text(),
                       CompanyName.Text(),
                       Telephone.Text(),
                       DataPath.Text(),
                       lineColor_,
                       QString::number(Line1.Width())};
  kit_.shared.LineWidth = Line1.Width();
  // Nobody picked one of a pair yet: then the pair has no line, and the later lines stand one
  // higher. A test holds it.
  if (Option1.Selected()) lines += QStringLiteral("1");
  if (Option2.Selected()) lines += QStringLiteral("2");
  lines += SignedNumberText(AutoCheck.Value()) + QLatin1Char(' ');
  if (Option3.Selected()) lines += QStringLiteral("3");
  if (Option4.Selected()) lines += QStringLiteral("4");
  for (int i = 1; i < kReserveLines; ++i) lines += QString();
  lines += wholeQuantities_ ? kWholeQuantities : QString();
  const QString path = SettingsPath(true);
  kit_.files.MakeFolders(FolderOf(path));
  kit_.files.SaveLines(path, lines);
}

void SettingsForm::SetWholeQuantities(bool on) {
  wholeQuantities_ = on;
  QStringList lines;
  if (kit_.files.ReadLines(SettingsPath(false), lines) != 0) {
    SaveSettings();
    return;
  }
  if (!lines.isEmpty() && (lines.last().isEmpty() || lines.last() == kWholeQuantities))
    lines.removeLast();
  lines += on ? kWholeQuantities : QString();
  kit_.files.SaveLines(SettingsPath(true), lines);
}

void SettingsForm::FixDataPath() {
  DataPath.SetText(FixedDataPath(DataPath.Text(), kit_.shared.Separator[0]));
  for (const QString& level : FolderLevels(kit_.shared.DataPath)) kit_.files.MakeFolder(level);
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
