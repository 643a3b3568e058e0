#include "reports/printpages.h"

#include "common/columns.h"

namespace tamo {
namespace {

constexpr int kLinesOfPage = 50;
constexpr int kLookAhead = 10;

class Pages {
 public:
  Pages(Printer& printer, const QString& jobID, const QString& jobName)
      : printer_(printer), head_(jobID + GrownBlanks(90 - jobName.size()) + jobName) {}

  void Head() {
    ++page_;
    const QString font = QStringLiteral("MS Gothic");
    printer_.SetFont(font, 10);
    printer_.PrintLine(head_ + QStringLiteral("     Page ") + QString::number(page_));
    printer_.SetFont(font, 12);
    printer_.PrintLine({});
    printer_.PrintLine({});
  }

  void Line(const QString& line) { printer_.PrintLine(Blanks(20) + line); }

 private:
  Printer& printer_;
  QString head_;
  int page_ = 0;
};

}  // namespace

void PrintPages(Printer& printer, const ListRows& lines, const QString& jobID,
                const QString& jobName) {
  if (lines.Count() == 0 || lines.SizeOf(0) == 0) return;
  if (!printer.BeginPrint(lines.At(0).trimmed() + QStringLiteral(" - ") + jobName)) return;
  Pages pages(printer, jobID, jobName);
  pages.Head();
  const int last = lines.Count() - 1;
  for (int i = 0; i <= last; ++i) {
    pages.Line(lines.At(i));
    if (i == 0 || i % kLinesOfPage != 0) continue;
    for (int k = i + 1; k <= qMin(i + kLookAhead, last); ++k) {
      if (lines.SizeOf(k) == 0) {
        i = k;
        break;
      }
      pages.Line(lines.At(k));
    }
    if (i >= last) break;
    printer.EndPage();
    pages.Head();
  }
  printer.EndPage();
  printer.EndPrint();
}

}  // namespace tamo
