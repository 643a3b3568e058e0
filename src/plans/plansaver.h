#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <vector>

#include "plans/openplan.h"

namespace tamo {

class Replacement;

// Saves marks into the files of plans. A save costs what changed: an incremental update at the
// file's end, and only the first marked copy is as long as the plan. The work is done on the
// plan's thread; the caller waits for it, and hears every few milliseconds how far it is. A failure
// leaves the old file whole.
//
// Failures are numbers, as for every file.
class PlanSaver {
 public:
  // `disk` and `problem` outlive it. `problem` gets each failure in words: what, where, what to do;
  // `onProgress` gets per cent, on the caller's thread.
  PlanSaver(Disk& disk, QString& problem, std::function<void(int perCent)> onProgress);

  // Does a whole save, one at a time; at its end `onProgress` hears 100.
  int Alone(const QString& path, const std::function<int()>& save);

  // Where nothing can be appended to a plan it is written anew, repaired; `anew` gets it then, as
  // it stands at `path`, and takes the place of `plan`.
  using Anew = std::unique_ptr<OpenPlan>;
  // The changes go to the end of the plan's own file.
  int Append(OpenPlan& plan, const QString& path, const MarkChanges& changes, Anew& anew);
  // A copy of the plan with the changes takes the place of `path`; it is read from then on.
  int Copy(OpenPlan& plan, const QString& path, const MarkChanges& changes, Anew& anew);
  // The plan at `path`, opened beside `plan`; null when that fails. `marks` are those of the file.
  Anew Reopen(const OpenPlan& plan, const QString& path, std::vector<Mark>& marks, int& error);

  // Whether another program has written to the plan's file since this one read or saved it.
  bool ChangedOnDisk(const OpenPlan& plan, const QString& path);
  // A save stands in the file, but the device did not confirm it: it is asked once more. 0 for all
  // other paths.
  int Confirm(const QString& path);
  // What another saver's last save still wants to be confirmed.
  void TakeOver(PlanSaver& other);

  // Says why a plan was not saved; `reason` where the number does not tell.
  int Fail(const QString& path, int error, const QString& reason = QString());

 private:
  struct Progress;
  struct Appended;
  // A part of a save. It owns what it works on.
  using Part = std::function<int(Progress& progress)>;

  int DoAside(const OpenPlan& plan, const Part& part, int patience, QString* problem = nullptr);
  static int WriteDown(Disk& disk, int handle, const QByteArray& bytes, Progress& progress);
  Part WriteBytes(int handle, const QByteArray& bytes) const;
  Part CopyBytes(const OpenPlan& plan, int handle, const QByteArray& more) const;
  int BuildUpdate(const OpenPlan& plan, const QString& path, const MarkChanges& changes,
                  QByteArray& bytes);
  void ForgetUpdate(const OpenPlan& plan);
  int FinishCopy(Replacement& copy, int error, const QString& path);
  int WriteAnew(const OpenPlan& plan, const QString& path, const MarkChanges& changes, Anew& anew);
  int WriteRepaired(const OpenPlan& plan, int handle, QString& problem);

  Disk& disk_;
  QString& problem_;
  std::function<void(int)> onProgress_;
  QString unsure_;  // a plan that was saved, and the device did not confirm it
  bool saving_ = false;
};

// How long a plan may take to be built or opened for a save, in milliseconds.
inline constexpr int kBuildPatience = 20000;

}  // namespace tamo
