#include "schedule/pictureword.h"

#include <QList>
#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr size_t kMostWords = 20000;  // a schedule of 1,000 rooms has about as many
constexpr qsizetype kLongest = 100;   // letters of a word
constexpr qsizetype kFields = 12;     // of a line
constexpr double kCapitals = 0.72;    // of the size: height of the capitals
constexpr double kSmall = 0.72;       // of the capitals: height of letters like x
constexpr double kDeep = 0.28;        // of the capitals: how far letters like g hang down
constexpr double kDash = 0.45;        // of the capitals: where a dash stands over the base line
constexpr double kNearUsual = 0.2;    // of the usual height: no other size
constexpr double kTimesUsual = 5;     // higher is no letter
constexpr const char* kRule = "|_\xC2\xA6";  // what rules of a table are taken for

// Rules at both ends of a word go, and the box with them.
void TakeRulesOff(PictureWord& word) {
  static const QString rules = QString::fromUtf8(kRule);
  const qsizetype all = word.text.size();
  qsizetype first = 0, last = all;
  while (first < last && rules.contains(word.text[first])) ++first;
  while (last > first && rules.contains(word.text[last - 1])) --last;
  const double letter = word.box.Width() / double(std::max<qsizetype>(all, 1));
  word.box.right -= letter * double(all - last);
  word.box.left += letter * double(first);
  word.text = word.text.mid(first, last - first);
}

bool Printable(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isPrint(); });
}

bool TakeLine(const QByteArray& line, int width, int height, PictureWord& word) {
  const QList<QByteArray> fields = line.split('\t');
  if (fields.size() != kFields || fields[0] != "5") return false;
  bool all = true;
  const auto number = [&](qsizetype field) {
    bool good = false;
    const double value = fields[field].trimmed().toDouble(&good);
    all = all && good;
    return value;
  };
  const double left = number(6), top = number(7), wide = number(8), high = number(9);
  const double sure = number(10);
  if (!all || !(sure >= 0) || !(wide > 0) || !(high > 0)) return false;
  word.box = {left, top, left + wide, top + high};
  const bool inside = left >= 0 && top >= 0 && left + wide <= width && top + high <= height;
  word.text = QString::fromUtf8(fields[11]).simplified();
  if (!inside || word.text.size() > kLongest || !Printable(word.text)) return false;
  TakeRulesOff(word);
  return !word.text.isEmpty();
}

bool HasLetter(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar one) { return one.isLetterOrNumber(); });
}

bool HasTall(const QString& text) {
  static const QString tall = QStringLiteral("bdfhijklt'\"()[]/&#%");
  return std::any_of(text.begin(), text.end(), [](QChar one) {
    return one.isUpper() || one.isDigit() || tall.contains(one);
  });
}

bool HasDeep(const QString& text) {
  static const QString deep = QStringLiteral("gjpqy,;()[]");
  return std::any_of(text.begin(), text.end(), [](QChar one) { return deep.contains(one); });
}

// How high capitals beside the word would be, pixels; by the letters that it has.
double CapitalsOf(const PictureWord& word) {
  return word.box.Height() / ((HasTall(word.text) ? 1 : kSmall) + (HasDeep(word.text) ? kDeep : 0));
}

double UsualCapitals(const std::vector<PictureWord>& words) {
  std::vector<double> heights;
  for (const PictureWord& word : words) {
    if (HasLetter(word.text)) heights.push_back(CapitalsOf(word));
  }
  if (heights.empty()) return 0;
  const auto middle = heights.begin() + std::ptrdiff_t(heights.size() / 2);
  std::nth_element(heights.begin(), middle, heights.end());
  return *middle;
}

// The base line, pixels from the top.
double BaseOf(const PictureWord& word, double capitals) {
  if (HasLetter(word.text)) return word.box.bottom - (HasDeep(word.text) ? kDeep * capitals : 0);
  const bool ditto = HasTall(word.text) || word.text.contains(u'\u201d');
  if (ditto) return word.box.top + capitals;
  return (word.box.top + word.box.bottom) / 2 + kDash * capitals;
}

TextPiece PieceOf(const PictureWord& word, double capitals, PagePoint corner,
                  double pixelsPerPoint) {
  TextPiece piece;
  piece.text = word.text;
  piece.size = capitals / kCapitals / pixelsPerPoint;
  piece.box = NoBox();
  const double base = corner.y + BaseOf(word, capitals) / pixelsPerPoint;
  const double left = corner.x + word.box.left / pixelsPerPoint;
  const double letter = word.box.Width() / pixelsPerPoint / double(word.text.size());
  for (qsizetype i = 0; i < word.text.size(); ++i) {
    const double from = left + letter * double(i);
    const PageBox box = {from, base - 0.8 * piece.size, from + letter, base + 0.2 * piece.size};
    piece.places.push_back({{from, base}, {from + letter, base}, box});
    piece.box.Take({box.left, box.top});
    piece.box.Take({box.right, box.bottom});
  }
  return piece;
}

}  // namespace

std::vector<PictureWord> PictureWordsOf(const QByteArray& table, int width, int height) {
  std::vector<PictureWord> words;
  for (const QByteArray& line : table.split('\n')) {
    PictureWord word;
    if (TakeLine(line, width, height, word)) words.push_back(std::move(word));
    if (words.size() >= kMostWords) break;
  }
  return words;
}

std::vector<TextPiece> PiecesOf(const std::vector<PictureWord>& words, PagePoint corner,
                                double pixelsPerPoint) {
  const double usual = UsualCapitals(words);
  std::vector<TextPiece> pieces;
  if (usual <= 0) return pieces;
  for (const PictureWord& word : words) {
    double capitals = HasLetter(word.text) ? CapitalsOf(word) : usual;
    if (capitals > kTimesUsual * usual) continue;
    if (std::abs(capitals - usual) <= kNearUsual * usual) capitals = usual;
    pieces.push_back(PieceOf(word, capitals, corner, pixelsPerPoint));
  }
  return pieces;
}

}  // namespace tamo
