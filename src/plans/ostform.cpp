#include "plans/ostform.h"

#include "common/paths.h"
#include "plans/ostmenu.h"
#include "workspace/swatches.h"

// The form, its controls and who answers what.

namespace tamo {

#define OST_CONTROL(name) name(*this, QStringLiteral(#name))
#define OST_CAPTIONED(name, caption) name(*this, QStringLiteral(#name), QStringLiteral(caption))

OSTForm::OSTForm(const Kit& kit, PdfDraw& viewer, ProjectKeeper& keeper, TakeoffFields& takeoff)
    : Form(kit.desk, QStringLiteral("OST")),
      OST_CONTROL(picPdfThumbnails),
      OST_CONTROL(picPdfDraw),
      OST_CONTROL(ProjectName),
      OST_CONTROL(PlanLocation),
      OST_CONTROL(PageText),
      OST_CONTROL(ZoomLevel),
      OST_CONTROL(Mode),
      OST_CONTROL(Scale1),
      OST_CONTROL(Scale2),
      OST_CONTROL(Text5),
      OST_CONTROL(IsScale),
      OST_CONTROL(ScaleInForce),
      OST_CAPTIONED(SetInches, "Set Inches"),
      OST_CONTROL(DistanceText),
      OST_CONTROL(KnownDimension),
      OST_CAPTIONED(CheckDimension, "Check a &Dimension"),
      OST_CONTROL(DimensionResult),
      OST_CAPTIONED(Check1, "Turn Lines On"),
      OST_CONTROL(Line1),
      OST_CAPTIONED(Command2, "Remove Last Mark"),
      OST_CAPTIONED(Command3, "Plan Notes"),
      OST_CONTROL(PlanNotes),
      OST_CONTROL(PlanProblem),
      OST_CONTROL(Frame1),
      Drive1(*this, QStringLiteral("Drive1"), FileBrowser::Kind::Drive),
      Dir1(*this, QStringLiteral("Dir1"), FileBrowser::Kind::Folder),
      File1(*this, QStringLiteral("File1"), FileBrowser::Kind::File, QStringLiteral("*.pdf")),
      OST_CONTROL(ColorFrame),
      kit_(kit),
      viewer_(viewer),
      keeper_(keeper),
      takeoff_(takeoff) {
  AddText(QStringLiteral("ViewerName"), &ViewerName);
  AddText(QStringLiteral("LoadingJobNFO"), &kit_.shared.LoadingJobNFO);
  SetCaption(QStringLiteral("Digital Plan Takeoff"));
  menu_ = MakeOstMenu(*this);
  SetUpFields();
  SetUpBrowser();
  SetUpColours();
  SetUpMenus();
  SetUpViewer();
  ShowScale();
}

#undef OST_CONTROL
#undef OST_CAPTIONED

std::function<void()> OSTForm::Handled(void (OSTForm::*handler)()) {
  return [this, handler] { (this->*handler)(); };
}

void OSTForm::SetUpFields() {
  for (TextField* field : {&ProjectName, &Mode, &IsScale, &DistanceText}) {
    field->readOnly = true;
    field->inTabOrder = false;
  }
  // The focus stays on the plan, so that Remove Last Mark knows that the plan was worked on.
  for (Control* button : std::initializer_list<Control*>{&SetInches, &CheckDimension, &Check1,
                                                         &Command2, &Command3}) {
    button->takesFocus = false;
  }
  picPdfThumbnails.inTabOrder = false;

  PageText.onGotFocus = [this] { PageText.SelectAll(); };
  ZoomLevel.onGotFocus = [this] { ZoomLevel.SelectAll(); };
  const auto onEnter = [this](TextField& field, void (OSTForm::*handler)()) {
    field.onKey = [this, handler](Key& key) {
      if (!key.IsEnter()) return;
      key.Drop();
      (this->*handler)();
    };
  };
  onEnter(PageText, &OSTForm::TakePage);
  onEnter(ZoomLevel, &OSTForm::TakeZoomLevel);
  onEnter(PlanLocation, &OSTForm::EnterPlanLocation);
  onEnter(KnownDimension, &OSTForm::StartCheck);
  ZoomLevel.onChange = Handled(&OSTForm::SaveRecordInVain);

  Scale1.onChange = Handled(&OSTForm::ScaleChanged);
  Scale2.onChange = Handled(&OSTForm::ScaleChanged);
  Text5.onChange = [this] {
    inchesChosen_ = false;
    SetUnitByText5();
  };
  SetInches.onClick = Handled(&OSTForm::SetViewerToInches);
  CheckDimension.onClick = Handled(&OSTForm::StartCheck);

  Check1.onChange = [this] { Line1.SetShown(Check1.Value() == 1); };
  Command2.onClick = Handled(&OSTForm::RemoveLastMark);
  Command3.onClick = Handled(&OSTForm::ToggleNotes);
  PlanNotes.multiLine = true;
  PlanNotes.Hide();
  PlanNotes.onKey = [this](Key& key) {
    if (key.IsEnter()) SavePlanNotes();
  };
}

void OSTForm::SetUpBrowser() {
  for (FileBrowser* browser : {&Drive1, &Dir1, &File1}) browser->PutInto(Frame1);
  Frame1.SetCaption(QStringLiteral("Plans"));
  Frame1.Hide();
  Drive1.onPick = [this] {
    Dir1.SetFolder(Drive1.Folder());
    File1.SetFolder(Drive1.Folder());
  };
  Dir1.onPick = [this] { File1.SetFolder(Dir1.Folder()); };
  File1.onPick = Handled(&OSTForm::PickPlan);
  File1.onDoublePick = Handled(&OSTForm::PickPlanTwice);
}

void OSTForm::SetUpColours() {
  ColorFrame.Hide();
  for (const SwatchRow& row : std::span(kSwatches).first(kPlanSwatches)) {
    auto swatch =
        std::make_unique<Swatch>(*this, QLatin1String(row.name), QLatin1String(row.caption));
    swatch->PutInto(ColorFrame);
    swatch->onClick = [this, code = QString(QLatin1String(row.stored))] { ChooseColour(code); };
    swatches_.push_back(std::move(swatch));
  }
}

void OSTForm::SetUpMenus() {
  const auto on = [this](const char* entry, std::function<void()> handler) {
    FindMenu(QLatin1String(entry))->onClick = std::move(handler);
  };
  on("ZoomIn", Handled(&OSTForm::ZoomIn));
  on("ZoomOut", Handled(&OSTForm::ZoomOut));
  on("GetFiles", [this] { ToggleFrame(Frame1); });
  on("LinesColor", [this] { ToggleFrame(ColorFrame); });
  on("Save", Handled(&OSTForm::Save));
  on("Printit", [this] { viewer_.Print(); });
  for (const auto scales : {InchScales(), MillimetreScales(), CentimetreScales()}) {
    for (const ScaleEntry& scale : scales) on(scale.name, [this, &scale] { ChooseScale(scale); });
  }
}

void OSTForm::SetUpViewer() {
  const auto event = [this](auto handler) {
    return [this, handler](auto&&... values) { kit_.desk.Dispatch([&] { handler(values...); }); };
  };
  viewer_.onModeChanged = event([this](int mode) { ModeChanged(mode); });
  viewer_.onLineMeasured =
      event([this](double& length, QString& label) { LineMeasured(length, label); });
  viewer_.onLineRunning = event([this](double& length, QString& label) {
    const double plan = viewer_.EvaluateFraction(Scale1.Text());
    const MeasuredLine line = ScaledLine(length, plan, Scale(), viewer_.UnitName(), label);
    length = line.length;
    label = line.label;
  });
  viewer_.onLineChecked = event([this](double paperLength) { LineChecked(paperLength); });
  viewer_.onCircleCountChanged = event([this](int count) { CirclesCounted(count); });
  viewer_.onPageChanged = event([this] { ShowPage(); });
  viewer_.onScrolled = event([this] {
    if (!Visible() || Loading()) return;
    keeper_.SaveJobNFO();
    kit_.shared.LoadingJobNFO = QStringLiteral("False");
  });
  viewer_.onMousePressed = event([this] {
    kit_.desk.Focus(picPdfDraw);
    WarnOfMissingScale();
  });
  viewer_.onEnterKey = event([this] { ReturnFocus(); });
  viewer_.onProblem = event([this](const QString& text) {
    PlanLocation.Clear();
    PlanFailed(text);
  });
  picPdfDraw.onKey = [this](Key& key) {
    static const std::pair<Key::Name, PlanKey> keys[] = {
        {Key::Name::Enter, PlanKey::Enter}, {Key::Name::Escape, PlanKey::Escape},
        {Key::Name::Space, PlanKey::Space}, {Key::Name::Backspace, PlanKey::Backspace},
        {Key::Name::Up, PlanKey::Up},       {Key::Name::Down, PlanKey::Down},
        {Key::Name::Left, PlanKey::Left},   {Key::Name::Right, PlanKey::Right}};
    for (const auto& [name, stroke] : keys) {
      if (!key.Is(name)) continue;
      key.Drop();
      viewer_.Key({stroke, false, false});
    }
  };
}

void OSTForm::Load() {
  ViewerName = QStringLiteral("PDFDraw");
  viewer_.SetMarkerSize(3.0 / 16 * 72);
  for (size_t i = 0; i < swatches_.size(); ++i) {
    swatches_[i]->SetColour(QLatin1String(kSwatches[i].painted));
  }
  kit_.shared.LineColor = QStringLiteral("255000000");
  Line1.SetColour(kit_.shared.LineColor);
  Line1.SetWidth(kit_.shared.LineWidth);
  Check1.SetValue(1);
  Mode.SetText(QStringLiteral("Released"));
  StartBrowser();
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  kit_.shared.DriveBy = QStringLiteral("True");
  keeper_.InitMain();
  kit_.shared.DriveBy = QStringLiteral("False");
}

bool OSTForm::Loading() const {
  return kit_.shared.LoadingJobNFO != QLatin1String("False");
}

}  // namespace tamo
