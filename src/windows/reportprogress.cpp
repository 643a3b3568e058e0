#include "windows/reportprogress.h"

#include <QApplication>
#include <QTimer>

namespace tamo {
namespace {

constexpr int kFrame = 5;  // between two looks at what waits: thrice in a frame of the screen

}  // namespace

bool ReportProgress::Tell(int done, int all) {
  if (!clock_.isValid()) {
    clock_.start();
    shown_ = -kFrame;  // the files' names have been read: that may have taken most of a frame
  }
  const qint64 now = clock_.elapsed();
  if (now - shown_ < kFrame) return true;
  shown_ = now;
  if (now < patience_) {
    // What the user does waits for the bar, which can tell it from a key meant for it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return true;
  }
  if (dialog_.isNull()) Begin(all);
  dialog_->setMaximum(all);
  dialog_->setValue(done);
  QCoreApplication::processEvents();  // within one long sheet the value stays as it is
  const bool go = dialog_.isNull() || !dialog_->wasCanceled();
  if (!go) Close();
  return go;
}

void ReportProgress::End(bool whole) {
  if (!whole) {
    Close();
    return;
  }
  // The rows still have to come onto the screen; the bar goes when they stand there.
  if (!dialog_.isNull()) QTimer::singleShot(0, dialog_, &QObject::deleteLater);
  dialog_.clear();
  clock_.invalidate();
}

void ReportProgress::Begin(int all) {
  dialog_ = new QProgressDialog(text_ + QStringLiteral(" Escape stops it."), QStringLiteral("Stop"),
                                0, all, QApplication::activeWindow());
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setAutoReset(false);
  dialog_->setMinimumDuration(0);
  // Escape, wherever in the bar the focus is.
  QObject::connect(dialog_, &QDialog::rejected, dialog_, &QProgressDialog::cancel);
  dialog_->setValue(0);
  dialog_->show();
}

void ReportProgress::Close() {
  delete dialog_;
  clock_.invalidate();
}

}  // namespace tamo
