#include "windows/suggestionview.h"

#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>

#include "program/program.h"
#include "program/suggestions.h"
#include "windows/display.h"
#include "windows/look.h"
#include "windows/roles.h"
#include "windows/stylesheet.h"

namespace tamo {

SuggestionView::SuggestionView(QWidget& window)
    : QFrame(&window), names_(new QListWidget), keys_(new QLabel) {
  GiveRole(*this, Role::Offer);
  GiveSheet(*this, OwnSheet::Offer);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  names_->setFocusPolicy(Qt::NoFocus);
  names_->setFrameShape(QFrame::NoFrame);
  names_->setUniformItemSizes(true);
  names_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  names_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  names_->viewport()->setCursor(Qt::PointingHandCursor);
  names_->setAccessibleName(QStringLiteral("Suggestions"));
  keys_->setText(QStringLiteral("Down and Enter, or End, takes one"));
  keys_->setFont(PromptFont());
  keys_->setContentsMargins(kGrid, 2, kGrid, 2);
  column->addWidget(names_);
  column->addWidget(keys_);
  connect(names_, &QListWidget::itemPressed, this, [this](const QListWidgetItem* item) {
    if (onTake) onTake(names_->row(item));
  });
}

void SuggestionView::SetRows(const QStringList& rows, int walked) {
  QStringList shown;
  for (int i = 0; i < names_->count(); ++i) shown += names_->item(i)->text();
  if (shown != rows) {
    names_->clear();
    names_->addItems(rows);
  }
  names_->setCurrentRow(walked);
}

void SuggestionView::PlaceUnder(const QWidget& field, const QWidget* openList) {
  const QWidget& window = *parentWidget();
  const int row = std::max(names_->sizeHintForRow(0), names_->fontMetrics().height());
  names_->setFixedHeight(names_->count() * row + 2 * names_->frameWidth() + 4);
  const int needed =
      std::max(keys_->sizeHint().width() + 2, names_->sizeHintForColumn(0) + 3 * kGrid);
  QRect place(
      field.mapTo(&window, QPoint(0, field.height())),
      QSize(std::max(field.width(), needed), names_->height() + keys_->sizeHint().height() + 2));
  if (openList != nullptr) place = Beside(openList->geometry(), place, needed);
  place.setWidth(std::min(place.width(), window.width()));
  place.moveLeft(std::clamp(place.x(), 0, window.width() - place.width()));
  const int above = field.mapTo(&window, QPoint()).y() - place.height();
  if (place.bottom() >= window.height() && above >= 0) place.moveTop(above);
  setGeometry(place);
}

// To the right of the list, as far as there is room; else to its left; else over its end.
QRect SuggestionView::Beside(const QRect& list, QRect place, int needed) const {
  constexpr int kLeast = 18 * kGrid;
  const int right = parentWidget()->width() - list.right() - 3;
  place.setWidth(needed);
  place.moveLeft(list.right() + 3);
  if (right >= needed) return place;
  if (list.left() - 2 >= needed) {
    place.moveRight(list.left() - 2);
  } else if (right >= kLeast) {
    place.setWidth(right);
  } else {
    place.moveRight(list.right());
  }
  return place;
}

namespace {

// The form's own list under the field, when it is open.
const QWidget* OpenList(const TextField& field, const Display& display) {
  for (const Control* control : field.Owner().Controls()) {
    const auto* list = dynamic_cast<const OrderedList*>(control);
    if (list == nullptr || list->dropsFrom != &field) continue;
    const Binding* binding = display.Of(*list);
    if (binding != nullptr && binding->Widget().isVisible()) return &binding->Widget();
  }
  return nullptr;
}

}  // namespace

void ShowSuggestions(Program& program, const Display& display, QPointer<SuggestionView>& view) {
  const Suggestions& offer = program.GetSuggestions();
  const TextField* field = offer.Field();
  const Binding* binding = field == nullptr ? nullptr : display.Of(*field);
  if (binding == nullptr || !binding->Widget().isVisible()) {
    if (!view.isNull()) view->hide();
    return;
  }
  QWidget& window = *binding->Widget().window();
  if (view.isNull() || view->parentWidget() != &window) {
    delete view;
    view = new SuggestionView(window);
    view->onTake = [&program](int row) { program.GetSuggestions().Take(row); };
  }
  view->SetRows(offer.Rows(), offer.Walked());
  view->PlaceUnder(binding->Widget(), OpenList(*field, display));
  view->show();
  view->raise();
}

}  // namespace tamo
