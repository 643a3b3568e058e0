#include "pricing/vocabularylist.h"

namespace tamo {

int VocabularyList::Load() {
  QStringList names;
  error_ = ReadNames(kit_.files, kit_.shared, file_, names);
  list_.SetRows(names);
  base_ = names;
  return error_;
}

void VocabularyList::LoadIfBehind() {
  if (NamesAreBehind(kit_.files, kit_.shared, file_)) Load();
}

void VocabularyList::Save() {
  // The last system of a library can't be deleted for good: its list is not written when it is
  // empty. A test holds it.
  if (file_ == NameList::Systems && (list_.Empty() || list_.Row(0).isEmpty())) return;
  const QStringList names = list_.Rows();
  WriteNames(kit_.files, kit_.shared, file_, names, base_);
  base_ = names;
}

void VocabularyList::Remember(const QString& name) {
  if (list_.Find(name) >= 0) return;
  list_.Add(name);
  Save();
}

}  // namespace tamo
