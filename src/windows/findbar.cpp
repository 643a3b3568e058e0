#include "windows/findbar.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <utility>

#include "windows/look.h"

namespace tamo {
namespace {

constexpr int kSlice = 5;               // milliseconds
constexpr int kRowsBetweenLooks = 256;  // at the clock

}  // namespace

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
  slices_.setSingleShot(true);
  connect(&slices_, &QTimer::timeout, this, [this] { LookOn(); });
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
  slices_.stop();
  search_ = {};
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
  slices_.stop();
  search_ = {};
  RowsView* list = List();
  const QString text = edit_->text();
  if (list == nullptr || text.isEmpty()) {
    result_->clear();
    return;
  }
  search_.rows = list->Model().Rows();
  search_.text = text;
  search_.step = step;
  search_.left = search_.rows.Count();
  search_.at = row_ < 0 && step < 0 ? search_.rows.Count() : row_;
  LookOn();
}

void FindBar::LookAtNextRow() {
  if (!search_.Looking()) {
    search_.holding += search_.Holds(search_.counted++) ? 1 : 0;
    return;
  }
  const int count = search_.rows.Count();
  search_.at = (search_.at + search_.step + count) % count;
  --search_.left;
  search_.hit = search_.Holds(search_.at);
}

void FindBar::LookOn() {
  QElapsedTimer clock;
  clock.start();
  while (!search_.Done() && clock.elapsed() < kSlice) {
    for (int i = 0; i < kRowsBetweenLooks && !search_.Done(); ++i) LookAtNextRow();
  }
  TellResult();
  if (search_.Done()) {
    search_ = {};  // the rows may be a large report
  } else {
    slices_.start();
  }
}

void FindBar::TellResult() {
  RowsView* list = List();
  if (list == nullptr) return;
  if (search_.hit && !std::exchange(search_.shown, true)) {
    row_ = search_.at;
    list->SetWalked(row_);
  }
  if (search_.Looking()) {
    result_->setText(QStringLiteral("Looking ..."));
  } else if (!search_.hit) {
    result_->setText(QStringLiteral("Not in this report."));
    list->SetWalked(-1);
  } else if (!search_.Done()) {
    result_->setText(QStringLiteral("Line %1; counting ...").arg(row_ + 1));
  } else {
    result_->setText(
        QStringLiteral("Line %1; %2 lines hold it.").arg(row_ + 1).arg(search_.holding));
  }
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
