#pragma once

#include "common/services.h"
#include "windows/pagecomposer.h"

class QPrinter;

namespace tamo {

// Shows what is to be printed and prints it on a printer, each page a job of its own, or into a PDF
// file, all pages in one document. Without any printer the file is what is left.
class ReportPrinter : public Printer {
 public:
  void SetFont(const QString& name, int points) override { pages_.SetFont(name, points); }
  void PrintLine(const QString& line) override { pages_.Add(line); }
  void EndPage() override { pages_.EndPage(); }
  bool BeginPrint(const QString& title) override;
  void EndPrint() override;

 private:
  PageComposer pages_;
  QString title_;
};

// All sheets on one device, as one document.
void PaintDocument(const PageComposer& pages, QPrinter& printer);
// Each sheet a job of its own.
void PaintJobs(const PageComposer& pages, QPrinter& printer);

}  // namespace tamo
