#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QString>
#include <utility>

namespace tamo {

// The bar over the window in front while a report or something else is made: it comes up only when
// that takes long, and stays until the lines stand on the screen. Escape or Stop stops it.
class ReportProgress {
 public:
  // `text`: what is being done; `patience`: milliseconds before the bar comes up.
  ReportProgress(QString text, int patience) : text_(std::move(text)), patience_(patience) {}
  ~ReportProgress() { Close(); }
  ReportProgress(const ReportProgress&) = delete;
  ReportProgress& operator=(const ReportProgress&) = delete;

  // `done` of `all` sheets or systems are done. False when the user stops the report.
  bool Tell(int done, int all);
  // The report has ended. One that stopped takes its bar away at once, so that it stands over no
  // message.
  void End(bool whole);
  bool Visible() const { return !dialog_.isNull(); }

 private:
  void Begin(int all);
  void Close();

  const QString text_;
  const int patience_;
  QPointer<QProgressDialog> dialog_;
  QElapsedTimer clock_;  // since the first telling of this report
  qint64 shown_ = 0;     // when the bar was last moved
};

}  // namespace tamo
