#pragma once

#include <QString>
#include <QStringList>

#include "player/machine.h"
#include "player/played.h"

namespace tamo::player {

// What a person sees: on the forms, on the plan, in message boxes, on paper and on the disk.
class Looker {
 public:
  Looker(Machine& machine, Played*& played) : machine_(machine), played_(played) {}

  // The lines that WHAT gives, control characters with carets; an empty text has no line. Messages
  // and printed lines are taken: the next look begins behind them. Throws Trouble.
  QStringList Look(const QString& what);

 private:
  Played& Program();
  bool LookAtMachine(const QString& word, const QString& rest, QStringList& lines);
  bool LookAtPlan(const QString& word, QString& text);
  bool LookAtProgram(const QString& word, QString& text);
  bool LookAtState(const QString& word, const QString& rest, QString& text);
  QString SnapAt(const QString& rest);
  QString OverlayAt(const QString& rest);
  QString MenuState(const QString& word, const QString& name);
  QString ListState(const QString& word, const QString& name);
  QString RowState(const QString& word, const QString& rest);
  QStringList Named(const QString& name);
  QStringList FileLines(const QString& path);

  Machine& machine_;
  Played*& played_;  // nullptr while no program runs
};

}  // namespace tamo::player
