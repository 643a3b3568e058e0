#pragma once

#include <QLocale>
#include <QPageSize>
#include <functional>

#include "common/services.h"
#include "export/pagecomposer.h"
#include "export/pageframe.h"
#include "export/pages.h"

class QPrinter;

namespace tamo {

// Shows what is to be printed and prints it on a printer, each page a job of its own, or into a PDF
// file, all pages in one document. Without any printer the file is what is left.
class ReportPrinter : public Printer {
 public:
  void SetFont(const QString& name, int points) override { pages_.SetFont(name, points); }
  void PrintLine(const QString& line) override;
  void EndPage() override { pages_.EndPage(); }
  bool BeginPrint(const QString& title) override;
  void EndPrint() override;

  // The line on top of each page, "" for none.
  std::function<QString()> company;

 private:
  PageFrame Frame() const;

  PageComposer pages_;
  QString title_;
  QPageSize::PageSizeId paper_ = PaperOf(QLocale::system());  // as it was last chosen
};

// Each sheet a job of its own.
void PaintJobs(const PageComposer& pages, QPrinter& printer, const PageFrame& frame = {});

}  // namespace tamo
