#pragma once

#include <QString>

#include "records/markupsfile.h"

namespace tamo {

// A file that another program changed since it was read here, and what is to be saved over it.
struct ChangedFile {
  QString path;
  QString mine;
  QString theirs;
};

// What the estimator is asked: Yes keeps what was entered here, No takes what stands in the file.
// For systems and materials both prices are told; that of a system without one of its own comes
// from its materials and these markups.
QString ChangedQuestion(const ChangedFile& file, const Markups& markups);

}  // namespace tamo
