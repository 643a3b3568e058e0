#include "export/pages.h"

#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include "common/failure.h"
#include "export/safefile.h"

namespace tamo {
namespace {

constexpr double kMarginPoints = 18;
constexpr int kDotsPerInch = 1200;

}  // namespace

void SetPageMargins(QPagedPaintDevice& device) {
  device.setPageMargins(QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints),
                        QPageLayout::Point);
}

PaintedPages::PaintedPages(const PageComposer& pages, const QPagedPaintDevice& device,
                           const PageFrame& frame)
    : frame_(frame),
      paper_(device.pageLayout().paintRect(QPageLayout::Point).size()),
      sheets_(pages.Sheets(paper_.width(), paper_.height() - frame.Top() - frame.Bottom())) {}

void PaintedPages::Paint(QPainter& painter, int page) const {
  const double dots = painter.device()->logicalDpiY();
  frame_.Paint(painter, paper_, page + 1, Count(), dots);
  painter.save();
  painter.translate(0, frame_.Top() * dots / 72);
  PageComposer::Paint(painter, sheets_[static_cast<size_t>(page)], dots);
  painter.restore();
}

void PaintDocument(const PageComposer& pages, QPagedPaintDevice& device, const PageFrame& frame) {
  const PaintedPages sheets(pages, device, frame);
  QPainter painter;
  if (!painter.begin(&device)) return;
  for (int page = 0; page < sheets.Count(); ++page) {
    if (page > 0) device.newPage();
    sheets.Paint(painter, page);
  }
}

int WritePdf(const PageCollector& collected, const PageFrame& frame, QPageSize::PageSizeId paper,
             ByteSink& sink) {
  QTemporaryFile file;
  if (!file.open()) return kFileOther;
  {
    QPdfWriter writer(&file);
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(paper));
    SetPageMargins(writer);
    writer.setTitle(collected.title);
    writer.setCreator(QStringLiteral("Tamo"));
    PaintDocument(collected.pages, writer, frame);
  }
  if (!file.flush() || file.error() != QFileDevice::NoError || file.size() == 0) return kFileOther;
  return CopyFileInto(file.fileName(), sink);
}

}  // namespace tamo
