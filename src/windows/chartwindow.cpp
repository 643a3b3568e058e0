#include "windows/chartwindow.h"

#include <QBuffer>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <memory>

#include "common/failure.h"
#include "export/pages.h"
#include "export/safefile.h"
#include "windows/chartmodule.h"
#include "windows/look.h"

namespace tamo {
namespace {

constexpr QSize kPaperView(1100, 800);  // the pixels that a sheet's width and height stand for

}  // namespace

void PaintChart(const ChartData& data, QPagedPaintDevice& device) {
  const std::unique_ptr<QWidget> view(NewChartView(data, ChartColoursOfPaper()));
  view->resize(kPaperView);
  // Laid out without being shown.
  view->setAttribute(Qt::WA_DontShowOnScreen);
  view->show();
  QPainter painter;
  if (!painter.begin(&device)) return;
  const QRectF paper(QPointF(0, 0), QSizeF(painter.device()->width(), painter.device()->height()));
  if (auto* chart = qobject_cast<QGraphicsView*>(view.get())) return chart->render(&painter, paper);
  painter.drawText(paper, data.Lines().join(QLatin1Char('\n')));
}

ChartWindow::ChartWindow(ChartData data, Disk& disk, FileChooser choose, QWidget* parent)
    : QDialog(parent), data_(std::move(data)), disk_(disk), choose_(std::move(choose)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Chart: ") + data_.title);
  resize(900, 640);
  auto* column = new QVBoxLayout(this);
  column->addWidget(NewChartView(data_, ChartColoursOfScreen()), 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  auto* print = new QPushButton(QStringLiteral("&Print ..."));
  print->setEnabled(!QPrinterInfo::availablePrinterNames().isEmpty());
  auto* save = new QPushButton(QStringLiteral("&Save as PDF ..."));
  auto* close = new QPushButton(QStringLiteral("&Close"));
  connect(print, &QPushButton::clicked, this, [this] { Print(); });
  connect(save, &QPushButton::clicked, this, [this] { SaveAsPdf(); });
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  for (QPushButton* button : {print, save, close}) buttons->addWidget(button);
  close->setDefault(true);
  column->addLayout(buttons);
}

void ChartWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(PaperOf(QLocale::system())));
  printer.setPageOrientation(QPageLayout::Landscape);
  SetPageMargins(printer);
  printer.setDocName(data_.title);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) PaintChart(data_, printer);
}

void ChartWindow::SaveAsPdf() {
  QString name = data_.title;
  for (QChar& c : name) {
    if (QStringLiteral("\\/:*?\"<>|").contains(c)) c = QLatin1Char(' ');
  }
  const QString path = choose_({true,
                                QStringLiteral("Save Chart As"),
                                QStringLiteral("Chart ") + name.simplified(),
                                {QStringLiteral("PDF (*.pdf)")}});
  if (path.isEmpty()) return;
  if (disk_.Exists(path) &&
      QMessageBox::question(this, QStringLiteral("Tamo"),
                            QStringLiteral("%1 is there already. Replace it?").arg(path)) !=
          QMessageBox::Yes)
    return;
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(PaperOf(QLocale::system())));
    writer.setPageOrientation(QPageLayout::Landscape);
    SetPageMargins(writer);
    writer.setTitle(data_.title);
    PaintChart(data_, writer);
  }
  const int error =
      MakeFileSafely(disk_, path, [&bytes](ByteSink& sink) { return sink.Write(bytes.data()); });
  if (error == kNoError) return;
  QMessageBox::warning(
      this, QStringLiteral("Tamo"),
      QStringLiteral("%1 could not be saved, because %2. What was there before is unchanged.")
          .arg(path, WriteReason(error)));
}

}  // namespace tamo
