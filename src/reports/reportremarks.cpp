#include "reports/reportremarks.h"

#include <iterator>
#include <utility>

#include "reports/notebook.h"

namespace tamo {

void ReportRemarks::Clear() {
  list_.Hide();
  list_.Clear();
  notes_.clear();
  uncounted_ = {};
}

void ReportRemarks::Take(std::vector<ReportNote> notes) {
  notes_.clear();
  for (const QString& sentence : uncounted_.Sentences()) notes_.push_back({sentence, {}});
  std::move(notes.begin(), notes.end(), std::back_inserter(notes_));
  QStringList rows;
  for (const ReportNote& note : notes_) rows += NoteLine(note);
  list_.SetRows(rows);
  list_.SetShown(!rows.isEmpty());
}

int ReportRemarks::RowMeant() const {
  const int note = list_.Index();
  if (note < 0 || note >= static_cast<int>(notes_.size())) return -1;
  const std::vector<int>& rows = notes_[static_cast<size_t>(note)].rows;
  return rows.empty() ? -1 : rows.front();
}

ListRows ReportRemarks::Within(const ListRows& report) const {
  const QStringList sentences = uncounted_.Sentences();
  if (sentences.isEmpty() || report.Count() == 0) return report;
  QStringList rows = report.List();
  for (qsizetype i = 0; i < sentences.size(); ++i) rows.insert(i + 1, sentences[i]);
  return rows;
}

}  // namespace tamo
