#pragma once

#include <QString>
#include <functional>

#include "program/filechoice.h"

namespace tamo {

// The system's own dialog for files. It opens in the folder, and suggests the kind of file, that
// were chosen last, also in an earlier run.
class FileDialog {
 public:
  // `file`: an INI file in which the folder is kept; "" keeps it for this run only.
  explicit FileDialog(QString file) : file_(std::move(file)) {}

  QString Choose(const FileQuestion& question);
  // Called before the dialog comes up: the windows behind it show what has been done so far.
  std::function<void()> beforeDialog;

 private:
  QString Kept(const QString& key) const;
  void Keep(const QString& key, const QString& text);

  QString file_;
  QString folder_;
};

// The ending that belongs to a filter: "pdf" of "PDF (*.pdf)".
QString EndingOfFilter(const QString& filter);

}  // namespace tamo
