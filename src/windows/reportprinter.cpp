#include "windows/reportprinter.h"

#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "reports/lineweight.h"
#include "windows/look.h"

namespace tamo {
namespace {

// What can be chosen, by the names under which it is sold.
constexpr std::pair<const char*, QPageSize::PageSizeId> kPapers[] = {
    {"Letter", QPageSize::Letter},
    {"Legal", QPageSize::Legal},
    {"Tabloid", QPageSize::Tabloid},
    {"A4", QPageSize::A4},
    {"A3", QPageSize::A3}};

QComboBox* PaperChoice(QPageSize::PageSizeId chosen) {
  auto* papers = new QComboBox;
  papers->setAccessibleName(QStringLiteral("Paper"));
  for (const auto& [name, paper] : kPapers) {
    papers->addItem(QLatin1String(name), paper);
    if (paper == chosen) papers->setCurrentIndex(papers->count() - 1);
  }
  return papers;
}

struct Job {
  const PageComposer& pages;
  const QString& title;
  const PageFrame frame;
  const QPageSize::PageSizeId& paper;
};

void PrintOnPaper(const Job& job, QDialog& preview) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(job.paper));
  SetPageMargins(printer);
  printer.setDocName(job.title);
  QPrintDialog dialog(&printer, &preview);
  if (dialog.exec() != QDialog::Accepted) return;
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    PaintDocument(job.pages, printer, job.frame);
  } else {
    PaintJobs(job.pages, printer, job.frame);
  }
  preview.accept();
}

void PrintIntoFile(const Job& job, QDialog& preview) {
  QString name = job.title;
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
  printer.setDocName(job.title);
  printer.setPageSize(QPageSize(job.paper));
  SetPageMargins(printer);
  PaintDocument(job.pages, printer, job.frame);
  if (QFileInfo(path).size() > 0) {
    preview.accept();
    return;
  }
  QMessageBox::warning(&preview, QStringLiteral("Tamo"),
                       QStringLiteral("%1 could not be written. Choose another folder.").arg(path));
}

}  // namespace

void PaintJobs(const PageComposer& pages, QPrinter& printer, const PageFrame& frame) {
  const PaintedPages sheets(pages, printer, frame);
  for (int page = 0; page < sheets.Count(); ++page) {
    QPainter painter;
    if (!painter.begin(&printer)) return;
    sheets.Paint(painter, page);
  }
}

PageFrame ReportPrinter::Frame() const {
  return {company ? company().trimmed() : QString(), title_,
          QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat)};
}

// Lines of a report stand behind twenty blanks; the title of the print names it.
void ReportPrinter::PrintLine(const QString& line) {
  constexpr qsizetype kMargin = 20;
  const QString report = title_.section(QStringLiteral(" - "), 0, 0);
  const bool ofReport = line.startsWith(QString(kMargin, u' '));
  pages_.Add(line, ofReport && IsHeavyLine(report, QStringView(line).mid(kMargin)));
}

bool ReportPrinter::BeginPrint(const QString& title) {
  title_ = title;
  pages_.Clear();
  return true;
}

namespace {

QPrintPreviewWidget* Preview(const Job& job, QPrinter& sheet) {
  auto* view = new QPrintPreviewWidget(&sheet);
  view->setViewMode(QPrintPreviewWidget::AllPagesView);
  view->setZoomMode(QPrintPreviewWidget::FitToWidth);
  QObject::connect(view, &QPrintPreviewWidget::paintRequested, view,
                   [&job](QPrinter* printer) { PaintDocument(job.pages, *printer, job.frame); });
  return view;
}

QHBoxLayout* PrintButtons(const Job& job, QDialog& preview, QComboBox* papers) {
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
  QObject::connect(print, &QPushButton::clicked, &preview, [&] { PrintOnPaper(job, preview); });
  QObject::connect(save, &QPushButton::clicked, &preview, [&] { PrintIntoFile(job, preview); });
  QObject::connect(close, &QPushButton::clicked, &preview, [&preview] { preview.reject(); });
  buttons->addWidget(why, 1);
  auto* caption = new QLabel(QStringLiteral("Pape&r:"));
  caption->setBuddy(papers);
  buttons->addWidget(caption);
  for (QWidget* widget : std::initializer_list<QWidget*>{papers, print, save, close})
    buttons->addWidget(widget);
  return buttons;
}

}  // namespace

void ReportPrinter::EndPrint() {
  pages_.EndPage();
  if (pages_.Empty()) return;
  const Job job{pages_, title_, Frame(), paper_};
  QDialog preview(QApplication::activeWindow());
  preview.setWindowTitle(QStringLiteral("Print: ") + title_);
  preview.resize(760, 680);
  auto* column = new QVBoxLayout(&preview);
  QPrinter sheet(QPrinter::ScreenResolution);
  sheet.setPageSize(QPageSize(paper_));
  SetPageMargins(sheet);
  QPrintPreviewWidget* view = Preview(job, sheet);
  column->addWidget(view, 1);
  QComboBox* papers = PaperChoice(paper_);
  QObject::connect(papers, &QComboBox::currentIndexChanged, view, [&, papers, view](int at) {
    paper_ = static_cast<QPageSize::PageSizeId>(papers->itemData(at).toInt());
    sheet.setPageSize(QPageSize(paper_));
    view->updatePreview();
  });
  column->addLayout(PrintButtons(job, preview, papers));
  preview.exec();
  pages_.Clear();
}

}  // namespace tamo
