#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "plans/mark.h"

// What stands on a page, as data: the words with their places, the lines and areas of the drawing,
// the places of pictures. Search, the reading of schedules, sheet names, snapping and the comparing
// of revisions all stand on this.
//
// All places and lengths are points (1/72 inch of paper) from the top left corner of the page as it
// is looked at: after its rotation, crop and user unit, x to the right, y down.
namespace tamo {

// An upright rectangle; empty when right <= left or bottom <= top.
struct PageBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  PagePoint Middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
  bool Empty() const { return right <= left || bottom <= top; }
  PageBox Cut(const PageBox& other) const;
  void Take(PagePoint at);  // grows so that it holds the place; begin with NoBox()
  bool operator==(const PageBox&) const = default;
};
PageBox NoBox();  // holds nothing

// One code unit of a piece's text. The two halves of a letter beyond U+FFFF, and the letters of one
// ligature, share its box in equal parts along the base line.
struct TextPlace {
  PagePoint start;  // on the base line, where the letter begins
  PagePoint end;    // and where the next would begin
  PageBox box;      // around the letter's advance, from the font's descender to its ascender
};

// Letters that one statement of the file draws behind each other in one font on one base line. A
// piece ends where the next letter stands more than half the font's size off its place. A word may
// well be in several pieces, and a piece hold several words; text that is drawn twice is there
// twice.
struct TextPiece {
  QString text;                   // in the order of drawing; U+FFFD where the file tells no letter
  std::vector<TextPlace> places;  // as many as text.size()
  PageBox box;                    // around all of them
  double dx = 1;                  // direction of the base line, of length 1: (1, 0) reads to the
  double dy = 0;                  // right, (0, -1) upwards
  double size = 0;                // height of the font's em square on the page
  QString font;                   // its name without a subset's "ABCDEF+"
  bool bold = false;
  bool italic = false;
  bool fixedPitch = false;
  bool vertical = false;  // a font for writing downwards
  bool hidden = false;    // drawn with no ink, as behind a scanned sheet
  bool clipped = false;   // lies wholly outside the page or what is cut out of it
  unsigned colour = 0;    // 0xRRGGBB
};

// One step of a path. Curves are kept; Flattened makes lines of them.
struct PathStep {
  enum class Kind { Move, Line, Curve, Close };
  Kind kind = Kind::Move;
  PagePoint at;        // where it ends; of Close, where the outline began
  PagePoint by1, by2;  // of a curve: its two control points
};

// What one statement of the file fills or strokes. Pieces wholly outside the page, or outside what
// is cut out of it, are left out.
struct PathPiece {
  enum class Kind { Fill, Stroke };
  Kind kind = Kind::Fill;
  std::vector<PathStep> steps;
  PageBox box;       // of what can be seen of it: inside `clip`, half a line's width around it
  PageBox clip;      // what the clips in force leave, as an upright rectangle
  double width = 0;  // of a stroke, on the page; 0 is the thinnest that can be drawn
  bool dashed = false;
  bool evenOdd = false;  // of a fill
  unsigned colour = 0;   // 0xRRGGBB
  double alpha = 1;      // 0 to 1
};

// A picture, or an area painted in a way that is no plain colour.
struct PicturePiece {
  enum class Kind { Picture, Stencil, Shading, Pattern };
  Kind kind = Kind::Picture;
  PageBox box;    // inside the clips in force
  int width = 0;  // of a picture and a stencil, in its own pixels
  int height = 0;
};

// A page's content in the order of drawing. Annotations and form fields come after the rest, the
// marks of this program are left out.
struct PageContent {
  int error = 0;       // 0; 53, 76, 75 as for every file; 57: not read, `problem` says why
  QString problem;     // in words: what could not be read, "" when all could
  bool whole = false;  // false: not all of the page is here (stopped, damaged, or far too much)
  PageSize size;
  std::vector<TextPiece> texts;
  std::vector<PathPiece> paths;
  std::vector<PicturePiece> pictures;
};

struct PageLine {
  PagePoint from;
  PagePoint to;
};

// Cuts a line to a rectangle; false when nothing of it is inside.
bool CutLine(PageLine& line, const PageBox& box);

// The straight lines of a path, curves as lines that lie within `tolerance` points of them, each
// cut to what the clip leaves. Of a fill, its outline. An open outline stays open.
std::vector<PageLine> Flattened(const PathPiece& path, double tolerance = 0.1);

// The outlines of a path that are upright rectangles (within `tolerance` points), each cut to what
// the clip leaves. Of a stroke, the middle of its line.
std::vector<PageBox> RectanglesOf(const PathPiece& path, double tolerance = 0.05);

}  // namespace tamo
