#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

namespace tamo {

// The bar over the window in front while a report is made: it comes up only when that takes long,
// and stays until the lines stand on the screen. Escape or Stop stops the report.
class ReportProgress {
 public:
  ReportProgress() = default;
  ~ReportProgress() { Close(); }
  ReportProgress(const ReportProgress&) = delete;
  ReportProgress& operator=(const ReportProgress&) = delete;

  // `done` of `all` sheets are done; of 0 sheets: the report has ended, however it did. False when
  // the user stops it.
  bool Tell(int done, int all);
  bool Visible() const { return !dialog_.isNull(); }

 private:
  void Begin(int all);
  void Close();

  QPointer<QProgressDialog> dialog_;
  QElapsedTimer clock_;  // since the first telling of this report
  qint64 shown_ = 0;     // when the bar was last moved
};

}  // namespace tamo
