#include "player/runner.h"

#include <QFileInfo>
#include <algorithm>

#include "common/desk.h"
#include "player/caret.h"
#include "player/cast.h"
#include "player/difftext.h"
#include "player/values.h"

namespace tamo::player {
namespace {

// How the lines of a look read as one text: the way one-line texts are written in a scenario.
QString OneLine(const QStringList& lines) {
  return lines.join(QStringLiteral("^M^J"));
}

}  // namespace

Runner::Runner(Machine& machine, Stage& stage, ProgramMaker maker, QTextStream& out,
               QTextStream& err)
    : machine_(machine),
      stage_(stage),
      maker_(std::move(maker)),
      out_(out),
      err_(err),
      looker_(machine, played_) {}

Runner::~Runner() {
  TakeDown();
}

Outcome Runner::Play(const QString& file, const QString& folder, const std::vector<Step>& steps) {
  file_ = file;
  folder_ = folder;
  for (const Step& step : steps) {
    if (!step.error.isEmpty()) {
      Say(step, step.error);
      return outcome_ = Outcome::NotUnderstood;
    }
    if (onStep) onStep(step.line);
    try {
      Do(step);
      AfterStep();
    } catch (const Trouble& trouble) {
      Say(step, trouble.why);
      outcome_ = std::max(outcome_, trouble.outcome);
      if (outcome_ == Outcome::NotUnderstood) break;
    } catch (const std::exception& failure) {
      Say(step, QStringLiteral("the program failed: ") + QString::fromLocal8Bit(failure.what()));
      outcome_ = Outcome::Failed;
    }
  }
  TakeDown();
  return outcome_;
}

void Runner::Say(const Step& step, const QString& why) {
  out_.flush();
  err_ << file_ << ':' << step.line << ": " << step.source << '\n';
  err_ << "  " << QString(why).replace(QLatin1Char('\n'), QStringLiteral("\n  ")).trimmed() << '\n';
  err_.flush();
}

Played& Runner::Program() {
  if (played_ == nullptr) Fail(QStringLiteral("the program does not run"));
  return *played_;
}

QString Runner::Text(const Step& step) const {
  return machine_.Expanded(Unshown(step.text));
}

// What holds after every step: no question was left without an answer, the screen shows what the
// forms say, and a program that has ended is gone.
void Runner::AfterStep() {
  const int unanswered = machine_.messages.unanswered - unanswered_;
  unanswered_ = machine_.messages.unanswered;
  if (played_ != nullptr && !played_->Running()) TakeDown();
  QString why;
  if (unanswered > 0) {
    why = QStringLiteral("a question came without a waiting answer and counts as No: ") +
          Shown(machine_.messages.texts.last());
  } else if (played_ != nullptr) {
    why = stage_.Difference();
  }
  if (!why.isEmpty()) Fail(why);
}

void Runner::Start() {
  if (played_ != nullptr) Fail(QStringLiteral("the program runs already"));
  program_ = maker_(machine_.GetPlatform());
  played_ = program_.get();
  stage_.Raise(*played_);
  played_->Start();
}

void Runner::TakeDown() {
  if (program_ == nullptr) return;
  stage_.Strike();
  played_ = nullptr;
  program_.reset();
}

// Closes the shell's window, then whatever still stands. A program that asks whether to end and is
// told No goes on.
void Runner::Stop() {
  Played& program = Program();
  const auto asked = machine_.messages.texts.size();
  if (Form* shell = program.Shell(); shell != nullptr && shell->Visible()) stage_.CloseBox(*shell);
  while (program.Running() && machine_.messages.texts.size() == asked) {
    const std::vector<Form*>& open = program.GetDesk().FrontToBack();
    if (open.empty()) break;
    Form& front = *open.front();
    stage_.CloseBox(front);
    if (front.Visible()) break;
  }
}

void Runner::ClickNotice() {
  if (Program().Notice().isEmpty())
    Fail(QStringLiteral("a person can't reach it: all is saved and no notice is shown"));
  stage_.ClickNotice();
}

void Runner::Do(const Step& step) {
  switch (step.act) {
    case Act::Clock:
      machine_.clock.today = step.date;
      break;
    case Act::Start:
      return Start();
    case Act::Stop:
      return Stop();
    case Act::Answer:
      machine_.messages.answers.push_back(step.yes);
      break;
    case Act::Type:
      Program();
      return stage_.Type(Text(step));
    case Act::Key:
      Program();
      return stage_.PressKey(step.key);
    case Act::Enter:
      Program();
      return stage_.Enter(Text(step));
    case Act::Paste:
      Program();
      return stage_.Paste(Text(step));
    case Act::Print:
      return Print(step);
    case Act::Expect:
      return Expect(step);
    case Act::Write:
    case Act::Copy:
    case Act::Remove:
    case Act::Deny:
    case Act::Allow:
    case Act::Fill:
    case Act::Unfill:
      return DoToFile(step);
    case Act::PlanMode:
    case Act::PlanLine:
    case Act::PlanCircle:
    case Act::PlanPress:
    case Act::PlanKey:
    case Act::PlanScroll:
    case Act::PlanPage:
    case Act::PlanBox:
      return DoOnPlan(step);
    default:
      return DoToControl(step);
  }
}

void Runner::DoToControl(const Step& step) {
  Played& program = Program();
  if (step.act == Act::Menu) {
    MenuEntry& entry = EntryNamed(program, step.name);
    MustReach(entry);
    return stage_.ChooseMenu(entry);
  }
  if (step.act == Act::Close) {
    Form& form = FormNamed(program, step.name);
    MustReach(form);
    return stage_.CloseBox(form);
  }
  if (step.act == Act::Pick || step.act == Act::DoublePick) return Pick(step);
  if (step.act == Act::Click && step.name == QStringLiteral("notice")) return ClickNotice();
  Control& control = ControlNamed(program, step.name);
  switch (step.act) {
    case Act::Focus:
      MustReach(control);
      if (!control.takesFocus)
        Fail(QStringLiteral("%1 never takes the focus").arg(control.FullName()));
      return stage_.Focus(control);
    case Act::Click:
      MustReach(control);
      return stage_.Click(control);
    case Act::DoubleClick:
      MustReach(control);
      return stage_.DoubleClick(control);
    case Act::RightClick:
      MustReach(control);
      return stage_.RightClick(control);
    default:
      return DoToRow(step);
  }
}

void Runner::DoToRow(const Step& step) {
  auto& list = ControlOfKind<OrderedList>(Program(), step.name, "list");
  MustReach(list);
  MustHaveRow(list, step.row);
  switch (step.act) {
    case Act::Select:
      return stage_.SelectRow(list, step.row);
    case Act::RightSelect:
      return stage_.RightSelectRow(list, step.row);
    case Act::DoubleSelect:
      return stage_.DoubleSelectRow(list, step.row);
    case Act::ScrollTo:
      return stage_.ScrollTo(list, step.row);
    default:
      return stage_.TickRow(ControlOfKind<CheckList>(Program(), step.name, "list with check boxes"),
                            step.row);
  }
}

void Runner::Pick(const Step& step) {
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
  stage_.Pick(browser, path, step.act == Act::DoublePick);
}

void Runner::DoOnPlan(const Step& step) {
  Program();
  const auto point = [&](size_t at) { return PagePoint{step.points[at], step.points[at + 1]}; };
  switch (step.act) {
    case Act::PlanMode:
      if (step.row < PdfDraw::NoTool || step.row > PdfDraw::Counting)
        NotUnderstood(
            QStringLiteral("there is no tool %1: 0 none, 1 measuring, 2 counting").arg(step.row));
      return stage_.PlanMode(step.row);
    case Act::PlanLine:
      return stage_.PlanLine(point(0), point(2));
    case Act::PlanCircle:
      return stage_.PlanCircle(point(0));
    case Act::PlanPress:
      return stage_.PlanPress(point(0));
    case Act::PlanKey:
      return stage_.PlanKey(step.stroke);
    case Act::PlanScroll:
      return stage_.PlanScroll(step.points[0], step.points[1]);
    case Act::PlanBox:
      return stage_.PlanBox(point(0), point(2));
    default:
      return stage_.PlanPage(step.row);
  }
}

void Runner::DoToFile(const Step& step) {
  const QString path = machine_.PathOf(Unshown(step.text));
  switch (step.act) {
    case Act::Write:
      if (!Machine::WriteFile(path, machine_.Expanded(FileContent(step.block)).toUtf8()))
        Fail(QStringLiteral("%1 can't be written").arg(path));
      break;
    case Act::Copy:
      return CopyIn(step);
    case Act::Remove:
      if (!Machine::Remove(path)) err_ << file_ << ": there was no " << path << " to remove\n";
      break;
    case Act::Deny:
      machine_.disk.Deny(path);
      break;
    case Act::Allow:
      machine_.disk.Allow(path);
      break;
    default:
      machine_.disk.SetFull(step.act == Act::Fill);
  }
}

// FROM and PATH may hold blanks: FROM is the longest beginning that exists.
void Runner::CopyIn(const Step& step) {
  const QString text = machine_.Expanded(Unshown(step.text));
  for (qsizetype blank = text.lastIndexOf(QLatin1Char(' ')); blank > 0;
       blank = text.lastIndexOf(QLatin1Char(' '), blank - 1)) {
    const QString from = text.left(blank).trimmed();
    const QString full = QFileInfo(from).isAbsolute() ? from : folder_ + QLatin1Char('/') + from;
    if (!QFileInfo::exists(full)) continue;
    const QString to = machine_.PathOf(text.mid(blank + 1));
    if (!Machine::Copy(full, to)) Fail(QStringLiteral("%1 can't be copied to %2").arg(full, to));
    return;
  }
  Fail(QStringLiteral("there is no file to copy: FROM is sought in %1").arg(folder_));
}

void Runner::Print(const Step& step) {
  const QString what = machine_.Expanded(step.text);
  if (what.startsWith(QStringLiteral("picture "))) return Picture(what.mid(8).trimmed());
  for (const QString& line : looker_.Look(what)) out_ << line << '\n';
  out_.flush();
}

void Runner::Picture(const QString& rest) {
  const qsizetype blank = rest.indexOf(QLatin1Char(' '));
  if (blank <= 0) NotUnderstood(QStringLiteral("print picture FORM FILE is expected"));
  Form& form = FormNamed(Program(), rest.left(blank));
  MustReach(form);
  if (!stage_.SavePicture(form, rest.mid(blank + 1)))
    err_ << file_ << ": no picture was made: pictures need --windows and a writable file\n";
}

void Runner::Expect(const Step& step) {
  const QStringList found = looker_.Look(machine_.Expanded(step.text));
  QStringList expected;
  const auto meant = [&](const QString& written) {
    QString text = Respelled(written);
    text.replace(QStringLiteral("{home}"), Shown(machine_.HomeFolder()));
    return text.replace(QStringLiteral("{program}"), Shown(machine_.ProgramFolder()));
  };
  if (step.compare == Compare::Contains) {
    if (OneLine(found).contains(meant(step.expected))) return;
    Fail(QStringLiteral("the text is not in it, found:\n") + ShortDiff({}, found));
  }
  if (step.compare == Compare::Block) {
    for (const QString& line : step.block) expected += meant(line);
    if (found == expected) return;
  } else {
    expected += meant(step.expected);
    if (OneLine(found) == expected.first()) return;
  }
  Fail(QStringLiteral("- expected, + found:\n") + ShortDiff(expected, found));
}

}  // namespace tamo::player
