#pragma once

#include <QFont>
#include <QString>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace tamo {

// What a print command printed, kept as pages of lines, so that it can be looked at first and then
// go to a printer or into a file.
//
// A character is half as wide as its font is high, on every machine, so that 96 columns at 12
// points take 8 inches; a page that is too wide or too long for the paper is made smaller as a
// whole, but never below four fifths: then the lines go on on the next sheet.
class PageComposer {
 public:
  struct Line {
    QString text;
    QString font;
    int points = 12;
    bool heavy = false;  // painted with weight, every column where it is
  };
  using Page = std::vector<Line>;
  struct Sheet {
    Page lines;
    double scale = 1;  // the same for all sheets of a document
  };

  void SetFont(const QString& name, int points);
  void Add(const QString& text, bool heavy = false);
  void EndPage();
  void Clear();

  bool Empty() const { return pages_.empty(); }
  const std::vector<Page>& Pages() const { return pages_; }

  // The pages as they fall on sheets of this size (points).
  std::vector<Sheet> Sheets(double width, double height) const;
  // Paints one sheet; the painter's device has the resolution `dotsPerInch` in both directions.
  static void Paint(QPainter& painter, const Sheet& sheet, double dotsPerInch);

 private:
  std::vector<Page> pages_;
  bool open_ = false;  // the last page takes further lines
  QString font_ = QStringLiteral("MS Gothic");
  int points_ = 12;
};

}  // namespace tamo
