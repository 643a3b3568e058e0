#pragma once

#include <QStringList>

#include "plans/pagecontent.h"

namespace tamo {

// Puts a page together: texts in a typewriter face, 0.6 of the size a letter, and lines.
class SheetMaker {
 public:
  SheetMaker() { page_.size = {1224, 792}; }

  SheetMaker& Text(double x, double base, const QString& text, double size = 10) {
    TextPiece piece;
    piece.text = text;
    piece.size = size;
    piece.box = NoBox();
    for (qsizetype i = 0; i < text.size(); ++i) Letter(piece, x + 0.6 * size * double(i), base);
    page_.texts.push_back(piece);
    return *this;
  }

  // A text that reads upwards from a place.
  SheetMaker& Upwards(double x, double y, const QString& text, double size = 10) {
    TextPiece piece;
    piece.text = text;
    piece.size = size;
    piece.dx = 0;
    piece.dy = -1;
    piece.box = {x - size, y - 0.6 * size * double(text.size()), x, y};
    for (qsizetype i = 0; i < text.size(); ++i) {
      const double at = y - 0.6 * size * double(i);
      piece.places.push_back({{x, at}, {x, at - 0.6 * size}, {x - size, at - 0.6 * size, x, at}});
    }
    page_.texts.push_back(piece);
    return *this;
  }

  SheetMaker& Line(double x1, double y1, double x2, double y2) {
    PathPiece path;
    path.kind = PathPiece::Kind::Stroke;
    path.width = 0.5;
    path.steps = {{PathStep::Kind::Move, {x1, y1}, {}, {}},
                  {PathStep::Kind::Line, {x2, y2}, {}, {}}};
    Keep(path);
    return *this;
  }

  // A thin filled area.
  SheetMaker& Area(const PageBox& box) {
    PathPiece path;
    path.steps = {{PathStep::Kind::Move, {box.left, box.top}, {}, {}},
                  {PathStep::Kind::Line, {box.right, box.top}, {}, {}},
                  {PathStep::Kind::Line, {box.right, box.bottom}, {}, {}},
                  {PathStep::Kind::Line, {box.left, box.bottom}, {}, {}},
                  {PathStep::Kind::Close, {box.left, box.top}, {}, {}}};
    Keep(path);
    return *this;
  }

  SheetMaker& Triangle(double x, double y, double side) {
    PathPiece path;
    path.kind = PathPiece::Kind::Stroke;
    path.steps = {{PathStep::Kind::Move, {x, y}, {}, {}},
                  {PathStep::Kind::Line, {x + side, y}, {}, {}},
                  {PathStep::Kind::Line, {x + side / 2, y - side}, {}, {}},
                  {PathStep::Kind::Close, {x, y}, {}, {}}};
    Keep(path);
    return *this;
  }

  // A ruled table: its first row are the heads; columns 100 wide, rows 20 high.
  SheetMaker& Table(double x, double y, const std::vector<QStringList>& rows) {
    const double width = 100.0 * double(rows.front().size());
    const double bottom = y + 20.0 * double(rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
      const double top = y + 20.0 * double(i);
      Line(x, top, x + width, top);
      for (qsizetype k = 0; k < rows[i].size(); ++k) {
        if (!rows[i][k].isEmpty()) Text(x + 5 + 100.0 * double(k), top + 14, rows[i][k]);
      }
    }
    Line(x, bottom, x + width, bottom);
    for (qsizetype k = 0; k <= rows.front().size(); ++k) {
      Line(x + 100.0 * double(k), y, x + 100.0 * double(k), bottom);
    }
    return *this;
  }

  PageContent& Page() { return page_; }

 private:
  static void Letter(TextPiece& piece, double x, double base) {
    const double size = piece.size;
    const PageBox box = {x, base - 0.8 * size, x + 0.6 * size, base + 0.2 * size};
    piece.places.push_back({{x, base}, {x + 0.6 * size, base}, box});
    piece.box.Take({box.left, box.top});
    piece.box.Take({box.right, box.bottom});
  }
  void Keep(PathPiece& path) {
    path.clip = {0, 0, page_.size.width, page_.size.height};
    path.box = NoBox();
    for (const PathStep& step : path.steps) path.box.Take(step.at);
    page_.paths.push_back(path);
  }

  PageContent page_;
};

}  // namespace tamo
