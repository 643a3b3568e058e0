#include "windows/findbar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>

#include "windows/look.h"

namespace tamo {

FindBar::FindBar(std::vector<RowsView*> lists, Display& display)
    : lists_(std::move(lists)), display_(display), edit_(new QLineEdit), result_(new QLabel) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(kGrid);
  auto* caption = new QLabel(QStringLiteral("Find:"));
  caption->setBuddy(edit_);
  edit_->setProperty(kOwnFocus, true);
  edit_->setAccessibleName(QStringLiteral("Find in the report"));
  edit_->setMaximumWidth(40 * kGrid);
  edit_->installEventFilter(this);
  result_->setFont(PromptFont());
  result_->setProperty("role", QStringLiteral("prompt"));
  line->addWidget(caption);
  line->addWidget(edit_);
  line->addWidget(result_, 1);
  const std::pair<const char*, int> steps[] = {{"Previous", -1}, {"Next", 1}};
  for (const auto& [text, step] : steps) {
    auto* button = new QPushButton(QLatin1String(text));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, step = step] { Go(step); });
    line->addWidget(button);
  }
  connect(edit_, &QLineEdit::textEdited, this, [this] { TextChanged(); });
  hide();
}

RowsView* FindBar::List() const {
  for (RowsView* list : lists_) {
    if (list->isVisible()) return list;
  }
  return nullptr;
}

void FindBar::Open() {
  if (List() == nullptr) return;
  row_ = -1;
  show();
  edit_->setFocus(Qt::ShortcutFocusReason);
  edit_->selectAll();
  TextChanged();
}

void FindBar::Close() {
  for (RowsView* list : lists_) {
    list->SetFound(QString());
    list->SetWalked(-1);
  }
  hide();
  display_.RefocusLater();
}

void FindBar::TextChanged() {
  row_ = -1;
  for (RowsView* list : lists_) list->SetFound(edit_->text());
  Go(1);
}

void FindBar::Go(int step) {
  RowsView* list = List();
  const QString text = edit_->text();
  if (list == nullptr || text.isEmpty()) {
    result_->clear();
    return;
  }
  const ListRows& rows = list->Model().Rows();
  const int count = rows.Count();
  const auto holds = [&](int row) { return rows.At(row).contains(text, Qt::CaseInsensitive); };
  int found = 0;
  for (int row = 0; row < count; ++row) found += holds(row) ? 1 : 0;
  if (found == 0) {
    result_->setText(QStringLiteral("Not in this report."));
    list->SetWalked(-1);
    return;
  }
  int at = row_ < 0 ? (step > 0 ? -1 : count) : row_;
  do {
    at = (at + step + count) % count;
  } while (!holds(at));
  row_ = at;
  list->SetWalked(at);
  result_->setText(QStringLiteral("Line %1; %2 lines hold it.").arg(at + 1).arg(found));
}

bool FindBar::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<const QKeyEvent*>(event);
  if (key->key() == Qt::Key_Escape) {
    Close();
    return true;
  }
  if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
    Go(key->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
    return true;
  }
  return false;
}

}  // namespace tamo
