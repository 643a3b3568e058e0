#pragma once

#include <QByteArray>
#include <QList>
#include <algorithm>
#include <random>

#include "plans/pagecontent.h"
#include "support/likesymbols.h"

// Sheets full of symbols, made anew from a number: turned by any angle, mirrored, touching each
// other, crossed by long lines; among them larger and smaller ones and others nearly alike.
namespace tamo::test {

struct LikesSheet {
  QByteArray content;  // of the page
  double width = 0;    // points
  double height = 0;
  PageBox box;                  // around the symbol looked for
  std::vector<PagePoint> same;  // where it stands, itself included
  int others = 0;               // symbols nearly alike, larger or smaller
};

class LikesSheetMaker {
 public:
  LikesSheetMaker(unsigned seed, const SymbolFamily& family, int across, int down, int lines)
      : random_(seed), family_(family), across_(across), down_(down), lines_(lines) {}

  LikesSheet Make() {
    sheet_.width = across_ * kSlot;
    sheet_.height = down_ * kSlot;
    PlaceFirst();
    for (int slot = 2; slot < across_ * down_; ++slot) Fill(Middle(slot));
    for (int i = 0; i < across_; ++i) Wall();
    return sheet_;
  }

 private:
  static constexpr double kSlot = 96;

  struct Lie {
    double angle = 0, size = 1;
    bool mirrored = false;
    PagePoint at;
    PagePoint Of(PagePoint own) const {
      const double x = (mirrored ? -own.x : own.x) * size;
      const double y = own.y * size;
      return {at.x + x * std::cos(angle) - y * std::sin(angle),
              at.y + x * std::sin(angle) + y * std::cos(angle)};
    }
  };

  double Part() { return std::uniform_real_distribution<double>(0, 1)(random_); }
  // The slot beside the first stays empty, so that the box holds one symbol.
  PagePoint Middle(int slot) const {
    return {(slot % across_ + 0.5) * kSlot, (slot / across_ + 0.5) * kSlot};
  }
  Lie AnyLie(PagePoint at) {
    static constexpr double kTurns[] = {0, 1.5707963267948966, 3.141592653589793, 4.71238898038469};
    const double angle = Part() < 0.5 ? kTurns[int(Part() * 4)] : Part() * 6.283185307;
    return {angle, 1, Part() < 0.4, at};
  }

  // Of a symbol, in its own places.
  static PagePoint MiddleOf(const Symbol& symbol) {
    PageBox box = NoBox();
    for (const PagePoint at : PlacesOf(symbol)) box.Take(at);
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  }
  static std::vector<PagePoint> PlacesOf(const Symbol& symbol) {
    std::vector<PagePoint> places;
    for (const SymbolLine& line : symbol) {
      for (int i = 0; i <= 16; ++i) {
        const double t = i / 16.0;
        const double u = 1 - t;
        const auto on = [&](double a, double b, double c, double d) {
          return line.curved ? u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d
                             : u * a + t * d;
        };
        places.push_back({on(line.from.x, line.by1.x, line.by2.x, line.to.x),
                          on(line.from.y, line.by1.y, line.by2.y, line.to.y)});
      }
    }
    return places;
  }

  void Pair(PagePoint at) {
    sheet_.content += QByteArray::number(at.x, 'f', 3) + ' ' +
                      QByteArray::number(sheet_.height - at.y, 'f', 3) + ' ';
  }
  void Line(PagePoint from, PagePoint to) {
    Pair(from);
    sheet_.content += "m ";
    Pair(to);
    sheet_.content += "l S\n";
  }
  void Draw(const Symbol& symbol, const Lie& lie) {
    for (const SymbolLine& line : symbol) {
      if (!line.curved) {
        Line(lie.Of(line.from), lie.Of(line.to));
        continue;
      }
      Pair(lie.Of(line.from));
      sheet_.content += "m ";
      for (const PagePoint at : {line.by1, line.by2, line.to}) Pair(lie.Of(at));
      sheet_.content += "c S\n";
    }
  }
  void DrawSame(const Lie& lie) {
    Draw(family_.symbol, lie);
    sheet_.same.push_back(lie.Of(MiddleOf(family_.symbol)));
  }

  void PlaceFirst() {
    const Lie lie{0, 1, false, Middle(0)};
    PageBox box = NoBox();
    for (const PagePoint at : PlacesOf(family_.symbol)) box.Take(lie.Of(at));
    sheet_.box = {box.left - 1.5, box.top - 1.5, box.right + 1.5, box.bottom + 1.5};
    DrawSame(lie);
  }

  // How far a symbol reaches from its slot in a direction.
  static double Reach(const Symbol& symbol, const Lie& lie, PagePoint way) {
    double most = -1e9;
    for (const PagePoint own : PlacesOf(symbol)) {
      const PagePoint at = lie.Of(own);
      most = std::max(most, (at.x - lie.at.x) * way.x + (at.y - lie.at.y) * way.y);
    }
    return most;
  }

  // Two that just touch.
  void Touching(PagePoint at) {
    const Lie one = AnyLie(at);
    Lie other = AnyLie(at);
    const double angle = Part() * 6.283185307;
    const PagePoint way = {std::cos(angle), std::sin(angle)};
    const double apart =
        Reach(family_.symbol, one, way) + Reach(family_.symbol, other, {-way.x, -way.y});
    other.at = {at.x + apart * way.x, at.y + apart * way.y};
    DrawSame(one);
    if (WhollyOn(other)) DrawSame(other);
  }

  bool WhollyOn(const Lie& lie) const {
    for (const PagePoint own : PlacesOf(family_.symbol)) {
      const PagePoint at = lie.Of(own);
      if (at.x < 1 || at.y < 1 || at.x > sheet_.width - 1 || at.y > sheet_.height - 1) return false;
    }
    return true;
  }

  void Crossed(PagePoint at) {
    DrawSame(AnyLie(at));
    for (int i = 0; i < 2; ++i) {
      const double angle = Part() * 6.283185307;
      const double off = (Part() - 0.5) * 8;
      const double x = std::cos(angle);
      const double y = std::sin(angle);
      Line({at.x - 80 * x - off * y, at.y - 80 * y + off * x},
           {at.x + 80 * x - off * y, at.y + 80 * y + off * x});
    }
  }

  void Fill(PagePoint at) {
    const double choice = Part();
    if (choice < 0.25) return Noise(at);
    if (choice < 0.5) return DrawSame(AnyLie(at));
    if (choice < 0.62) return Touching(at);
    if (choice < 0.74) return Crossed(at);
    ++sheet_.others;
    Lie lie = AnyLie(at);
    static constexpr double kSizes[] = {0.75, 0.9, 1.1, 1.3};
    if (choice < 0.86) {
      lie.size = kSizes[int(Part() * 4)];
      return Draw(family_.symbol, lie);
    }
    const auto& alike = family_.nearlyAlike;
    Draw(alike[std::min(alike.size() - 1, size_t(Part() * double(alike.size())))], lie);
  }

  // Lines as long as those of the symbol, in no order.
  void Noise(PagePoint at) {
    for (int i = 0; i < lines_; ++i) {
      const SymbolLine& like = family_.symbol[size_t(Part() * double(family_.symbol.size()))];
      const double length = Distance(like.from, like.to);
      const double angle = Part() * 6.283185307;
      const PagePoint from = {at.x + (Part() - 0.5) * 36, at.y + (Part() - 0.5) * 36};
      Line(from, {from.x + length * std::cos(angle), from.y + length * std::sin(angle)});
    }
  }

  void Wall() {
    const bool level = Part() < 0.5;
    const double at = kSlot + Part() * ((level ? sheet_.height : sheet_.width) - kSlot);
    if (level) return Line({0, at}, {sheet_.width, at});
    Line({at, 0}, {at, sheet_.height});
  }

  std::mt19937 random_;
  const SymbolFamily& family_;
  int across_;
  int down_;
  int lines_;  // of noise in a slot of it
  LikesSheet sheet_;
};

// The page as it is read, without a PDF between.
inline PageContent ContentOf(const LikesSheet& sheet) {
  PageContent content;
  content.whole = true;
  content.size = {sheet.width, sheet.height};
  std::vector<double> numbers;
  const auto at = [&](size_t i) { return PagePoint{numbers[i], sheet.height - numbers[i + 1]}; };
  for (const QByteArray& word : sheet.content.simplified().split(' ')) {
    bool number = false;
    const double value = word.toDouble(&number);
    if (number) {
      numbers.push_back(value);
      continue;
    }
    if (word == "m") {
      content.paths.emplace_back();
      content.paths.back().kind = PathPiece::Kind::Stroke;
      content.paths.back().clip = {0, 0, sheet.width, sheet.height};
    }
    std::vector<PathStep>& steps = content.paths.back().steps;
    if (word == "m") steps.push_back({PathStep::Kind::Move, at(0), {}, {}});
    if (word == "l") steps.push_back({PathStep::Kind::Line, at(0), {}, {}});
    if (word == "c") steps.push_back({PathStep::Kind::Curve, at(4), at(0), at(2)});
    numbers.clear();
  }
  return content;
}

struct LikesScore {
  int there = 0;    // symbols on the sheet
  int found = 0;    // of them, as sure ones
  int asked = 0;    // of them, found with a doubt
  int missed = 0;   // of them, not at all
  int wrong = 0;    // found as sure ones where none is
  int doubted = 0;  // places where none is, with a doubt
};

// `places` of what was found, and whether each is sure.
inline LikesScore ScoreOf(const LikesSheet& sheet, const std::vector<PagePoint>& places,
                          const std::vector<bool>& sure) {
  LikesScore score;
  score.there = int(sheet.same.size());
  std::vector<bool> used(places.size(), false);
  for (const PagePoint at : sheet.same) {
    size_t i = 0;
    while (i < places.size() && (used[i] || Distance(places[i], at) > 1)) ++i;
    if (i == places.size()) {
      ++score.missed;
      continue;
    }
    used[i] = true;
    ++(sure[i] ? score.found : score.asked);
  }
  for (size_t i = 0; i < places.size(); ++i) {
    if (!used[i]) ++(sure[i] ? score.wrong : score.doubted);
  }
  return score;
}

}  // namespace tamo::test
