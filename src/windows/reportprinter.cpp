#include "windows/reportprinter.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/look.h"

namespace tamo {
namespace {

constexpr double kMarginPoints = 18;

void SetMargins(QPrinter& printer) {
  printer.setPageMargins(QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints),
                         QPageLayout::Point);
}

std::vector<PageComposer::Sheet> SheetsFor(const PageComposer& pages, const QPrinter& printer) {
  const QRectF paper = printer.pageRect(QPrinter::Point);
  return pages.Sheets(paper.width(), paper.height());
}

void PrintOnPaper(const PageComposer& pages, const QString& title, QDialog& preview) {
  QPrinter printer(QPrinter::HighResolution);
  SetMargins(printer);
  printer.setDocName(title);
  QPrintDialog dialog(&printer, &preview);
  if (dialog.exec() != QDialog::Accepted) return;
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    PaintDocument(pages, printer);
  } else {
    PaintJobs(pages, printer);
  }
  preview.accept();
}

void PrintIntoFile(const PageComposer& pages, const QString& title, QDialog& preview) {
  QString name = title;
  for (QChar& c : name) {
    if (QStringLiteral("\\/:*?\"<>|").contains(c)) c = QLatin1Char(' ');
  }
  const QString path = QFileDialog::getSaveFileName(
      &preview, QStringLiteral("Save as PDF"),
      QDir::homePath() + QLatin1Char('/') + name.simplified() + QStringLiteral(".pdf"),
      QStringLiteral("PDF (*.pdf)"));
  if (path.isEmpty()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
  printer.setDocName(title);
  SetMargins(printer);
  PaintDocument(pages, printer);
  if (QFileInfo(path).size() > 0) {
    preview.accept();
    return;
  }
  QMessageBox::warning(&preview, QStringLiteral("Tamo"),
                       QStringLiteral("%1 could not be written. Choose another folder.").arg(path));
}

}  // namespace

void PaintDocument(const PageComposer& pages, QPrinter& printer) {
  const auto sheets = SheetsFor(pages, printer);
  QPainter painter;
  if (!painter.begin(&printer)) return;
  bool first = true;
  for (const PageComposer::Sheet& sheet : sheets) {
    if (!first) printer.newPage();
    first = false;
    PageComposer::Paint(painter, sheet, printer.resolution());
  }
}

void PaintJobs(const PageComposer& pages, QPrinter& printer) {
  for (const PageComposer::Sheet& sheet : SheetsFor(pages, printer)) {
    QPainter painter;
    if (!painter.begin(&printer)) return;
    PageComposer::Paint(painter, sheet, printer.resolution());
  }
}

bool ReportPrinter::BeginPrint(const QString& title) {
  title_ = title;
  pages_.Clear();
  return true;
}

void ReportPrinter::EndPrint() {
  pages_.EndPage();
  if (pages_.Empty()) return;
  QDialog preview(QApplication::activeWindow());
  preview.setWindowTitle(QStringLiteral("Print: ") + title_);
  preview.resize(760, 680);
  auto* column = new QVBoxLayout(&preview);
  QPrinter sheet(QPrinter::ScreenResolution);
  SetMargins(sheet);
  auto* view = new QPrintPreviewWidget(&sheet);
  view->setViewMode(QPrintPreviewWidget::AllPagesView);
  view->setZoomMode(QPrintPreviewWidget::FitToWidth);
  QObject::connect(view, &QPrintPreviewWidget::paintRequested, &preview,
                   [this](QPrinter* printer) { PaintDocument(pages_, *printer); });
  column->addWidget(view, 1);
  auto* buttons = new QHBoxLayout;
  const bool none = QPrinterInfo::availablePrinterNames().isEmpty();
  auto* why =
      new QLabel(none ? QStringLiteral("No printer is installed; the pages can be saved as a PDF.")
                      : QString());
  auto* print = new QPushButton(QStringLiteral("&Print ..."));
  auto* save = new QPushButton(QStringLiteral("&Save as PDF ..."));
  auto* close = new QPushButton(QStringLiteral("&Cancel"));
  print->setEnabled(!none);
  (none ? save : print)->setDefault(true);
  QObject::connect(print, &QPushButton::clicked, &preview,
                   [&] { PrintOnPaper(pages_, title_, preview); });
  QObject::connect(save, &QPushButton::clicked, &preview,
                   [&] { PrintIntoFile(pages_, title_, preview); });
  QObject::connect(close, &QPushButton::clicked, &preview, [&preview] { preview.reject(); });
  buttons->addWidget(why, 1);
  for (QPushButton* button : {print, save, close}) buttons->addWidget(button);
  column->addLayout(buttons);
  preview.exec();
  pages_.Clear();
}

}  // namespace tamo
