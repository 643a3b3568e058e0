#include "player/seat.h"

#include <QFileInfo>
#include <utility>

#include "common/desk.h"
#include "player/caret.h"
#include "player/cast.h"
#include "player/trouble.h"
#include "player/values.h"

namespace tamo::player {

Seat::Seat(Machine& machine, std::unique_ptr<Stage> stage, ProgramMaker maker)
    : machine_(machine),
      stage_(std::move(stage)),
      maker_(std::move(maker)),
      looker_(machine, played_) {}

Seat::~Seat() {
  TakeDown();
}

Played& Seat::Program() {
  if (played_ == nullptr) Fail(QStringLiteral("the program does not run"));
  return *played_;
}

QString Seat::Text(const Step& step) const {
  return machine_.Expanded(Unshown(step.text));
}

void Seat::Check(bool front) {
  const int unanswered = machine_.messages.unanswered - unanswered_;
  unanswered_ = machine_.messages.unanswered;
  if (played_ != nullptr && !played_->Running()) TakeDown();
  QString why;
  if (unanswered > 0) {
    why = QStringLiteral("a question came without a waiting answer and counts as No: ") +
          Shown(machine_.messages.texts.last());
  } else if (played_ != nullptr) {
    why = stage_->Difference(front);
  }
  if (!why.isEmpty()) Fail(why);
}

void Seat::Tick() {
  if (played_ != nullptr) played_->Tick();
}

void Seat::ToFront() {
  if (played_ != nullptr) stage_->ToFront();
}

bool Seat::SavePicture(const QString& name, const QString& file) {
  Form& form = FormNamed(Program(), name);
  MustReach(form);
  return stage_->SavePicture(form, file);
}

void Seat::Start() {
  if (played_ != nullptr) Fail(QStringLiteral("the program runs already"));
  program_ = maker_(machine_.GetPlatform());
  played_ = program_.get();
  stage_->Raise(*played_);
  played_->Start();
}

void Seat::TakeDown() {
  if (program_ == nullptr) return;
  stage_->Strike();
  played_ = nullptr;
  program_.reset();
}

// Closes the shell's window, then whatever still stands. A program that asks whether to end and is
// told No goes on.
void Seat::Stop() {
  Played& program = Program();
  const auto asked = machine_.messages.texts.size();
  if (Form* shell = program.Shell(); shell != nullptr && shell->Visible()) stage_->CloseBox(*shell);
  while (program.Running() && machine_.messages.texts.size() == asked) {
    const std::vector<Form*>& open = program.GetDesk().FrontToBack();
    if (open.empty()) break;
    Form& front = *open.front();
    stage_->CloseBox(front);
    if (front.Visible()) break;
  }
}

void Seat::ClickNotice() {
  if (Program().Notice().isEmpty())
    Fail(QStringLiteral("a person can't reach it: all is saved and no notice is shown"));
  stage_->ClickNotice();
}

void Seat::Do(const Step& step) {
  switch (step.act) {
    case Act::Start:
      return Start();
    case Act::Stop:
      return Stop();
    case Act::Answer:
      machine_.messages.answers.push_back(step.yes);
      break;
    case Act::Choose:
      return Program().ChooseNext(machine_.PathOf(Unshown(step.text)));
    case Act::Type:
      Program();
      return stage_->Type(Text(step));
    case Act::Key:
      Program();
      return stage_->PressKey(step.key);
    case Act::Enter:
      Program();
      return stage_->Enter(Text(step));
    case Act::Paste:
      Program();
      return stage_->Paste(Text(step));
    case Act::Suggestion:
      if (step.row < 0 || step.row >= Program().SuggestedNames().size())
        Fail(QStringLiteral("there is no suggestion %1").arg(step.row));
      return stage_->ClickSuggestion(step.row);
    case Act::PlanMode:
    case Act::PlanLine:
    case Act::PlanCircle:
    case Act::PlanPress:
    case Act::PlanKey:
    case Act::PlanScroll:
    case Act::PlanPage:
    case Act::PlanBox:
    case Act::PlanPolyline:
    case Act::PlanPolygon:
    case Act::PlanCutOut:
    case Act::PlanDrag:
      return DoOnPlan(step);
    default:
      return DoToControl(step);
  }
}

void Seat::DoToControl(const Step& step) {
  Played& program = Program();
  if (step.act == Act::Menu) {
    MenuEntry& entry = EntryNamed(program, step.name);
    MustReach(entry);
    return stage_->ChooseMenu(entry);
  }
  if (step.act == Act::Close) {
    Form& form = FormNamed(program, step.name);
    MustReach(form);
    return stage_->CloseBox(form);
  }
  if (step.act == Act::Pick || step.act == Act::DoublePick) return Pick(step);
  if (step.act == Act::Click && step.name == QStringLiteral("notice")) return ClickNotice();
  Control& control = ControlNamed(program, step.name);
  switch (step.act) {
    case Act::Focus:
      MustReach(control);
      if (!control.takesFocus)
        Fail(QStringLiteral("%1 never takes the focus").arg(control.FullName()));
      return stage_->Focus(control);
    case Act::Click:
      MustReach(control);
      return stage_->Click(control);
    case Act::DoubleClick:
      MustReach(control);
      return stage_->DoubleClick(control);
    case Act::RightClick:
      MustReach(control);
      return stage_->RightClick(control);
    default:
      return DoToRow(step);
  }
}

void Seat::DoToRow(const Step& step) {
  auto& list = ControlOfKind<OrderedList>(Program(), step.name, "list");
  MustReach(list);
  MustHaveRow(list, step.row);
  switch (step.act) {
    case Act::Select:
      return stage_->SelectRow(list, step.row);
    case Act::RightSelect:
      return stage_->RightSelectRow(list, step.row);
    case Act::DoubleSelect:
      return stage_->DoubleSelectRow(list, step.row);
    case Act::ScrollTo:
      return stage_->ScrollTo(list, step.row);
    default:
      return stage_->TickRow(
          ControlOfKind<CheckList>(Program(), step.name, "list with check boxes"), step.row);
  }
}

void Seat::Pick(const Step& step) {
  auto& browser = ControlOfKind<FileBrowser>(Program(), step.name, "file browser");
  MustReach(browser);
  const QString path = machine_.PathOf(Unshown(step.text));
  const QFileInfo info(path);
  const bool file = browser.GetKind() == FileBrowser::Kind::File;
  if (file ? !info.isFile() : !info.isDir())
    Fail(QStringLiteral("there is no %1 %2 to pick")
             .arg(file ? QStringLiteral("file") : QStringLiteral("folder"), path));
  if (file && !PatternTakes(browser, info.fileName()))
    Fail(QStringLiteral("%1 shows only %2").arg(browser.FullName(), browser.Pattern()));
  stage_->Pick(browser, path, step.act == Act::DoublePick);
}

void Seat::DoOnPlan(const Step& step) {
  Program();
  const auto point = [&](size_t at) { return PagePoint{step.points[at], step.points[at + 1]}; };
  const auto places = [&] {
    std::vector<PagePoint> all;
    for (size_t at = 0; at + 1 < step.points.size(); at += 2) all.push_back(point(at));
    return all;
  };
  switch (step.act) {
    case Act::PlanMode:
      if (step.row < 0 || step.row > static_cast<int>(PlanTool::Perimeter))
        NotUnderstood(QStringLiteral("there is no tool %1: 0 none, 1 measuring, 2 counting, 3 "
                                     "polyline, 4 area, 5 rectangle, 6 cut-out, 7 perimeter")
                          .arg(step.row));
      return stage_->PlanMode(step.row);
    case Act::PlanLine:
      return stage_->PlanLine(point(0), point(2));
    case Act::PlanCircle:
      return stage_->PlanCircle(point(0));
    case Act::PlanPress:
      return stage_->PlanPress(point(0));
    case Act::PlanDrag:
      return stage_->PlanDrag(point(0), point(2));
    case Act::PlanKey:
      return stage_->PlanKey(step.stroke);
    case Act::PlanScroll:
      return stage_->PlanScroll(step.points[0], step.points[1]);
    case Act::PlanBox:
      return stage_->PlanBox(point(0), point(2));
    case Act::PlanPolyline:
      return stage_->PlanOutline(PlanTool::Polyline, places());
    case Act::PlanPolygon:
      return stage_->PlanOutline(PlanTool::Area, places());
    case Act::PlanCutOut:
      return stage_->PlanOutline(PlanTool::CutOut, places());
    default:
      return stage_->PlanPage(step.row);
  }
}

}  // namespace tamo::player
