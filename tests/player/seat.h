#pragma once

#include <functional>
#include <memory>

#include "player/looker.h"
#include "player/machine.h"
#include "player/played.h"
#include "player/stage.h"
#include "player/step.h"

namespace tamo::player {

using StageMaker = std::function<std::unique_ptr<Stage>()>;

// One person before one program: the machine it runs on, the stage on which it is driven, and what
// is seen of it.
class Seat {
 public:
  Seat(Machine& machine, std::unique_ptr<Stage> stage, ProgramMaker maker);
  ~Seat();
  Seat(const Seat&) = delete;
  Seat& operator=(const Seat&) = delete;

  // A step that a person does at the program. Throws Trouble, as the next three do.
  void Do(const Step& step);
  QStringList Look(const QString& what) { return looker_.Look(what); }
  // False when this stage makes no pictures, or the file can't be written.
  bool SavePicture(const QString& form, const QString& file);
  // What must hold after every step: no question was left without an answer, the screen shows what
  // the forms say, and a program that has ended is gone. `front`: its windows are the active ones.
  void Check(bool front);

  // A moment goes by for the program.
  void Tick();
  // The person turns to it from another program.
  void ToFront();
  void TakeDown();

 private:
  void Start();
  void Stop();
  void DoToControl(const Step& step);
  void DoToRow(const Step& step);
  void DoOnPlan(const Step& step);
  void ClickNotice();
  void Pick(const Step& step);
  Played& Program();
  QString Text(const Step& step) const;  // what is typed: carets and folders taken for their sense

  Machine& machine_;
  std::unique_ptr<Stage> stage_;
  ProgramMaker maker_;
  std::unique_ptr<Played> program_;
  Played* played_ = nullptr;
  Looker looker_;
  int unanswered_ = 0;
};

}  // namespace tamo::player
