#pragma once

#include "common/kit.h"
#include "records/projectrecord.h"
#include "workspace/projectlock.h"
#include "workspace/projectneighbours.h"
#include "workspace/projectpanel.h"

namespace tamo {

// The open project's record between its file, the panel and the plan form.
class PanelRecord {
 public:
  PanelRecord(const Kit& kit, ProjectPanel& panel, ProjectLock& lock,
              const ProjectNeighbours& neighbours)
      : kit_(kit), panel_(panel), lock_(lock), near_(neighbours) {}

  // Writes the record of an open, unlocked project that has a name, unless one is being read.
  void SaveJobNFO();
  // Reads the record of the project JobID. What it leaves out stays as it stands in the fields.
  void LoadJobNFO() { ReadRecord(QString()); }
  // For a plan that was just picked: the record's page, zoom and scale come back only when it names
  // the same plan; otherwise the picked one stays.
  void LoadJobNFOForPlan(const QString& picked) { ReadRecord(picked); }

  // The project JobID is about to be read. The fields of another project go, on the plan form, too,
  // so that it inherits nothing; the same project's stay.
  void ComeTo();
  // The panel belongs to no project; the bid items stay in it until they are typed over.
  void Clear();
  // The panel holds what no file does yet.
  bool Waits() const { return Texts() != stored_; }

  // The plan form names no plan; its scale stays until one is chosen.
  void NameNoPlan();
  // The plan form shows no plan, and has no scale and no notes.
  void LeavePlan();

 private:
  void ReadRecord(const QString& picked);
  void TakeFields(const JobNFO& record);
  void TakePlan(const JobNFO& record, const QString& picked);
  void TakeView(const JobNFO& record);
  JobNFO RecordOfFields() const;
  QStringList Texts() const;

  const Kit kit_;
  ProjectPanel& panel_;
  ProjectLock& lock_;
  const ProjectNeighbours near_;
  QString shownFolder_;   // of the project whose record stands in the panel, "" for none
  QStringList stored_;    // the fields as they were last read, stored or emptied
  bool emptied_ = false;  // another project's record went, and the one to come was not read yet
};

}  // namespace tamo
