#include "windows/formwindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QUrl>
#include <algorithm>

#include "windows/bodyarea.h"
#include "windows/look.h"
#include "windows/roles.h"
#include "windows/windowplaces.h"

namespace tamo {
namespace {

// A padlock in the text's colour, sharp at every scale.
class LockSign : public QWidget {
 public:
  LockSign() { setFixedSize(2 * kGrid, 2 * kGrid); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = CurrentLook().text;
    painter.setPen(QPen(ink, 1.8));
    painter.drawArc(QRectF(4.5, 1.5, 7, 9), 0, 180 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRoundedRect(QRectF(2.5, 6.5, 11, 8), 1.5, 1.5);
  }
};

// A line of the foot: where the window is narrow its end is left out, and shown on hover.
class FootLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override { return {4 * kGrid, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QString cut = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    setToolTip(cut == text() ? QString() : text());
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), cut, foregroundRole());
  }
};

}  // namespace

QLabel* NewFootLabel(const QString& text) {
  auto* label = new FootLabel(text);
  label->setTextFormat(Qt::PlainText);
  return label;
}

NoticeStrip::NoticeStrip(QWidget* parent) : QFrame(parent), text_(new QLabel) {
  GiveRole(*this, Role::Notice);
  setCursor(Qt::PointingHandCursor);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
  line->setSpacing(2 * kGrid);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  auto* again = new QPushButton(QStringLiteral("Tr&y again"));
  again->setFocusPolicy(Qt::NoFocus);
  line->addWidget(text_, 1);
  line->addWidget(again);
  connect(again, &QPushButton::clicked, this, [this] {
    if (onClick) onClick();
  });
}

void NoticeStrip::SetText(const QString& text) {
  if (text_->text() != text) {
    text_->setText(text);
    setAccessibleName(text);
  }
  if (isHidden() != text.isEmpty()) setVisible(!text.isEmpty());
}

void NoticeStrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && onClick) onClick();
}

FormWindow::FormWindow(Form& form, Display& display)
    : form_(form),
      display_(display),
      menus_(display, form, *this),
      body_(nullptr),
      whole_(new QVBoxLayout(this)),
      notice_(new NoticeStrip(this)) {
  setObjectName(form.Name());
  whole_->setContentsMargins(0, 0, 0, 0);
  whole_->setSpacing(0);
  if (menus_.Bar() != nullptr) whole_->setMenuBar(menus_.Bar());
  menuWidth_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
  whole_->addItem(menuWidth_);
  auto* page = new BodyPage;
  body_ = new QVBoxLayout(page);
  body_->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
  body_->setSpacing(kGrid);
  auto* area = new BodyArea(page);
  whole_->addWidget(area, 1);
  // What lies over the window goes with its field.
  for (const QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()})
    connect(bar, &QScrollBar::valueChanged, this, [this] { display_.MarkFormDirty(form_); });
  setAcceptDrops(true);
  notice_->hide();
  whole_->addWidget(notice_);
}

void FormWindow::KeepMenusInSight() {
  if (menus_.Bar() == nullptr) return;
  const int wanted = std::min(menus_.Bar()->sizeHint().width(), RoomFor(*this).width());
  if (menuWidth_->sizeHint().width() == wanted) return;
  menuWidth_->changeSize(wanted, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
  whole_->invalidate();
}

void FormWindow::UseWholeWindow() {
  body_->setContentsMargins(0, 0, 0, 0);
  body_->setSpacing(0);
}

QHBoxLayout& FormWindow::StatusLine() {
  if (status_ != nullptr) return *status_;
  statusFrame_ = new QFrame(this);
  GiveRole(*statusFrame_, Role::Foot);
  status_ = new QHBoxLayout(statusFrame_);
  status_->setContentsMargins(2 * kGrid, kGrid / 2, 2 * kGrid, kGrid / 2);
  status_->setSpacing(kGrid);
  whole_->insertWidget(whole_->indexOf(notice_), statusFrame_);
  return *status_;
}

void FormWindow::SetStatus(const QString& project, bool locked, const QString& folder) {
  if (projectLabel_ == nullptr) {
    QHBoxLayout& line = StatusLine();
    projectLabel_ = NewFootLabel();
    lockLabel_ = new QLabel(QStringLiteral("Locked"));
    lockLabel_->setFont(SectionFont());
    auto* sign = new LockSign;
    auto* lock = new QWidget;
    auto* lockLine = new QHBoxLayout(lock);
    lockLine->setContentsMargins(kGrid, 0, 0, 0);
    lockLine->setSpacing(kGrid / 2);
    lockLine->addWidget(sign);
    lockLine->addWidget(lockLabel_);
    folderLabel_ = NewFootLabel();
    MakeQuiet(*folderLabel_);
    line.insertWidget(0, projectLabel_);
    line.insertWidget(1, lock);
    line.insertStretch(2, 1);
    line.addStretch(1);
    line.addWidget(folderLabel_);
  }
  if (projectLabel_->text() != project) projectLabel_->setText(project);
  QWidget* lock = lockLabel_->parentWidget();
  if (lock->isHidden() == locked) lock->setVisible(locked);
  const QString place = QStringLiteral("Data folder: ") + folder;
  if (folderLabel_->text() != place) folderLabel_->setText(place);
}

void FormWindow::SetNotice(const QString& text) {
  if (notice_->Text() == text) return;
  const bool was = !notice_->isHidden();
  if (!was) heightWithoutNotice_ = height();
  notice_->SetText(text);
  layout()->activate();
  if (text.isEmpty()) {
    resize(width(), heightWithoutNotice_);
    return;
  }
  // A large window has room for it; a small one would be cut.
  constexpr int kRoomy = 700;
  const int strip = std::max(notice_->heightForWidth(width()), notice_->sizeHint().height());
  const int wanted = std::min(heightWithoutNotice_ + strip, RoomFor(*this).height());
  resize(width(), std::min(wanted, std::max(heightWithoutNotice_, kRoomy)));
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  display_.GetDesk().CloseBox(form_);
}

QString DroppedPlan(const QMimeData* data) {
  if (data == nullptr) return {};
  for (const QUrl& url : data->urls()) {
    QString path = url.toLocalFile();
    if (path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) return path;
  }
  return {};
}

void FormWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (onPlanDropped && !DroppedPlan(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void FormWindow::dropEvent(QDropEvent* event) {
  const QString plan = DroppedPlan(event->mimeData());
  if (plan.isEmpty() || !onPlanDropped) return;
  event->acceptProposedAction();
  onPlanDropped(plan);
}

bool FormWindow::focusNextPrevChild(bool next) {
  // A field that goes while it has the focus asks for the next one; the form says which.
  if (!display_.Syncing()) display_.GetDesk().MoveFocus(next);
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (!display_.TakeWindowKey(form_, *event)) QWidget::keyPressEvent(event);
}

}  // namespace tamo
