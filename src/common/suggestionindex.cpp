#include "common/suggestionindex.h"

#include <algorithm>

namespace tamo {
namespace {

enum class Fit { Begins, Inside, Misspelt, None };

struct Match {
  Fit fit;
  int uses;
  int entry;

  bool operator<(const Match& other) const {
    if (fit != other.fit) return fit < other.fit;
    if (uses != other.uses) return uses > other.uses;
    return entry < other.entry;
  }
};

// A word of the key begins nearly so; its very first letter always begins one.
bool AWordBeginsNearly(QStringView key, QStringView typed) {
  bool inside = false;
  for (qsizetype at = 0; at < key.size(); ++at) {
    const bool letter = key[at].isLetterOrNumber();
    if ((at == 0 || (letter && !inside)) && BeginsNearly(key.mid(at), typed)) return true;
    inside = letter;
  }
  return false;
}

Fit FitOf(QStringView key, const QString& typed) {
  const qsizetype at = key.indexOf(typed);
  if (at >= 0) return at == 0 ? Fit::Begins : Fit::Inside;
  if (typed.size() < SuggestionIndex::kLeastMisspelt) return Fit::None;
  return AWordBeginsNearly(key, typed) ? Fit::Misspelt : Fit::None;
}

// For a heap, which has its greatest on top.
bool IsWorse(const Match& one, const Match& other) {
  return other < one;
}

}  // namespace

// The first letter that differs decides: with one mistake, all behind it must fit.
bool BeginsNearly(QStringView text, QStringView typed) {
  const qsizetype both = std::min(text.size(), typed.size());
  qsizetype at = 0;
  while (at < both && text[at] == typed[at]) ++at;
  if (at == typed.size()) return true;
  const QStringView behind = typed.mid(at + 1);
  const QStringView rest = text.mid(at);
  if (rest.startsWith(behind)) return true;  // one too many
  if (rest.isEmpty()) return false;
  if (rest.mid(1).startsWith(behind)) return true;                        // another one
  if (rest.mid(1).startsWith(typed.mid(at))) return true;                 // one is missing
  return rest.size() > 1 && !behind.isEmpty() && rest[0] == behind[0] &&  // two swapped
         rest[1] == typed[at] && rest.mid(2).startsWith(behind.mid(1));
}

// Nearly all letters of nearly all names need no table.
QString SuggestionIndex::KeyOf(QString name) {
  QChar* const letters = name.data();
  for (qsizetype at = 0; at < name.size(); ++at) {
    const char16_t c = letters[at].unicode();
    if (c < 128) {
      if (c >= u'A' && c <= u'Z') letters[at] = QChar(char16_t(c + (u'a' - u'A')));
    } else {
      letters[at] = letters[at].toCaseFolded();
    }
  }
  return name;
}

void SuggestionIndex::SetNames(const QStringList& names) {
  names_ = names;
  keys_ = KeyOf(names.join(u'\n')) + u'\n';
  ends_.clear();
  ends_.reserve(static_cast<size_t>(names.size()));
  for (qsizetype at = 0; (at = keys_.indexOf(u'\n', at)) >= 0; ++at)
    ends_.push_back(static_cast<int>(at));
  names_ = names_.mid(0, static_cast<qsizetype>(ends_.size()));
}

QStringView SuggestionIndex::KeyAt(int entry) const {
  const int begin = entry == 0 ? 0 : ends_[static_cast<size_t>(entry) - 1] + 1;
  return QStringView(keys_).sliced(begin, ends_[static_cast<size_t>(entry)] - begin);
}

QStringList SuggestionIndex::Matches(const QString& typed, int most, const NameUses& uses) const {
  const QString key = KeyOf(typed);
  if (key.isEmpty()) return {};
  std::vector<Match> found;
  for (int i = 0; i < static_cast<int>(names_.size()); ++i) {
    const QStringView own = KeyAt(i);
    const Fit fit = FitOf(own, key);
    if (fit == Fit::None) continue;
    found.push_back({fit, uses.value(QString::fromRawData(own.data(), own.size())), i});
  }
  std::make_heap(found.begin(), found.end(), IsWorse);
  QStringList names;
  std::vector<QStringView> keys;
  while (!found.empty() && names.size() < most) {
    const int best = found.front().entry;
    std::pop_heap(found.begin(), found.end(), IsWorse);
    found.pop_back();
    if (std::find(keys.begin(), keys.end(), KeyAt(best)) != keys.end()) continue;
    keys.push_back(KeyAt(best));
    if (names_[best] != typed) names += names_[best];
  }
  return names;
}

}  // namespace tamo
