#include "schedule/headarea.h"

#include <algorithm>

#include "schedule/headwords.h"

namespace tamo {
namespace {

constexpr int kLongestHead = 6;       // words
constexpr double kWidestGap = 5;      // of the size, between two lines of heads
constexpr double kBesideTurned = 14;  // the same where turned heads stand beside them
constexpr size_t kSample = 60;        // lines of the rows that are looked at for their columns
constexpr int kFewestHeads = 3;       // that make a table

bool CanBeHeads(const TextLine& line) {
  const int heads = HeadPhrases(line);
  return heads >= 1 && heads >= 0.6 * double(line.phrases.size());
}

// A row of a room, or a title between rows.
bool CanBeRow(const TextLine& line) {
  if (LooksLikeNumber(line.phrases.front().text)) return true;
  return line.phrases.size() >= 2 || LooksLikeGroup(line.phrases.front().text);
}

bool IsTitle(const TextLine& line) {
  if (line.phrases.size() != 1) return false;
  const QStringList words = HeadTokens(line.phrases.front().text);
  return std::any_of(words.begin(), words.end(), [](const QString& word) {
    return word.startsWith(QLatin1String("SCHEDULE")) || word == QLatin1String("LEGEND") ||
           word == QLatin1String("SCHED") || word == QLatin1String("KEY") ||
           word.startsWith(QLatin1String("CONTINUED")) || word == QLatin1String("CONT");
  });
}

class Finder {
 public:
  Finder(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
         const std::vector<double>& across, const std::vector<double>& whole)
      : lines_(lines), across_(across), whole_(whole), turned_(TurnedPhrasesOf(drawing)) {
    for (const Phrase& phrase : turned_) turnedHeads_ += IsHeadPhrase(phrase) ? 1 : 0;
  }

  HeadArea Find() {
    HeadArea area;
    if (!FindLines()) return area;
    area.found = true;
    area.top = lines_[first_].Top();
    double end = lines_[last_].Bottom();
    for (const Phrase& phrase : turned_) {
      if (phrase.MidY() >= BodyTop()) continue;
      area.turned.push_back(phrase);
      area.top = std::min(area.top, phrase.box.top);
      end = std::max(end, phrase.box.bottom);
    }
    for (size_t i = first_; i <= last_; ++i) {
      area.phrases.insert(area.phrases.end(), lines_[i].phrases.begin(), lines_[i].phrases.end());
    }
    for (size_t i = 0; i < first_; ++i) {
      if (IsTitle(lines_[i])) area.title = lines_[i].phrases.front().text;
    }
    area.bottom = BottomBelow(end);
    for (size_t i = body_; i < lines_.size() && i < body_ + kSample; ++i) {
      ++area.bodyLines;
      for (const Phrase& phrase : lines_[i].phrases) area.bodyMiddles.push_back(phrase.MidX());
    }
    return area;
  }

 private:
  double BodyTop() const { return body_ < lines_.size() ? lines_[body_].Top() : 1e9; }

  // The first and the last line of the heads, and the first below them.
  bool FindLines() {
    int heads = 0;
    bool begun = false;
    body_ = lines_.size();
    for (size_t i = 0; i < lines_.size(); ++i) {
      const TextLine& line = lines_[i];
      if (IsTitle(line) && !begun) continue;
      const int turnedAbove = begun ? turnedHeads_ : 0;
      const bool group = line.phrases.size() == 1 && !IsHeadPhrase(line.phrases.front()) &&
                         LooksLikeGroup(line.phrases.front().text);
      if (begun && heads + turnedAbove >= kFewestHeads &&
          (group || (!CanBeHeads(line) && CanBeRow(line)))) {
        body_ = i;
        return true;
      }
      if (begun && heads + turnedAbove >= kFewestHeads && HeadPhrases(line) < 2 && RuledOff(i)) {
        body_ = i;
        return true;
      }
      if (CanBeHeads(line)) {
        if (!begun || FarBelow(line)) {
          begun = true;
          first_ = i;
          heads = 0;
        }
        last_ = i;
        heads += HeadPhrases(line);
      } else if (begun && CanBeRow(line)) {
        begun = false;  // the words before were no heads of a table
        heads = 0;
      }
    }
    return begun && heads + turnedHeads_ >= kFewestHeads;
  }

  // A rule from side to side between the heads so far and a line, and no more heads below it.
  bool RuledOff(size_t index) const {
    const TextLine& line = lines_[index];
    for (size_t i = index + 1; i < lines_.size() && i < index + 4; ++i) {
      if (IsHeadLine(lines_[i])) return false;
    }
    const bool turned = std::any_of(turned_.begin(), turned_.end(), [&](const Phrase& phrase) {
      return IsHeadPhrase(phrase) && phrase.box.bottom > line.base;
    });
    return !turned && std::any_of(whole_.begin(), whole_.end(), [&](double at) {
      return at > lines_[last_].Bottom() - 1 && at < line.base - 0.3 * line.size;
    });
  }

  bool FarBelow(const TextLine& line) const {
    const double gap = line.Top() - lines_[last_].Bottom();
    if (gap <= 2.5 * line.size) return false;
    const bool bridged = std::any_of(turned_.begin(), turned_.end(), [&](const Phrase& phrase) {
      return phrase.box.top <= line.base && phrase.box.bottom >= lines_[last_].Bottom() - 2;
    });
    return !bridged && gap > (turnedHeads_ >= 2 ? kBesideTurned : kWidestGap) * line.size;
  }

  // The rule that ends the heads, or the middle of the gap below them.
  double BottomBelow(double end) const {
    const double body = BodyTop();
    double bottom = -1;
    for (const double at : across_) {
      if (at >= end - 1 && at <= body + 1 && bottom < 0) bottom = at;
    }
    if (bottom >= 0) return bottom;
    return body < 1e8 ? std::max((end + body) / 2, std::min(end, body)) : end + 1;
  }

  const std::vector<TextLine>& lines_;
  const std::vector<double>& across_;
  const std::vector<double>& whole_;
  const std::vector<Phrase> turned_;
  int turnedHeads_ = 0;
  size_t first_ = 0;
  size_t last_ = 0;
  size_t body_ = 0;
};

}  // namespace

bool IsHeadPhrase(const Phrase& phrase) {
  const QStringList words = HeadTokens(phrase.text);
  if (words.isEmpty() || words.size() > kLongestHead) return false;
  if (words == QStringList{QStringLiteral("GENERAL"), QStringLiteral("NOTES")}) return false;
  int known = 0;
  for (const QString& word : words) {
    if (MeaningOf(word) != kNoMeaning) ++known;
  }
  return known >= 0.6 * double(words.size());
}

int HeadPhrases(const TextLine& line) {
  return int(std::count_if(line.phrases.begin(), line.phrases.end(), IsHeadPhrase));
}

bool IsHeadLine(const TextLine& line) {
  const int heads = HeadPhrases(line);
  return heads >= kFewestHeads && heads >= 0.7 * double(line.phrases.size());
}

HeadArea FindHeads(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                   const std::vector<double>& across, const std::vector<double>& whole) {
  return Finder(drawing, lines, across, whole).Find();
}

}  // namespace tamo
