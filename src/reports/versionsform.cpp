#include "reports/versionsform.h"

#include "common/chain.h"

namespace tamo {
namespace {

constexpr qsizetype kToTheMinute = 16;  // characters of a moment
constexpr qsizetype kDay = 10;          // characters of a date

QString RowText(const Version& version) {
  const QString when = QString::fromLatin1(version.head.when.left(kToTheMinute));
  return when + QStringLiteral("   ") + version.head.name;
}

QString RowText(const QByteArray& day) {
  return QString::fromLatin1(day) + QStringLiteral("         the bid as this day began");
}

void OnRowEnter(OrderedList& list, const std::function<void()>& step) {
  list.onDoubleClick = step;
  list.onKey = [step](Key& key) {
    if (!key.IsEnter()) return;
    key.Drop();
    step();
  };
}

}  // namespace

VersionsForm::VersionsForm(const Kit& kit, History& history, ReportsForm& reports, BidChanger& bid)
    : Form(kit.desk, QStringLiteral("Versions")),
      kit_(kit),
      history_(history),
      reports_(reports),
      bid_(bid) {
  for (Control* control :
       std::initializer_list<Control*>{&VersionName, &NamePrompt, &VersionsList, &LookAtVersion,
                                       &CompareVersion, &BringBackVersion})
    control->PutInto(VersionsFrame);
  DeletedList.PutInto(DeletedFrame);
  BringBackProject.PutInto(DeletedFrame);
  DeletedFrame.Hide();
  BindVersions();
  BindDeleted();
  onActivate = [this] {
    if (VersionsFrame.Shown() && project_ != kit_.shared.JobID) LoadVersions();
  };
}

void VersionsForm::BindVersions() {
  OnEnter(VersionName, [this] { Keep(); });
  OnRowEnter(VersionsList, [this] { LookAt(); });
  LookAtVersion.onClick = [this] { LookAt(); };
  CompareVersion.onClick = [this] { Compare(); };
  BringBackVersion.onClick = [this] { BringBack(); };
}

void VersionsForm::BindDeleted() {
  OnRowEnter(DeletedList, [this] { BringBackDeleted(); });
  BringBackProject.onClick = [this] { BringBackDeleted(); };
}

void VersionsForm::ShowFrame(Frame& frame, Form* owner) {
  VersionsFrame.SetShown(&frame == &VersionsFrame);
  DeletedFrame.SetShown(&frame == &DeletedFrame);
  StatusText.SetCaption({});
  Show(owner);
}

void VersionsForm::KeepThisVersion(Form* owner) {
  Versions(owner);
  VersionName.Clear();
  GetDesk().Focus(VersionName);
}

void VersionsForm::Versions(Form* owner) {
  ShowFrame(VersionsFrame, owner);
  LoadVersions();
  if (VersionsList.Empty()) {
    GetDesk().Focus(VersionName);
    return;
  }
  VersionsList.SetIndex(0);
  GetDesk().Focus(VersionsList);
}

void VersionsForm::DeletedProjects(Form* owner) {
  ShowFrame(DeletedFrame, owner);
  LoadDeleted();
  if (DeletedList.Empty()) {
    StatusText.SetCaption(QStringLiteral("No project was deleted within the last thirty days."));
    return;
  }
  DeletedList.SetIndex(0);
  GetDesk().Focus(DeletedList);
}

void VersionsForm::LoadVersions() {
  rows_.clear();
  project_ = kit_.shared.JobID;
  SetCaption(QStringLiteral("Versions of ") + kit_.shared.JobName);
  QStringList texts;
  for (const Version& version : history_.VersionsOfBid()) {
    rows_.push_back({version, {}});
    texts += RowText(version);
  }
  for (const QByteArray& day : history_.Days()) {
    rows_.push_back({{}, day});
    texts += RowText(day);
  }
  VersionsList.SetRows(texts);
}

void VersionsForm::LoadDeleted() {
  SetCaption(QStringLiteral("Deleted Projects"));
  deleted_ = history_.DeletedProjects();
  QStringList texts;
  for (const Version& version : deleted_)
    texts += QString::fromLatin1(version.head.when.left(kDay)) + QStringLiteral("   ") +
             version.head.project + QStringLiteral("   ") + version.head.projectName;
  DeletedList.SetRows(texts);
}

void VersionsForm::Keep() {
  const QString name = VersionName.Text().simplified();
  if (name.isEmpty()) {
    StatusText.SetCaption(QStringLiteral("Type a name by which you will know this version again."));
    return;
  }
  const QString refusal = history_.KeepVersion(name);
  if (!refusal.isEmpty()) {
    GetDesk().GetMessages().Tell(refusal);
    return;
  }
  LoadVersions();
  VersionName.Clear();
  StatusText.SetCaption(QStringLiteral("Kept as version \"%1\".").arg(name));
}

const VersionsForm::Row* VersionsForm::SelectedRow() {
  const int at = VersionsList.Index();
  if (at >= 0 && at < static_cast<int>(rows_.size())) return &rows_[static_cast<size_t>(at)];
  StatusText.SetCaption(QStringLiteral("Select a version or a day in the list first."));
  return nullptr;
}

std::shared_ptr<const FormerBid> VersionsForm::SelectedBid() {
  const Row* row = SelectedRow();
  if (row == nullptr) return nullptr;
  auto bid = row->day.isEmpty() ? history_.LookAt(row->version) : history_.LookAtDay(row->day);
  if (bid == nullptr)
    GetDesk().GetMessages().Tell(
        QStringLiteral("This version is damaged: its file %1 was changed or cut off.")
            .arg(row->version.path));
  return bid;
}

void VersionsForm::LookAt() {
  auto bid = SelectedBid();
  if (bid == nullptr) return;
  reports_.LookAt(std::move(bid));
  reports_.Show(OwnerForm());
  kit_.shared.DTText = QStringLiteral("False");
  reports_.MinimalRecapSheet();
}

void VersionsForm::Compare() {
  if (auto bid = SelectedBid()) reports_.CompareWith(std::move(bid));
}

void VersionsForm::BringBack() {
  const Row* row = SelectedRow();
  if (row == nullptr || !bid_.MayChange()) return;
  const QString what =
      row->day.isEmpty()
          ? QStringLiteral("version \"%1\"").arg(row->version.head.name)
          : QStringLiteral("the bid as the day %1 began").arg(QString::fromLatin1(row->day));
  Messages& messages = GetDesk().GetMessages();
  if (!messages.Ask(
          QStringLiteral("Bring back %1 ?\rThe bid as it stands is kept as a version first.")
              .arg(what)))
    return;
  bid_.LeaveForms();
  const QString refusal = row->day.isEmpty() ? history_.BringBackVersion(row->version)
                                             : history_.BringBackDay(row->day);
  if (!refusal.isEmpty()) {
    messages.Tell(refusal);
    return;
  }
  reports_.ClearReport();
  bid_.ReadAgain();
  LoadVersions();
  Hide();
  messages.Tell(
      QStringLiteral("The bid is again %1.\rWhat stood before is in the list of versions.")
          .arg(what));
}

void VersionsForm::BringBackDeleted() {
  const int at = DeletedList.Index();
  if (at < 0 || at >= static_cast<int>(deleted_.size())) {
    StatusText.SetCaption(QStringLiteral("Select a project in the list first."));
    return;
  }
  const Version project = deleted_[static_cast<size_t>(at)];
  const QString refusal = history_.BringBackDeletedProject(project);
  if (!refusal.isEmpty()) {
    GetDesk().GetMessages().Tell(refusal);
    return;
  }
  bid_.ReadProjectList();
  LoadDeleted();
  StatusText.SetCaption(QStringLiteral("%1 %2 is in the project list again.")
                            .arg(project.head.project, project.head.projectName));
}

}  // namespace tamo
