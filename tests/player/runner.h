#pragma once

#include <QString>
#include <QTextStream>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "player/machine.h"
#include "player/seat.h"
#include "player/step.h"
#include "player/trouble.h"

namespace tamo::player {

// Plays one scenario: hands its steps to the program that they are meant for, does what befalls
// files and machines, looks, and says on `err` what did not hold.
//
// The second program has a machine of its own on the same folders. What befalls the machine (its
// date, faults of its disk) befalls both, but for a step that names the second one.
class Runner {
 public:
  // `print` writes to `out`.
  Runner(Machine& machine, StageMaker stages, ProgramMaker programs, QTextStream& out,
         QTextStream& err);
  ~Runner();
  Runner(const Runner&) = delete;
  Runner& operator=(const Runner&) = delete;

  // Called before each step.
  std::function<void(const Step& step)> onStep;

  // `file` is the scenario: it names steps that came without a file, and FROM is sought beside it.
  Outcome Play(const QString& file, const std::vector<Step>& steps);

 private:
  void Do(const Step& step);
  void DoToFile(const Step& step);
  static void DoToMachine(const Step& step, Machine& machine);
  void Wait(int seconds);
  void CopyIn(const Step& step);
  QString Sought(const Step& step, const QString& from) const;
  void Print(const Step& step);
  void Expect(const Step& step);
  void Picture(const Step& step, const QString& rest);
  void TakeDown();

  Seat& SeatOf(const Step& step);
  Seat& Front(const Step& step);  // its windows come to the front
  void Say(const Step& step, const QString& why);

  Machine& machine_;
  Machine secondMachine_;
  StageMaker stages_;
  ProgramMaker programs_;
  QTextStream& out_;
  QTextStream& err_;
  std::array<std::unique_ptr<Seat>, 2> seats_;  // each made when it is first wanted
  Seat* front_ = nullptr;
  QString file_;
  Outcome outcome_ = Outcome::Held;
};

}  // namespace tamo::player
