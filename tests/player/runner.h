#pragma once

#include <QString>
#include <QTextStream>
#include <functional>
#include <memory>
#include <vector>

#include "player/looker.h"
#include "player/machine.h"
#include "player/played.h"
#include "player/stage.h"
#include "player/step.h"
#include "player/trouble.h"

namespace tamo::player {

// Plays one scenario: hands its steps to a stage, looks, and says on `err` what did not hold.
class Runner {
 public:
  // `print` writes to `out`. `file` names the scenario in messages, `folder` is where it stands.
  Runner(Machine& machine, Stage& stage, ProgramMaker maker, QTextStream& out, QTextStream& err);
  ~Runner();
  Runner(const Runner&) = delete;
  Runner& operator=(const Runner&) = delete;

  // Called before each step with its line.
  std::function<void(int line)> onStep;

  Outcome Play(const QString& file, const QString& folder, const std::vector<Step>& steps);

 private:
  void Do(const Step& step);
  void DoToControl(const Step& step);
  void DoToRow(const Step& step);
  void DoOnPlan(const Step& step);
  void DoToFile(const Step& step);
  void Start();
  void Stop();
  void TakeDown();
  void ClickNotice();
  void Pick(const Step& step);
  void CopyIn(const Step& step);
  void Print(const Step& step);
  void Expect(const Step& step);
  void Picture(const QString& rest);
  void AfterStep();

  Played& Program();
  QString Text(const Step& step) const;  // what is typed: carets and folders taken for their sense
  void Say(const Step& step, const QString& why);

  Machine& machine_;
  Stage& stage_;
  ProgramMaker maker_;
  QTextStream& out_;
  QTextStream& err_;
  std::unique_ptr<Played> program_;
  Played* played_ = nullptr;
  Looker looker_;
  QString file_;
  QString folder_;
  Outcome outcome_ = Outcome::Held;
  int unanswered_ = 0;
};

}  // namespace tamo::player
