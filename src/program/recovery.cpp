#include "program/recovery.h"

#include <utility>

#include "common/failure.h"

namespace tamo {
namespace {

const QString kSettings = QStringLiteral("Settings");
const QString kPanel = QStringLiteral("Tamo");
const QString kBottomLine = QStringLiteral("BottomLine");
const QString kLine = QStringLiteral("line");

QString Question(const WaitingEntries& left, const QString& project) {
  const QString name = left.project.isEmpty() ? left.Value(QStringLiteral("JobName")) : project;
  if (left.form == kSettings) {
    return QStringLiteral(
        "Tamo ended before the changed settings were stored by Exit Settings. Put them back into "
        "the Settings window?\n\nNo drops them; the settings then stay as they were last stored.");
  }
  if (left.form == kBottomLine) {
    return QStringLiteral(
               "Tamo ended before the bottom line items of \"%1\" were stored. Put the %2 lines "
               "back into the bottom line?\n\nNo drops them; the items then stay as they were last "
               "stored.")
        .arg(name)
        .arg(left.Values(kLine).size());
  }
  if (left.project.isEmpty()) {
    return QStringLiteral(
               "Tamo ended while the new project \"%1\" was being entered. Put its fields back "
               "into the project panel?\n\nNo drops them.")
        .arg(name);
  }
  return QStringLiteral(
             "Tamo ended before the changed project information of \"%1\" was stored. Put it back "
             "into the project panel?\n\nNo drops it; the project then stays as it was last "
             "stored.")
      .arg(name);
}

}  // namespace

// --- What waits

void Recovery::AddFields(WaitingEntries& entries, const Form& form, bool withFocused) const {
  for (const Control* control : form.Controls()) {
    const auto* field = dynamic_cast<const TextField*>(control);
    if (field == nullptr || (!withFocused && field == kit_.desk.Focused())) continue;
    entries.values += {field->Name(), field->Text()};
  }
}

WaitingEntries Recovery::Panel(bool withFocused) const {
  const bool isNew = kit_.shared.OPN == QLatin1String("1");
  WaitingEntries entries{kPanel, kit_.shared.DataPath, isNew ? QString() : kit_.shared.JobID, {}};
  AddFields(entries, forms_.main, withFocused);
  return entries;
}

WaitingEntries Recovery::Lines() const {
  WaitingEntries entries{kBottomLine, kit_.shared.DataPath, forms_.bottomLine.ListJob(), {}};
  for (const QString& row : forms_.bottomLine.oiList.Rows()) entries.values += {kLine, row};
  return entries;
}

QList<WaitingEntries> Recovery::Waiting(bool withFocused) const {
  QList<WaitingEntries> waiting = left_;
  if (forms_.settings.Waits()) {
    WaitingEntries entries{kSettings, {}, {}, {}};
    const Control* focused = kit_.desk.Focused();
    for (const auto& value : forms_.settings.Fields()) {
      const bool typing = focused != nullptr && forms_.settings.Find(value.first) == focused;
      if (withFocused || !typing) entries.values += value;
    }
    waiting += entries;
  }
  if (!kit_.shared.JobID.isEmpty() && forms_.main.record.Waits()) waiting += Panel(withFocused);
  if (forms_.bottomLine.Unsaved()) waiting += Lines();
  return waiting;
}

// --- Keeping it

void Recovery::Follow() {
  if (!running_ || busy_) return;
  busy_ = true;
  OfferDue();
  busy_ = false;
  QList<WaitingEntries> now = Waiting(false);
  if (now == watched_) return;
  watched_ = std::move(now);
  Write(Waiting(true));
}

void Recovery::Keep() {
  if (running_ && Write(Waiting(true))) file_.Confirm();
}

// A failure is told by the saves of what the program is for; this one is tried at the next change.
bool Recovery::Write(const QList<WaitingEntries>& now) {
  if (now == written_) return true;
  if (file_.Write(now) != kNoError) return false;
  written_ = now;
  return true;
}

void Recovery::End() {
  left_.clear();
  file_.Write({});
  running_ = false;
}

// --- Offering it

// What is taken over is written into this run's own file before the old one goes.
void Recovery::Begin() {
  QStringList files;
  left_ = ReadLeftRecoveries(kit_.platform.disk, kit_.platform.configFolder, files);
  running_ = true;
  if (!Write(Waiting(true)) || file_.Confirm() != kNoError) return;
  for (const QString& file : files) kit_.platform.disk.RemoveFile(file);
}

bool Recovery::IsDue(const WaitingEntries& left) const {
  if (left.project.isEmpty()) return true;
  return left.project == kit_.shared.JobID && left.dataPath == kit_.shared.DataPath &&
         kit_.shared.OPN != QLatin1String("1");
}

void Recovery::OfferDue() {
  for (qsizetype i = 0; i < left_.size();) {
    if (!IsDue(left_[i])) {
      ++i;
      continue;
    }
    const WaitingEntries entries = left_[i];
    const bool yes = kit_.desk.GetMessages().Ask(Question(entries, kit_.shared.JobName));
    left_.removeAt(i);
    if (yes) kit_.desk.Dispatch([&] { PutBack(entries); });
  }
}

void Recovery::PutBack(const WaitingEntries& left) {
  if (left.form == kBottomLine) {
    forms_.bottomLine.PutBack(&forms_.shell.ShellForm(), left.Values(kLine));
    return;
  }
  if (left.form == kSettings) {
    forms_.settings.Show(&forms_.shell.ShellForm());
    forms_.settings.PutBack(left.values);
    return;
  }
  if (left.project.isEmpty()) forms_.main.projects.NewProject();
  if (kit_.shared.JobID.isEmpty()) return;
  if (kit_.shared.GUIText == QLatin1String("2")) forms_.shell.ShowMainForm();
  forms_.main.panel.JobsList.Hide();
  forms_.main.panel.JobNFOFrame.Show();
  for (TextField* field : forms_.main.panel.Fields()) field->SetText(left.Value(field->Name()));
}

}  // namespace tamo
