#include <QCoreApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "windows/plancanvas.h"
#include "windows/planpaint.h"
#include "windows/sheetpaint.h"

namespace tamo {

// The page in sight with its marks, as large as the paper takes it, turned to fit.
void PlanCanvas::Print() {
  QPrinter printer(QPrinter::HighResolution);
  const PageSize size = viewer_.SizeOfPage(viewer_.Page());
  printer.setPageOrientation(size.width > size.height ? QPageLayout::Landscape
                                                      : QPageLayout::Portrait);
  const bool go = askForPrinter ? askForPrinter(printer)
                                : QPrintDialog(&printer, window()).exec() == QDialog::Accepted;
  if (!go) return;
  QPainter painter(&printer);
  if (!painter.isActive()) return;
  const QRectF paper = painter.viewport();
  const double scale = std::min(paper.width() / size.width, paper.height() / size.height);
  if (pictures_ != nullptr) {
    PlanView part;
    part.page = viewer_.Page();
    // Fine enough for any printer, and bounded.
    part.pixelsPerPoint = std::min(scale, 5000.0 / std::max(size.width, size.height));
    part.width = static_cast<int>(size.width * part.pixelsPerPoint);
    part.height = static_cast<int>(size.height * part.pixelsPerPoint);
    const auto paint = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
    if (const auto picture = pictures_->PrintPicture(part, paint))
      painter.drawImage(QRectF(0, 0, size.width * scale, size.height * scale), ImageOf(*picture));
  }
  painter.scale(scale, scale);
  PaintMarks(painter, viewer_);
}

}  // namespace tamo
