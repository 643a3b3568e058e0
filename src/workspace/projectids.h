#pragma once

#include <QString>
#include <QStringList>

#include "common/form.h"
#include "common/kit.h"

namespace tamo {

// The ids that new projects get: the estimator's number, "-", and a number that all estimators
// share. It is higher than any in Project.num, in the project list and among the folders of
// projects. An id never stands for two projects.
class ProjectIds {
 public:
  // The field holds the estimator's number; it outlives this.
  ProjectIds(const Kit& kit, const TextField& estimator) : kit_(kit), estimator_(estimator) {}

  // Begins Project.num when there is none at all.
  void SeedProjectNumber();
  // JobID becomes the id of a new project. Project.num is written only when the month is a new one.
  void LoadProjectNumber();
  // Project.num becomes JobID, unless that is empty.
  void SaveProjectNumber();
  // Makes the folders of the new project JobID. When another project got its number, or a higher
  // one, since it was shown (`entries` is the project list), it is counted up once more.
  void MakeProject(const QStringList& entries);

 private:
  // The ids in the list and of the folders.
  QStringList KnownIds(const QStringList& entries) const;
  QString FreeId(const QString& id, const QStringList& known) const;
  bool MakeFolderOf(const QString& id);
  bool SharesItsNumber(const QString& id) const;
  void GiveUpFolderOf(const QString& id);

  const Kit kit_;
  const TextField& estimator_;
  QString numberLine_;  // the last line read from Project.num
};

// The id after `id`: its running number, behind year and month, one higher.
QString CountedUp(const QString& id);

}  // namespace tamo
