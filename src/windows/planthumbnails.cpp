#include "windows/planthumbnails.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "windows/look.h"
#include "windows/planpaint.h"

namespace tamo {
namespace {

constexpr int kSide = 14 * kGrid;    // the longer side of a thumbnail
constexpr int kCaption = 5 * kGrid;  // two lines: page and number, name

}  // namespace

PlanThumbnails::PlanThumbnails(PdfDraw& viewer, PlanPictures* pictures, Desk& desk, QWidget* parent)
    : QAbstractScrollArea(parent), viewer_(viewer), pictures_(pictures), desk_(desk) {
  setObjectName(QStringLiteral("picPdfThumbnails"));
  setAccessibleName(QStringLiteral("Pages of the plan"));
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setCursor(Qt::PointingHandCursor);
}

int PlanThumbnails::CellHeight() const {
  return kSide + kCaption + kGrid;
}

QSize PlanThumbnails::sizeHint() const {
  return {kSide + 4 * kGrid, 4 * CellHeight()};
}

void PlanThumbnails::PagesChanged() {
  const int whole = viewer_.PageCount() * CellHeight() + kGrid;
  QScrollBar* bar = verticalScrollBar();
  bar->setRange(0, std::max(0, whole - viewport()->height()));
  bar->setPageStep(viewport()->height());
  bar->setSingleStep(CellHeight() / 3);
  if (viewer_.Page() != shownPage_) {
    shownPage_ = viewer_.Page();
    const int top = (shownPage_ - 1) * CellHeight();
    const int least = top + CellHeight() - viewport()->height();
    bar->setValue(std::clamp(bar->value(), std::min(least, top), std::max(least, top)));
  }
  TakePictures();
}

int PlanThumbnails::FirstInSight() const {
  return std::max(1, verticalScrollBar()->value() / CellHeight() + 1);
}

int PlanThumbnails::LastInSight() const {
  const int last = (verticalScrollBar()->value() + viewport()->height() - kGrid) / CellHeight() + 1;
  return std::min(last, viewer_.PageCount());
}

// Asks for the pictures in sight, so that painting only paints what is there.
void PlanThumbnails::TakePictures() {
  shown_.clear();
  const int side = static_cast<int>(kSide * devicePixelRatioF());
  for (int page = FirstInSight(); pictures_ != nullptr && page <= LastInSight(); ++page) {
    if (auto picture = pictures_->Thumbnail(page, side)) shown_[page] = std::move(picture);
  }
  viewport()->update();
}

void PlanThumbnails::scrollContentsBy(int /*dx*/, int /*dy*/) {
  TakePictures();
}

void PlanThumbnails::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  PagesChanged();
}

void PlanThumbnails::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const Look& look = CurrentLook();
  painter.fillRect(viewport()->rect(), look.window);
  const int from = verticalScrollBar()->value();
  for (int page = FirstInSight(); page <= LastInSight(); ++page) {
    const int top = (page - 1) * CellHeight() + kGrid - from;
    const PageSize size = viewer_.SizeOfPage(page);
    const double scale = kSide / std::max({size.width, size.height, 1.0});
    const QRectF sheet((viewport()->width() - size.width * scale) / 2,
                       top + (kSide - size.height * scale) / 2, size.width * scale,
                       size.height * scale);
    painter.fillRect(sheet, Qt::white);
    if (const auto picture = shown_.find(page); picture != shown_.end())
      painter.drawImage(sheet, ImageOf(*picture->second));
    const bool current = page == viewer_.Page();
    painter.setPen(QPen(current ? look.accent : look.line, current ? 3 : 1));
    painter.drawRect(sheet);
    PaintCaption(painter, page, QRect(0, top + kSide, viewport()->width(), kCaption));
  }
}

// "12  A-601" over "FINISH SCHEDULE", as far as they are known.
void PlanThumbnails::PaintCaption(QPainter& painter, int page, const QRect& cell) const {
  const bool current = page == viewer_.Page();
  const SheetTitle title = titleOf ? titleOf(page) : SheetTitle();
  painter.setPen(CurrentLook().text);
  painter.setFont(current ? SectionFont() : PromptFont());
  QString first = QString::number(page);
  if (!title.number.isEmpty()) first += QStringLiteral("  ") + title.number;
  const QRect upper(cell.left(), cell.top(), cell.width(), cell.height() / 2);
  painter.drawText(upper, Qt::AlignCenter, first);
  if (title.name.isEmpty()) return;
  painter.setFont(PromptFont());
  const QRect lower(cell.left() + 2, upper.bottom(), cell.width() - 4, cell.height() / 2);
  const QString name = painter.fontMetrics().elidedText(title.name, Qt::ElideRight, lower.width());
  painter.drawText(lower, Qt::AlignCenter, name);
}

int PlanThumbnails::PageAt(const QPoint& place) const {
  const int page = (place.y() + verticalScrollBar()->value() - kGrid) / CellHeight() + 1;
  return page >= 1 && page <= viewer_.PageCount() ? page : 0;
}

// The whole name, where the column has no room for it.
bool PlanThumbnails::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const int page = PageAt(help->pos());
  const SheetTitle title = page != 0 && titleOf ? titleOf(page) : SheetTitle();
  QToolTip::showText(help->globalPos(), (title.number + QLatin1Char(' ') + title.name).trimmed(),
                     this);
  return true;
}

void PlanThumbnails::mousePressEvent(QMouseEvent* event) {
  const int page = PageAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || page == 0) return;
  desk_.Dispatch([&] { viewer_.TurnPage(page); });
}

ThumbnailsBinding::ThumbnailsBinding(Display& display, Control& control, PlanThumbnails& thumbnails)
    : Binding(display, control, thumbnails) {}

bool ThumbnailsBinding::eventFilter(QObject*, QEvent* event) {
  return TakeCommon(event);
}

}  // namespace tamo
