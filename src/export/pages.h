#pragma once

#include <QLocale>
#include <QPagedPaintDevice>
#include <vector>

#include "common/services.h"
#include "export/bytesink.h"
#include "export/pagecomposer.h"
#include "export/pageframe.h"

namespace tamo {

// The margin of every printed page.
void SetPageMargins(QPagedPaintDevice& device);

// Pages of lines as they fall on the sheets of a device, with what stands around them.
class PaintedPages {
 public:
  // The device has its paper and margins already. All of it outlives this.
  PaintedPages(const PageComposer& pages, const QPagedPaintDevice& device, const PageFrame& frame);
  int Count() const { return static_cast<int>(sheets_.size()); }
  // One of them, from 0; the painter stands on the device.
  void Paint(QPainter& painter, int page) const;

 private:
  const PageFrame& frame_;
  QSizeF paper_;  // points
  std::vector<PageComposer::Sheet> sheets_;
};

// All sheets on one device, as one document.
void PaintDocument(const PageComposer& pages, QPagedPaintDevice& device,
                   const PageFrame& frame = {});

// A printer that keeps the pages, to be made a PDF of.
class PageCollector : public Printer {
 public:
  void SetFont(const QString& name, int points) override { pages.SetFont(name, points); }
  void PrintLine(const QString& line) override { pages.Add(line); }
  void EndPage() override { pages.EndPage(); }
  bool BeginPrint(const QString& text) override {
    title = text;
    return true;
  }
  void EndPrint() override {}

  PageComposer pages;
  QString title;
};

// The pages as a PDF. Needs a QGuiApplication, for its fonts. An error number as Disk has them.
int WritePdf(const PageCollector& collected, const PageFrame& frame, QPageSize::PageSizeId paper,
             ByteSink& sink);

}  // namespace tamo
