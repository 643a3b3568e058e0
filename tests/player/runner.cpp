#include "player/runner.h"

#include <QFileInfo>
#include <algorithm>

#include "player/caret.h"
#include "player/difftext.h"
#include "player/script.h"

namespace tamo::player {
namespace {

constexpr int kLook = 3;  // seconds

// How the lines of a look read as one text: the way one-line texts are written in a scenario.
QString OneLine(const QStringList& lines) {
  return lines.join(QStringLiteral("^M^J"));
}

}  // namespace

Runner::Runner(Machine& machine, StageMaker stages, ProgramMaker programs, QTextStream& out,
               QTextStream& err)
    : machine_(machine),
      secondMachine_(machine.ProgramFolder(), machine.HomeFolder()),
      stages_(std::move(stages)),
      programs_(std::move(programs)),
      out_(out),
      err_(err) {}

Runner::~Runner() {
  TakeDown();
}

Outcome Runner::Play(const QString& file, const std::vector<Step>& steps) {
  file_ = file;
  secondMachine_.clock = machine_.clock;
  for (const Step& step : steps) {
    if (!step.error.isEmpty()) {
      Say(step, step.error);
      return outcome_ = Outcome::NotUnderstood;
    }
    if (onStep) onStep(step);
    try {
      Do(step);
      for (const auto& seat : seats_) {
        if (seat != nullptr) seat->Check(seat.get() == front_);
      }
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

void Runner::TakeDown() {
  front_ = nullptr;
  for (auto& seat : seats_) seat.reset();
}

void Runner::Say(const Step& step, const QString& why) {
  out_.flush();
  err_ << (step.file.isEmpty() ? file_ : step.file) << ':' << step.line << ": " << step.source
       << '\n';
  if (!step.usedBy.isEmpty()) err_ << "  used by " << step.usedBy << '\n';
  err_ << "  " << QString(why).replace(QLatin1Char('\n'), QStringLiteral("\n  ")).trimmed() << '\n';
  err_.flush();
}

Seat& Runner::SeatOf(const Step& step) {
  std::unique_ptr<Seat>& seat = seats_[step.second ? 1 : 0];
  if (seat == nullptr)
    seat = std::make_unique<Seat>(step.second ? secondMachine_ : machine_, stages_(), programs_);
  seat->Tick();
  return *seat;
}

Seat& Runner::Front(const Step& step) {
  Seat& seat = SeatOf(step);
  if (front_ != &seat) seat.ToFront();
  front_ = &seat;
  return seat;
}

void Runner::Do(const Step& step) {
  switch (step.act) {
    case Act::Print:
      return Print(step);
    case Act::PlanSnap:
      for (const QString& line :
           SeatOf(step).Look(QStringLiteral("snap %1 %2").arg(step.points[0]).arg(step.points[1])))
        out_ << line << '\n';
      return out_.flush();
    case Act::Expect:
      return Expect(step);
    case Act::Write:
    case Act::Copy:
    case Act::Remove:
      return DoToFile(step);
    case Act::Wait:
      return Wait(step.row);
    case Act::Clock:
    case Act::Deny:
    case Act::Allow:
    case Act::Hide:
    case Act::Unhide:
    case Act::Unreadable:
    case Act::Readable:
    case Act::Fill:
    case Act::Unfill:
      if (!step.second) DoToMachine(step, machine_);
      return DoToMachine(step, secondMachine_);
    default:
      return Front(step).Do(step);
  }
}

// Time goes by at both desks, in the steps in which a program looks about.
void Runner::Wait(int seconds) {
  for (int gone = 0; gone < seconds; gone += kLook) {
    for (Machine* machine : {&machine_, &secondMachine_})
      machine->clock.now = machine->clock.Now().addSecs(std::min(kLook, seconds - gone));
    for (const auto& seat : seats_) {
      if (seat != nullptr) seat->Tick();
    }
  }
}

void Runner::DoToFile(const Step& step) {
  if (step.act == Act::Copy) return CopyIn(step);
  const QString path = machine_.PathOf(Unshown(step.text));
  if (step.act == Act::Remove) {
    if (!Machine::Remove(path)) err_ << file_ << ": there was no " << path << " to remove\n";
  } else if (!Machine::WriteFile(path, machine_.Expanded(FileContent(step.block)).toUtf8())) {
    Fail(QStringLiteral("%1 can't be written").arg(path));
  }
}

// What befalls the machine itself: its date and its disk.
void Runner::DoToMachine(const Step& step, Machine& machine) {
  const QString path = machine.PathOf(Unshown(step.text));
  switch (step.act) {
    case Act::Clock:
      machine.clock.today = step.date;
      break;
    case Act::Deny:
      return machine.disk.Deny(path);
    case Act::Allow:
      return machine.disk.Allow(path);
    case Act::Hide:
      return machine.disk.Hide(path);
    case Act::Unhide:
      return machine.disk.Unhide(path);
    case Act::Unreadable:
      return machine.disk.DenyReading(path);
    case Act::Readable:
      return machine.disk.AllowReading(path);
    default:
      machine.disk.SetFull(step.act == Act::Fill);
  }
}

// A file of the machine: beside the file in which the step stands, or beside the scenario; "" when
// there is none.
QString Runner::Sought(const Step& step, const QString& from) const {
  if (QFileInfo(from).isAbsolute()) return QFileInfo::exists(from) ? from : QString();
  for (const QString& beside : {step.file, file_}) {
    const QString full = ScenarioFolder(beside) + QLatin1Char('/') + from;
    if (!beside.isEmpty() && QFileInfo::exists(full)) return full;
  }
  return {};
}

// FROM and PATH may hold blanks: FROM is the longest beginning that exists.
void Runner::CopyIn(const Step& step) {
  const QString text = machine_.Expanded(Unshown(step.text));
  for (qsizetype blank = text.lastIndexOf(QLatin1Char(' ')); blank > 0;
       blank = text.lastIndexOf(QLatin1Char(' '), blank - 1)) {
    const QString from = text.left(blank).trimmed();
    const QString full = Sought(step, from);
    if (full.isEmpty()) continue;
    const QString to = machine_.PathOf(text.mid(blank + 1));
    if (!Machine::Copy(full, to)) Fail(QStringLiteral("%1 can't be copied to %2").arg(full, to));
    return;
  }
  Fail(QStringLiteral("there is no file to copy: FROM is sought in %1").arg(ScenarioFolder(file_)));
}

void Runner::Print(const Step& step) {
  const QString what = machine_.Expanded(step.text);
  if (what.startsWith(QStringLiteral("picture "))) return Picture(step, what.mid(8).trimmed());
  for (const QString& line : SeatOf(step).Look(what)) out_ << Printed(line) << '\n';
  out_.flush();
}

void Runner::Picture(const Step& step, const QString& rest) {
  const qsizetype blank = rest.indexOf(QLatin1Char(' '));
  if (blank <= 0) NotUnderstood(QStringLiteral("print picture FORM FILE is expected"));
  if (!Front(step).SavePicture(rest.left(blank), rest.mid(blank + 1)))
    err_ << file_ << ": no picture was made: pictures need --windows and a writable file\n";
}

void Runner::Expect(const Step& step) {
  const QStringList found = SeatOf(step).Look(machine_.Expanded(step.text));
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
