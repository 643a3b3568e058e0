#include "common/suggestionindex.h"

#include <QSet>
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

std::vector<int> WordsOf(const QString& key) {
  std::vector<int> words;
  bool inside = false;
  for (int at = 0; at < key.size(); ++at) {
    const bool letter = key[at].isLetterOrNumber();
    if (at == 0 || (letter && !inside)) words.push_back(at);
    inside = letter;
  }
  return words;
}

Fit FitOf(const QString& key, const std::vector<int>& words, const QString& typed) {
  const qsizetype at = key.indexOf(typed);
  if (at >= 0) return at == 0 ? Fit::Begins : Fit::Inside;
  if (typed.size() < SuggestionIndex::kLeastMisspelt) return Fit::None;
  for (const int word : words) {
    if (BeginsNearly(QStringView(key).mid(word), typed)) return Fit::Misspelt;
  }
  return Fit::None;
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

void SuggestionIndex::SetNames(const QStringList& names) {
  entries_.clear();
  entries_.reserve(static_cast<size_t>(names.size()));
  QSet<QString> known;
  known.reserve(names.size());
  for (const QString& name : names) {
    QString key = KeyOf(name);
    if (key.isEmpty() || known.contains(key)) continue;
    known.insert(key);
    std::vector<int> words = WordsOf(key);
    entries_.push_back({name, std::move(key), std::move(words)});
  }
}

QStringList SuggestionIndex::Matches(const QString& typed, int most, const NameUses& uses) const {
  const QString key = KeyOf(typed);
  if (key.isEmpty()) return {};
  std::vector<Match> found;
  for (int i = 0; i < static_cast<int>(entries_.size()); ++i) {
    const Entry& entry = entries_[static_cast<size_t>(i)];
    const Fit fit = FitOf(entry.key, entry.words, key);
    if (fit == Fit::None || entry.name == typed) continue;
    found.push_back({fit, uses.value(entry.key), i});
  }
  const auto shown = std::min(found.size(), static_cast<size_t>(std::max(most, 0)));
  std::partial_sort(found.begin(), found.begin() + static_cast<long>(shown), found.end());
  QStringList names;
  for (size_t i = 0; i < shown; ++i) names += entries_[static_cast<size_t>(found[i].entry)].name;
  return names;
}

}  // namespace tamo
