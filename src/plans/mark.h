#pragma once

#include <QString>
#include <vector>

namespace tamo {

// A place on a page in points (1/72 inch of paper) from the top left corner of the page as it is
// looked at: after the page's own rotation and crop, x to the right, y down.
struct PagePoint {
  double x = 0;
  double y = 0;
  bool operator==(const PagePoint&) const = default;
};

// What a person can mean by a length or a place on paper, in points: a number, and not a mile off.
bool IsOnPaper(double points);
bool IsPlace(PagePoint at);

// Width and height of a page in points, as it is looked at.
struct PageSize {
  double width = 612;
  double height = 792;
};

// One mark on a plan: a measured line (two points), a counting circle (its centre), a way along
// several points, or a closed outline that says its area, its perimeter, or what is cut out of an
// area (a negative area). A legend (its top left corner) measures nothing: it says what the others
// come to. A circle of a named group has its number; a total is the label that says how many
// circles its group has, and is made anew from them.
struct Mark {
  enum class Kind { Line, Circle, Polyline, Area, Perimeter, CutOut, Legend, Grouped, Total };
  Kind kind = Kind::Line;
  int page = 1;  // from 1
  std::vector<PagePoint> points;
  QString colour = QStringLiteral("255000000");  // RRRGGGBBB
  double width = 0.75;                           // points
  QString label;                                 // as it stands on the plan: 10.0 feet @ 1/4"=1'
  QString group;                                 // of a circle that belongs to one, and of a total
  QString name;   // the mark's own name inside the file; empty until it has one
  QString title;  // what the estimator calls it; mostly nothing
  QString kept;   // what this program keeps with it, as text: see MarkTie
  bool operator==(const Mark&) const = default;
};

// Longer ones are cut, or are none of this program's.
inline constexpr int kLongestTitle = 60;
inline constexpr int kLongestKept = 4000;
inline constexpr int kLongestMarkLabel = 400;
inline constexpr int kLongestLegend = 40000;  // the label of a legend
// What a file says of a mark, brought to what a mark can be: its width, and the length of its
// texts.
void BringToBounds(Mark& mark);

// More points than anybody sets; a mark of a file that has more is no mark of this program.
inline constexpr size_t kMostMarkPoints = 10000;
bool IsCount(Mark::Kind kind);                  // a circle, alone or of a group
bool IsLabel(Mark::Kind kind);                  // says what others come to: legend and total
bool IsOutline(Mark::Kind kind);                // closed: area, perimeter, cut-out
bool FitsKind(Mark::Kind kind, size_t points);  // a mark of this kind can have so many points
bool IsSurface(Mark::Kind kind);                // says square feet: area and cut-out
// A title as it may stand on a plan: one line, not over kLongestTitle letters.
QString TitleOf(const QString& text);
// What a mark is called, and what it says as a number: 350 for "350.0 sq ft @ 1/4"=1'".
QString KindInWords(Mark::Kind kind);
double ValueOfMark(const Mark& mark);

// The length as the plan and the takeoff show it: one decimal, a comma at the thousands
// ("1,500.0"). Half goes up; a length that is no finite number gives "0.0".
QString LengthText(double length);

// The names by which this program knows its own marks inside a file: a prefix, the running number
// of the mark, and a random part that keeps names of merged plans apart.
inline constexpr char kMarkPrefix[] = "tamo-";
QString MarkName(int number, unsigned random);
int MarkNumber(const QString& name);  // 0 when the name is none of ours
inline constexpr int kHighestMarkNumber = 999999999;

// The distance of two places in points.
double Distance(PagePoint from, PagePoint to);

// The three parts of a colour code RRRGGGBBB as 0xRRGGBB, parts over 255 taken as 255; black for a
// text that is not nine digits.
unsigned ColourNumber(const QString& code);
// The colour itself, or as much darker as it takes to be read on white paper. 0xRRGGBB.
unsigned ReadableOnWhite(unsigned colour);
bool IsColourCode(const QString& code);

}  // namespace tamo
