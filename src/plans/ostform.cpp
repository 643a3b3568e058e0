#include "plans/ostform.h"

#include <span>

#include "common/chain.h"
#include "common/columns.h"
#include "plans/ostmenu.h"
#include "workspace/swatches.h"

namespace tamo {
namespace {

void Toggle(Frame& frame) {
  frame.SetShown(!frame.Shown());
}

// An event of the viewer as one of the desk: a failure in it is told there.
template <typename Handler>
auto OnDesk(Desk& desk, Handler handler) {
  return [&desk, handler](auto&&... values) { desk.Dispatch([&] { handler(values...); }); };
}

}  // namespace

OSTForm::OSTForm(const Kit& kit, PdfDraw& viewer, ProjectKeeper& keeper, TakeoffFields& takeoff)
    : OstControls(kit.desk),
      kit_(kit),
      viewer_(viewer),
      keeper_(keeper),
      menu_(MakeOstMenu(*this)),
      record_(kit.shared, keeper),
      scale_(*this, viewer, record_),
      pages_(*this, viewer, record_),
      pen_(kit, *this, viewer),
      browser_(kit, *this),
      notes_(kit, *this, viewer),
      copy_(kit, *this, viewer, record_),
      opener_(kit, *this, viewer, {record_, scale_, pages_, browser_, copy_}),
      measure_(kit, *this, viewer, scale_, takeoff),
      surfaces_(*this, scale_, measure_, takeoff),
      groups_(kit, *this, viewer, measure_),
      sheetScales_(kit, *this, viewer, scale_, record_),
      ways_(kit, *this, viewer, record_),
      marks_(kit, *this, viewer, [this] { copy_.SaveEdits(TrimmedBlanks(kit_.shared.JobID)); }),
      compare_(kit, *this, viewer) {
  SetCaption(QStringLiteral("Digital Plan Takeoff"));
  BindFields();
  BindMenus();
  BindView();
  BindTools();
  BindMarks();
  BindPlanKeys();
  JoinParts();
}

void OSTForm::BindFields() {
  AddText(QStringLiteral("ViewerName"), &ViewerName);
  AddText(QStringLiteral("LoadingJobNFO"), &kit_.shared.LoadingJobNFO);
  for (TextField* field : {&ProjectName, &Mode, &IsScale, &DistanceText}) {
    field->readOnly = true;
    field->inTabOrder = false;
  }
  // The focus stays on the plan, so that Remove Last Mark knows that the plan
  // was worked on.
  for (Control* button : std::initializer_list<Control*>{&SetInches, &CheckDimension, &Check1,
                                                         &Command2, &Command3}) {
    button->takesFocus = false;
  }
  picPdfThumbnails.inTabOrder = false;
  PlanPassword.PutInto(LockedPlan);
  UnlockPlan.PutInto(LockedPlan);
  LockedPlan.Hide();
  OnEnter(PlanPassword, [this] { opener_.OpenLocked(); });
  UnlockPlan.onClick = [this] { opener_.OpenLocked(); };
  for (TextField* field : {&PageText, &ZoomLevel})
    field->onGotFocus = [field] { field->SelectAll(); };
  OnEnter(PageText, [this] { pages_.TakePage(); });
  OnEnter(ZoomLevel, [this] { pages_.TakeZoomLevel(); });
  OnEnter(PlanLocation, [this] { opener_.EnterPlanLocation(); });
  OnEnter(KnownDimension, [this] { measure_.StartCheck(); });
  for (TextField* field : {&KnownDimension, &Scale1, &Scale2}) SayTakenNumber(*field);
  Command2.onClick = [this] {
    if (ActiveControl() == &picPdfDraw) viewer_.DeleteMark(0);
  };
}

void OSTForm::BindMenus() {
  const auto on = [this](const char* entry, std::function<void()> handler) {
    FindMenu(QLatin1String(entry))->onClick = std::move(handler);
  };
  on("ZoomIn", [this] { pages_.ZoomIn(); });
  on("ZoomOut", [this] { pages_.ZoomOut(); });
  on("GetFiles", [this] {
    for (Frame* other : {&GoToFrame, &BookmarkFrame, &LayerFrame}) other->Hide();
    Toggle(Frame1);
  });
  on("LinesColor", [this] { Toggle(ColorFrame); });
  on("Save", [this] { Save(); });
  on("Printit", [this] { viewer_.Print(); });
  on("SnapToDrawing", [this] { viewer_.Key({PlanKey::Snap, false, false}); });
  on("CountGroups", [this] { groups_.Open(); });
  on("FindSame", [this] {
    kit_.desk.Focus(picPdfDraw);
    viewer_.Same().Start();
  });
  static const std::pair<const char*, PlanTool> tools[] = {{"DrawPolyline", PlanTool::Polyline},
                                                           {"DrawArea", PlanTool::Area},
                                                           {"DrawRectangle", PlanTool::Rectangle},
                                                           {"DrawCutOut", PlanTool::CutOut},
                                                           {"DrawPerimeter", PlanTool::Perimeter}};
  for (const auto& [name, tool] : tools) {
    on(name, [this, tool = tool] {
      viewer_.PickTool(tool);
      kit_.desk.Focus(picPdfDraw);
    });
  }
  for (const auto scales : {InchScales(), MillimetreScales(), CentimetreScales()}) {
    for (const ScaleEntry& scale : scales) on(scale.name, [this, &scale] { ChooseScale(scale); });
  }
}

// What one part tells another.
void OSTForm::JoinParts() {
  // What a sheet prints is known as soon as its texts are read, long before anything is measured.
  sheetScales_.printedOn = [this](int page) -> std::optional<std::vector<PrintedScale>> {
    const SheetBook::Sheet& sheet = ways_.Book().Of(page);
    if (!sheet.read) return std::nullopt;
    return sheet.scales;
  };
  ways_.onSheetKnown = [this] { sheetScales_.SheetRead(); };
  compare_.Carry().onCarried = [this] {
    if (!TrimmedBlanks(kit_.shared.JobID).isEmpty()) SaveIt();
  };
  compare_.onChoosePlan = [this] { return onChoosePlan ? onChoosePlan() : QString(); };
}

// What the menus do to the chosen mark by keys, and what follows it.
void OSTForm::BindMarks() {
  const auto on = [this](const QString& entry, std::function<void()> handler) {
    FindMenu(entry)->onClick = std::move(handler);
  };
  const auto press = [this](PlanKey key) {
    return [this, key] {
      kit_.desk.Focus(picPdfDraw);
      viewer_.Key({key, false, false});
    };
  };
  on(QStringLiteral("NextMark"), press(PlanKey::No));
  on(QStringLiteral("MarkBefore"), press(PlanKey::MarkBefore));
  on(QStringLiteral("NameMark"), [this] { marks_.AskTitle(); });
  on(QStringLiteral("DeleteMark"), [this, remove = press(PlanKey::Delete)] {
    if (marks_.IsChosen()) remove();
  });
  on(QStringLiteral("LegendOfSheet"), [this] { marks_.Legends().Place(false); });
  on(QStringLiteral("LegendOfPlan"), [this] { marks_.Legends().Place(true); });
  on(QStringLiteral("RefreshLegends"), [this] { marks_.Legends().Refresh(); });
  on(QStringLiteral("RemoveLegends"), [this] { marks_.Legends().Remove(); });
  on(QStringLiteral("MarkLine"), [this] { marks_.GoToLine(); });
  on(QStringLiteral("MarksOfPlan"), [this] { marks_.Toggle(); });
  for (const SwatchRow& row : std::span(kSwatches).first(kPlanSwatches)) {
    on(ColourEntry(row), [this, code = QString(QLatin1String(row.stored))] {
      if (marks_.IsChosen()) viewer_.Hand().Recolour(code);
    });
  }
  viewer_.onMarkEdited = OnDesk(kit_.desk, [this] { marks_.Edited(); });
  viewer_.onMarkChosen = OnDesk(kit_.desk, [this] { marks_.Chosen(); });
}

// What is measured and counted, the tool in hand and the pen.
void OSTForm::BindTools() {
  Desk& desk = kit_.desk;
  viewer_.onPenChanged = [this] { pen_.ShowPen(); };
  viewer_.onModeChanged = OnDesk(desk, [this](PlanTool tool) {
    pen_.ModeChanged(tool);
    surfaces_.ToolPicked(tool);
    groups_.ToolPicked(tool);
    viewer_.Snap().Follow();
    viewer_.Same().Leave();
    sheetScales_.ToolPicked(tool);
  });
  viewer_.onLineMeasured = OnDesk(
      desk, [this](double& length, QString& label) { measure_.LineMeasured(length, label); });
  viewer_.onLineRunning =
      OnDesk(desk, [this](double& length, QString& label) { measure_.LineRunning(length, label); });
  viewer_.onLineChecked = OnDesk(desk, [this](double paperLength) {
    if (sheetScales_.TakeDimension(paperLength)) return;
    if (measure_.LineChecked(paperLength)) sheetScales_.WasChecked();
  });
  viewer_.onAreaMeasured =
      OnDesk(desk, [this](double& area, QString& label) { surfaces_.AreaMeasured(area, label); });
  viewer_.onAreaRunning =
      OnDesk(desk, [this](double& area, QString& label) { surfaces_.AreaRunning(area, label); });
  viewer_.onCircleCountChanged =
      OnDesk(desk, [this](int count) { measure_.CirclesCounted(count); });
  viewer_.onGroupCountChanged =
      OnDesk(desk, [this](const QString& group, int count) { groups_.Counted(group, count); });
  viewer_.onToolRefused = OnDesk(desk, [this](const QString& why) { surfaces_.Refused(why); });
}

// The sheet in front, what is pressed on it, and what is wrong with the plan.
void OSTForm::BindView() {
  Desk& desk = kit_.desk;
  viewer_.onPageChanged = OnDesk(desk, [this] {
    pages_.ShowPage();
    groups_.ShowGroups();
    viewer_.Snap().Follow();
    ways_.PageShown();
    viewer_.Same().Follow();
    sheetScales_.SheetChanged();
    compare_.SheetChanged();
  });
  viewer_.onScrolled = OnDesk(desk, [this] {
    if (Visible()) record_.SaveAfterScroll();
  });
  viewer_.onMousePressed = OnDesk(desk, [this] {
    kit_.desk.Focus(picPdfDraw);
    if (!sheetScales_.Calibrating() && !viewer_.Same().Boxing()) measure_.WarnOfMissingScale();
    if (onPlanPressed) onPlanPressed();
  });
  viewer_.onReservation = [this](const QString& reservation) {
    return kit_.platform.messages.Ask(reservation +
                                      QStringLiteral(" Mark your copy of it all the same?"));
  };
  viewer_.onSheetRead = OnDesk(desk, [this] { sheetScales_.SheetRead(); });
  viewer_.onPageProblem =
      OnDesk(desk, [this](const QString& text) { PlanProblem.SetCaption(text); });
  viewer_.onEnterKey = OnDesk(desk, [this] { EnterOnPlan(); });
  viewer_.onProblem = OnDesk(desk, [this](const QString& text) { PlanLost(text); });
}

void OSTForm::EnterOnPlan() {
  const bool boxed = viewer_.Tool() == PlanTool::None && viewer_.Box().Drawn().has_value();
  if (boxed && onEnterBox && onEnterBox()) return;
  measure_.ReturnFocus();
}

void OSTForm::PlanLost(const QString& problem) {
  const bool locked = viewer_.WantsPassword();
  if (locked) opener_.AskPassword(PlanLocation.Text());
  PlanLocation.Clear();
  PlanProblem.SetCaption(problem);
}

void OSTForm::BindPlanKeys() {
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
  pen_.Load();
  Mode.SetText(QStringLiteral("Released"));
  browser_.Start();
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  kit_.shared.DriveBy = QStringLiteral("True");
  keeper_.InitMain();
  kit_.shared.DriveBy = QStringLiteral("False");
  pen_.ShowPen();
}

void OSTForm::Save() {
  const QString id = TrimmedBlanks(kit_.shared.JobID);
  copy_.Save(id.isEmpty() ? QStringLiteral("Unknown Job ID") : id);
}

void OSTForm::SaveIt() {
  copy_.Save(TrimmedBlanks(kit_.shared.JobID));
}

}  // namespace tamo
