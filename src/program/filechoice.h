#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace tamo {

// What the user is asked to choose in the system's own dialog for files.
struct FileQuestion {
  bool save = true;     // a file to be made; otherwise one that is there
  QString title;        // of the dialog
  QString name;         // that is suggested, without a folder
  QStringList filters;  // "PDF (*.pdf)", the first is suggested
};

// The whole path, "" when the user changed their mind.
using FileChooser = std::function<QString(const FileQuestion& question)>;

}  // namespace tamo
