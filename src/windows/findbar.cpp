#include "windows/findbar.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <utility>

#include "windows/look.h"
#include "windows/roles.h"

namespace tamo {
namespace {

constexpr int kSlice = 5;               // milliseconds
constexpr int kRowsBetweenLooks = 256;  // at the clock
constexpr int kPause = 200;             // milliseconds between two counts of rows that come in

}  // namespace

FindBar::FindBar(std::vector<std::unique_ptr<FindPlace>> places, Display& display,
                 const QString& what)
    : places_(std::move(places)), display_(display), edit_(new QLineEdit), result_(new QLabel) {
  setFocusPolicy(Qt::TabFocus);
  setProperty(kOwnFocus, true);
  setAccessibleName(QStringLiteral("Places that were found"));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(kGrid);
  auto* caption = new QLabel(QStringLiteral("Find:"));
  caption->setBuddy(edit_);
  edit_->setProperty(kOwnFocus, true);
  edit_->setAccessibleName(QStringLiteral("Find in ") + what);
  edit_->setMaximumWidth(40 * kGrid);
  edit_->installEventFilter(this);
  result_->setObjectName(QStringLiteral("FindResult"));
  result_->setFont(PromptFont());
  MakeQuiet(*result_);
  line->addWidget(caption);
  line->addWidget(edit_);
  line->addWidget(result_, 1);
  MakeButtons();
  connect(edit_, &QLineEdit::textEdited, this, [this] { TextChanged(); });
  slices_.setSingleShot(true);
  connect(&slices_, &QTimer::timeout, this, [this] { LookOn(); });
  for (const auto& place : places_) place->onMore = [this] { LookAtMore(); };
  hide();
}

void FindBar::MakeButtons() {
  const std::pair<const char*, int> steps[] = {{"Previous", -1}, {"Next", 1}};
  for (const auto& [text, step] : steps) {
    auto* button = new QPushButton(QLatin1String(text));
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, step = step] { Go(step); });
    layout()->addWidget(button);
  }
}

FindPlace* FindBar::Place() const {
  for (const auto& place : places_) {
    if (place->Visible()) return place.get();
  }
  return nullptr;
}

void FindBar::OpenByKey(QWidget& window) {
  auto* keys = new QShortcut(QKeySequence(QKeySequence::Find), &window);
  connect(keys, &QShortcut::activated, this, [this] { Open(); });
}

void FindBar::Open() {
  if (beforeOpen) beforeOpen();
  place_ = Place();
  if (place_ == nullptr) return;
  row_ = -1;
  show();
  edit_->setFocus(Qt::ShortcutFocusReason);
  edit_->selectAll();
  TextChanged();
}

void FindBar::Close() {
  slices_.stop();
  search_ = {};
  for (const auto& place : places_) {
    place->Mark(QString());
    place->GoTo(-1);
  }
  hide();
  display_.RefocusLater();
}

// What was found is taken, and the bar has done its work.
void FindBar::Choose() {
  FindPlace* place = Place();
  const int row = row_;
  if (place == nullptr || row < 0) return;
  Close();
  place->Choose(row);
}

void FindBar::TextChanged() {
  row_ = -1;
  for (const auto& place : places_) place->Mark(edit_->text());
  Go(1);
}

void FindBar::Go(int step) {
  slices_.stop();
  search_ = {};
  FindPlace* place = Place();
  if (place != place_) row_ = -1;
  place_ = place;
  const QString text = edit_->text();
  if (place == nullptr || text.isEmpty()) {
    result_->clear();
    return;
  }
  search_.rows = place->Rows();
  search_.text = text;
  search_.step = step;
  search_.left = search_.rows.Count();
  search_.at = row_ < 0 && step < 0 ? search_.rows.Count() : row_;
  LookOn();
}

// The place that was found stays; the rows that came hold more of them, or the first.
void FindBar::LookAtMore() {
  if (isHidden() || edit_->text().isEmpty()) return;
  more_ = search_.Looking();
  if (more_) return;
  if (row_ < 0) return Go(1);
  const QString text = edit_->text();
  search_ = {};
  search_.rows = place_->Rows();
  search_.text = text;
  search_.at = row_;
  search_.hit = search_.shown = true;
  if (!slices_.isActive()) slices_.start(kPause);
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
    if (std::exchange(more_, false)) LookAtMore();
  } else {
    slices_.start(0);
  }
}

void FindBar::TellResult() {
  if (place_ == nullptr) return;
  if (search_.hit && !std::exchange(search_.shown, true)) {
    row_ = search_.at;
    place_->GoTo(row_);
  }
  QString words;
  if (search_.Looking()) {
    words = QStringLiteral("Looking ...");
  } else if (!search_.hit) {
    words = QStringLiteral("Found nowhere.");
    place_->GoTo(-1);
  } else if (!search_.Done()) {
    words = QStringLiteral("%1; counting ...").arg(place_->Where(row_));
  } else {
    words = QStringLiteral("%1; %2. N: next, Shift+N: before, Esc: close.")
                .arg(place_->Where(row_), place_->Holding(search_.holding));
  }
  const QString rest = place_->Rest();
  result_->setText(rest.isEmpty() ? words : words + QLatin1Char(' ') + rest);
}

bool FindBar::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<const QKeyEvent*>(event);
  const bool back = key->modifiers().testFlag(Qt::ShiftModifier);
  switch (key->key()) {
    case Qt::Key_Escape:
      Close();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!edit_->text().isEmpty()) setFocus(Qt::ShortcutFocusReason);
      Go(back ? -1 : 1);
      return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
      Go(key->key() == Qt::Key_Up ? -1 : 1);
      return true;
    default:
      return false;
  }
}

// The places are walked through; any other letter goes on with the text.
void FindBar::keyPressEvent(QKeyEvent* event) {
  const bool back = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_N:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Go(back ? -1 : 1);
    case Qt::Key_Down:
      return Go(1);
    case Qt::Key_Up:
      return Go(-1);
    case Qt::Key_Space:
      return Choose();
    case Qt::Key_Escape:
      return Close();
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Backspace:
      return edit_->setFocus(Qt::ShortcutFocusReason);
    default:
      event->ignore();
  }
}

}  // namespace tamo
