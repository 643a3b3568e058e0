#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <deque>
#include <optional>
#include <vector>

#include "common/kit.h"
#include "takeoff/measuredmarks.h"
#include "takeoff/sheetscreen.h"
#include "takeoff/takeoffreportrefresh.h"

namespace tamo {

// One entry: the files of rooms and areas as they were before and after it.
struct TakeoffStep {
  struct File {
    QString path;
    QByteArray before;  // null: there was no such file
    QByteArray after;
    bool shared = false;  // by all projects
    bool unread = false;  // what stood there before is not known
  };
  QString project;
  QString what;
  std::vector<File> files;
  EntryMarks marks;
  const SheetScreen* screen = nullptr;
  SheetState before;
  SheetState after;
};

// What was entered in the takeoff forms, entry by entry, so that it can be taken back and brought
// back, as long as the program runs. An entry is what one event made of the files of rooms and
// areas; it is kept as their bytes before and after it. Nothing is taken back when another one than
// the entry has changed its files since: it is dropped then.
//
// A form says what it does before it does it (Begin), and names each file before it is stored
// (Stores). Whoever dispatches the events says when one is over (EndEvent).
class TakingBack {
 public:
  // All of it outlives this.
  TakingBack(const Kit& kit, MeasuredMarks& marks, TakeoffReportRefresh& reports)
      : kit_(kit), marks_(marks), reports_(reports) {}

  // The form is one of those that follow what is taken back.
  void Add(SheetScreen& screen) { screens_.push_back(&screen); }

  // The event in work enters something; `what` says it behind "Taken back: ".
  void Begin(const QString& what, const SheetScreen& screen);
  // Its numbers come from these fields, and go into that line.
  void Measured(const std::vector<MeasuredMarks::Measured>& fields, const EnteredLine& line);
  // A file is about to be stored. `shared`: by all projects, so that others may change it.
  void Stores(const QString& path, bool shared = false);
  void EndEvent();

  // Take back the last entry in the open project, or bring back what was taken back last. What came
  // of it, in words.
  QString TakeBack();
  QString BringBack();

  // The last entry in the open project that stands, in words; "" for none.
  QString LastEntry() const;
  bool LastWasInArea() const;  // and not in a room

  static constexpr size_t kMostSteps = 100;
  static constexpr qsizetype kMostBytes = 64'000'000;  // of all files that are kept

 private:
  using Step = TakeoffStep;
  using StepFile = TakeoffStep::File;
  using Steps = std::deque<Step>;

  const Step* Last() const;
  QString Move(Steps& from, Steps& to, bool back);
  QString Refusal() const;
  QString StoreAll(const Step& step, bool back);
  void DropOver(const QString& path);
  void FollowOnScreens(const Step& step, bool back);
  bool JoinLast(const Step& step);
  void Keep(Step step);
  QByteArray Bytes(const QString& path, int& error) const;
  int Store(const QString& path, const QByteArray& bytes);

  const Kit kit_;
  MeasuredMarks& marks_;
  TakeoffReportRefresh& reports_;
  std::vector<SheetScreen*> screens_;
  std::optional<Step> open_;
  Steps done_;
  Steps undone_;
};

}  // namespace tamo
