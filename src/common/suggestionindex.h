#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

namespace tamo {

// How often each name was used, by its key (SuggestionIndex::KeyOf).
using NameUses = QHash<QString, int>;

// Finds the names that may be meant by what was typed so far: those that begin with it first, then
// those that have it anywhere inside, then those of which a word begins with it but for one letter
// (one too many, one missing, another one, two swapped). Case does not count. Within each of the
// three the most used come first, then those that stand first in the list.
class SuggestionIndex {
 public:
  // Empty names and repeated ones are left out. No name has a line end in it.
  void SetNames(const QStringList& names);

  // At most `most` names. A name that equals `typed` to the letter is no suggestion; neither is any
  // for an empty text. Misspelt names need at least kLeastMisspelt letters.
  QStringList Matches(const QString& typed, int most, const NameUses& uses) const;

  static constexpr int kLeastMisspelt = 3;
  static QString KeyOf(QString name);  // whatever its case

 private:
  QStringView KeyAt(int entry) const;

  QStringList names_;
  QString keys_;           // of all names, one behind the other: one text is made much faster
  std::vector<int> ends_;  // where each key ends in it; a line end follows
};

// `text` begins with something that becomes `typed` by one insertion, deletion or replacement of a
// letter, or by swapping two neighbours; also when it begins with `typed` itself.
bool BeginsNearly(QStringView text, QStringView typed);

}  // namespace tamo
