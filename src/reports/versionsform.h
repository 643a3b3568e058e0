#pragma once

#include <QString>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "history/history.h"
#include "reports/bidchanger.h"
#include "reports/reportsform.h"

namespace tamo {

// What the open bid was before: the versions that were kept of it, and the days of which the
// journal knows. Each can be looked at, compared with the bid as it stands, and brought back. And
// the projects that were deleted within the last thirty days.
class VersionsForm : public Form {
 public:
  // All of it outlives the form.
  VersionsForm(const Kit& kit, History& history, ReportsForm& reports, BidChanger& bid);

  Frame VersionsFrame{*this, "VersionsFrame"};
  TextField VersionName{*this, "VersionName"};
  Label NamePrompt{*this, "NamePrompt",
                   "Enter keeps the bid as it stands under this name: as sent to the owner"};
  OrderedList VersionsList{*this, "VersionsList"};
  Button LookAtVersion{*this, "LookAtVersion", "&Look at It"};
  Button CompareVersion{*this, "CompareVersion", "&Compare with Now"};
  Button BringBackVersion{*this, "BringBackVersion", "&Bring It Back"};
  Frame DeletedFrame{*this, "DeletedFrame"};
  OrderedList DeletedList{*this, "DeletedList"};
  Button BringBackProject{*this, "BringBackProject", "&Bring the Project Back"};
  Label StatusText{*this, "StatusText"};

  // The shells' menu entries, after their guards.
  void KeepThisVersion(Form* owner);
  void Versions(Form* owner);
  void DeletedProjects(Form* owner);

 private:
  struct Row {
    Version version;
    QByteArray day;  // empty for a version
  };

  void BindVersions();
  void BindDeleted();
  void ShowFrame(Frame& frame, Form* owner);
  void LoadVersions();
  void LoadDeleted();
  void Keep();
  const Row* SelectedRow();
  std::shared_ptr<const FormerBid> SelectedBid();
  void LookAt();
  void Compare();
  void BringBack();
  void BringBackDeleted();

  const Kit kit_;
  History& history_;
  ReportsForm& reports_;
  BidChanger& bid_;
  QString project_;  // whose versions are listed
  std::vector<Row> rows_;
  std::vector<Version> deleted_;
};

}  // namespace tamo
