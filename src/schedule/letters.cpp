#include "schedule/letters.h"

#include <QHash>
#include <cmath>

namespace tamo {
namespace {

constexpr double kStraight = 0.985;  // cosine of ten degrees
constexpr double kSamePlace = 0.1;   // of the size: text drawn again for bold stands this near

struct Place {
  double along = 0;
  double across = 0;
};

Place InWay(PagePoint at, Way way) {
  switch (way) {
    case Way::Up:
      return {-at.y, at.x};
    case Way::Left:
      return {-at.x, -at.y};
    case Way::Down:
      return {at.y, -at.x};
    default:
      return {at.x, at.y};
  }
}

// Finds letters that were drawn before at the same place.
class DrawnBefore {
 public:
  bool Seen(const Letter& letter) {
    const int column = static_cast<int>(std::floor(letter.from / kCell));
    const int row = static_cast<int>(std::floor(letter.base / kCell));
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) {
        for (const Letter& other : cells_.value(Key(column + dx, row + dy))) {
          if (Same(letter, other)) return true;
        }
      }
    }
    cells_[Key(column, row)].append(letter);
    return false;
  }

 private:
  static constexpr double kCell = 4;

  static qint64 Key(int column, int row) { return (qint64(column) << 32) ^ quint32(row); }
  static bool Same(const Letter& a, const Letter& b) {
    const double near = kSamePlace * a.size;
    return a.letter == b.letter && std::abs(a.from - b.from) <= near &&
           std::abs(a.base - b.base) <= near && std::abs(a.size - b.size) <= 0.2 * a.size;
  }

  QHash<qint64, QList<Letter>> cells_;
};

QChar Plain(QChar letter) {
  switch (letter.unicode()) {
    case 0x00a0:
    case 0x2007:
    case 0x202f:
    case 0x3000:
      return u' ';
    case 0x00ad:
    case 0x2010:
    case 0x2011:
      return u'-';
    default:
      return letter;
  }
}

void TakePiece(const TextPiece& piece, int index, Way way, DrawnBefore& before,
               std::vector<Letter>& letters) {
  for (qsizetype i = 0; i < piece.text.size() && size_t(i) < piece.places.size(); ++i) {
    const TextPlace& place = piece.places[size_t(i)];
    const Place start = InWay(place.start, way);
    const Place end = InWay(place.end, way);
    Letter letter = {Plain(piece.text[i]),
                     std::min(start.along, end.along),
                     std::max(start.along, end.along),
                     start.across,
                     piece.size,
                     index,
                     piece.fixedPitch};
    if (!IsBlank(letter.letter) && before.Seen(letter)) continue;
    letters.push_back(letter);
  }
}

}  // namespace

bool IsBlank(QChar letter) {
  return letter.isSpace() || letter.unicode() < 0x20 || letter.unicode() == 0x200b;
}

bool IsUnknown(QChar letter) {
  return letter.unicode() == 0xfffd || letter.category() == QChar::Other_PrivateUse;
}

bool WayOf(const TextPiece& piece, Way& way) {
  if (piece.dx >= kStraight) {
    way = Way::Right;
  } else if (piece.dx <= -kStraight) {
    way = Way::Left;
  } else if (piece.dy <= -kStraight) {
    way = Way::Up;
  } else if (piece.dy >= kStraight) {
    way = Way::Down;
  } else {
    return false;
  }
  return true;
}

std::vector<Letter> LettersOf(const std::vector<TextPiece>& texts, Way way) {
  std::vector<Letter> letters;
  DrawnBefore before;
  for (size_t i = 0; i < texts.size(); ++i) {
    const TextPiece& piece = texts[i];
    Way reads = Way::Right;
    if (piece.hidden || piece.clipped || piece.vertical || piece.size <= 0) continue;
    if (!WayOf(piece, reads) || reads != way) continue;
    TakePiece(piece, static_cast<int>(i), way, before, letters);
  }
  return letters;
}

PageBox OnSheet(const PageBox& box, Way way) {
  switch (way) {
    case Way::Up:
      return {box.top, -box.right, box.bottom, -box.left};
    case Way::Left:
      return {-box.right, -box.bottom, -box.left, -box.top};
    case Way::Down:
      return {-box.bottom, box.left, -box.top, box.right};
    default:
      return box;
  }
}

double BaseOnSheet(double base, Way way) {
  return way == Way::Left || way == Way::Down ? -base : base;
}

}  // namespace tamo
