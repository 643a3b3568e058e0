#pragma once

#include <QString>

#include "common/sharedfields.h"

namespace tamo {

// Whose lines stand in the list of a takeoff form: of which project, and of which room or area.
// Lines are only ever written to the file of the name for which they were loaded or begun.
class LinesInWork {
 public:
  // `what` is "room" or "area". `shared` outlives this.
  LinesInWork(const SharedFields& shared, const QString& what) : shared_(shared), what_(what) {}

  // The lines of `name` in the open project were loaded, or are begun when it has none.
  void Begin(const QString& name);
  // The list was emptied with the name.
  void Forget();
  // The form goes over to the open project; nothing stands in its list.
  void FollowProject();

  bool OfOpenProject() const { return job_ == shared_.JobID; }
  bool AreOf(const QString& name) const { return OfOpenProject() && name_ == name; }

  // Raises a RunTimeFailure that says why lines under `name` can't be stored: no such file name,
  // lines of another project or another name. Asked before anything on the screen changes.
  void RequireStorable(const QString& name) const;

 private:
  const SharedFields& shared_;
  QString what_;
  QString job_;
  QString name_;
};

}  // namespace tamo
