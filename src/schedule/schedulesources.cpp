#include "schedule/columnmeaning.h"
#include "schedule/finishcodes.h"
#include "schedule/scheduleform.h"
#include "schedule/texttable.h"

// Where a schedule comes from when no plan has it, and what its columns mean.

namespace tamo {

void ScheduleForm::BindSources() {
  Pasted.multiLine = true;
  MeaningPrompt.SetCaption(MeaningNames().join(QStringLiteral(", ")));
  TakePasted.onClick = [this] { ReadText(Pasted.Text()); };
  Columns.onSelect = [this] { ShowMeaning(); };
  const auto onEnter = [](TextField& field, std::function<void()> work) {
    field.onKey = [work = std::move(work)](tamo::Key& key) {
      if (!key.IsEnter()) return;
      key.Drop();
      work();
    };
    field.onGotFocus = [&field] { field.SelectAll(); };
  };
  onEnter(File, [this] { ReadFile(); });
  onEnter(Meaning, [this] { ChooseMeaning(); });
}

// Begins anew with a table of a spreadsheet; what cannot be read leaves all as it is.
void ScheduleForm::ReadText(const QString& text) {
  ScheduleReading reading = ReadTextSchedule(text);
  if (!reading.problem.isEmpty()) {
    kit_.desk.GetMessages().Tell(reading.problem);
    return;
  }
  parts_ = std::move(reading.parts);
  pages_.assign(parts_.size(), kNoPage);
  edits_.Clear();
  legend_.clear();
  Pasted.Clear();
  ShowAll();
}

void ScheduleForm::ReadFile() {
  QString text;
  const int error = kit_.files.ReadText(File.Text().trimmed(), text);
  if (error != 0) {
    kit_.desk.GetMessages().Tell(QStringLiteral("The file %1 can't be read: %2.")
                                     .arg(File.Text().trimmed(), ReasonText(error)));
    return;
  }
  ReadText(text);
}

// The rows as the columns' meanings and the changes by hand make them.
void ScheduleForm::MakeRows() {
  rows_ = FinishRowsOf(parts_);
  edits_.ApplyTo(rows_);
  LoadKey();
  QStringList texts;
  for (const FinishRow& row : rows_) texts.append(row.Text());
  Rows.SetRows(texts);
  Key.SetRows(CodesOf(rows_));
  ShowUnsure();
  Cells.Clear();
  Correct.Clear();
  System.Clear();
  ShowSummary();
}

void ScheduleForm::ShowColumns() {
  QStringList texts;
  if (!parts_.empty()) {
    for (const ScheduleColumn& column : parts_.back().columns) {
      texts.append(column.head + u'\t' + MeaningName(column.role));
    }
  }
  Columns.SetRows(texts);
  ShowMeaning();
}

void ScheduleForm::ShowMeaning() {
  Meaning.SetText(Columns.Selected().section(u'\t', 1));
  if (Columns.Index() >= 0) GetDesk().Focus(Meaning);
}

// In all parts that have the same columns as the last one.
void ScheduleForm::ChooseMeaning() {
  if (Columns.Index() < 0) return;
  const std::optional<ColumnRole> role = MeaningCalled(Meaning.Text());
  if (!role.has_value()) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("A column can mean %1.").arg(MeaningNames().join(QStringLiteral(", "))));
    return;
  }
  const int at = Columns.Index();
  const size_t columns = parts_.back().columns.size();
  for (ScheduleTable& part : parts_) {
    if (part.columns.size() != columns) continue;
    part.columns[size_t(at)].role = *role;
    part.columns[size_t(at)].guessed = false;
  }
  MakeRows();
  ShowColumns();
  if (at + 1 < Columns.Count()) Columns.SetIndex(at + 1);
}

}  // namespace tamo
