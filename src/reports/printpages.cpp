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

void PrintPages(Printer& printer, const QStringList& lines, const QString& jobID,
                const QString& jobName) {
  if (lines.isEmpty() || lines.front().isEmpty()) return;
  if (!printer.BeginPrint(lines.front().trimmed() + QStringLiteral(" - ") + jobName)) return;
  Pages pages(printer, jobID, jobName);
  pages.Head();
  const qsizetype last = lines.size() - 1;
  for (qsizetype i = 0; i <= last; ++i) {
    pages.Line(lines[i]);
    if (i == 0 || i % kLinesOfPage != 0) continue;
    for (qsizetype k = i + 1; k <= qMin(i + kLookAhead, last); ++k) {
      if (lines[k].isEmpty()) {
        i = k;
        break;
      }
      pages.Line(lines[k]);
    }
    if (i >= last) break;
    printer.EndPage();
    pages.Head();
  }
  printer.EndPage();
  printer.EndPrint();
}

}  // namespace tamo
