#pragma once

#include "common/control.h"
#include "common/failure.h"
#include "common/kit.h"
#include "pricing/nameindex.h"
#include "records/namelists.h"

namespace tamo {

// One of the library's lists of names, on the screen and on the disk, in the order of first use.
class VocabularyList {
 public:
  // The list outlives this.
  VocabularyList(const Kit& kit, OrderedList& list, NameList file)
      : kit_(kit), list_(list), index_(list), file_(file) {}

  int Load();  // its error number; a file that is not there leaves the list empty
  void LoadIfBehind();
  void Save();
  // Remembers a name exactly as it was typed, once.
  void Remember(const QString& name);
  // The first row that is `name`, whatever the case; -1.
  int Find(const QString& name) { return index_.Find(name); }
  // Also true for every name while the file can't be read.
  bool MayHave(const QString& name) { return Find(name) >= 0 || Unread(); }

 private:
  bool Unread() const { return error_ != 0 && !IsMissing(error_); }

  const Kit kit_;
  OrderedList& list_;
  NameIndex index_;
  const NameList file_;
  int error_ = 0;     // of the last reading
  QStringList base_;  // the names when they were last read or written
};

}  // namespace tamo
