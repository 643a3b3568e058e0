#include "windows/browserview.h"

#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include "common/paths.h"
#include "windows/look.h"
#include "windows/roles.h"

namespace tamo {
namespace {

QString Above(const QString& folder) {
  const QString above = FolderOf(folder);
  if (above.isEmpty() && !folder.isEmpty()) return QString(PlatformSeparator());
  // The root of a drive keeps its separator.
  return above.endsWith(QLatin1Char(':')) ? above + PlatformSeparator() : above;
}

std::vector<BrowserRow> Drives() {
  std::vector<BrowserRow> rows;
  for (const QFileInfo& drive : QDir::drives()) {
    const QString path = QDir::toNativeSeparators(drive.absoluteFilePath());
    rows.push_back({path, path});
  }
  const QString home = QDir::toNativeSeparators(QDir::homePath());
  rows.push_back({QStringLiteral("Home: ") + home, home});
  return rows;
}

}  // namespace

std::vector<BrowserRow> BrowserRows(Disk& disk, const FileBrowser& browser) {
  if (browser.GetKind() == FileBrowser::Kind::Drive) return Drives();
  const bool folders = browser.GetKind() == FileBrowser::Kind::Folder;
  const QString& folder = browser.Folder();
  std::vector<BrowserRow> rows;
  if (folders && Above(folder) != folder) rows.push_back({QStringLiteral(".."), Above(folder)});
  for (const QString& name : disk.Names(folder)) {
    if (name.startsWith(QLatin1Char('.'))) continue;
    const bool match = browser.Pattern().isEmpty() || QDir::match(browser.Pattern(), name);
    if (!folders && !match) continue;
    const QString path = InFolder(folder, name);
    if (disk.IsFolder(path) == folders) rows.push_back({name, path});
  }
  return rows;
}

BrowserView::BrowserView(FileBrowser::Kind kind, QWidget* parent)
    : QWidget(parent), kind_(kind), folderLabel_(new QLabel), rows_(new QListWidget) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGrid / 2);
  column->addWidget(folderLabel_);
  column->addWidget(rows_);
  folderLabel_->setFont(PromptFont());
  MakeQuiet(*folderLabel_);
  folderLabel_->setTextFormat(Qt::PlainText);
  folderLabel_->setVisible(kind == FileBrowser::Kind::Folder);
  folderLabel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  rows_->setUniformItemSizes(true);
  rows_->setFocusPolicy(Qt::NoFocus);
  setFocusProxy(rows_);
  rows_->setMinimumHeight(8 * kGrid);
  if (kind == FileBrowser::Kind::Drive) rows_->setFixedHeight(7 * kGrid);
}

void BrowserView::Show(const std::vector<BrowserRow>& rows, const QString& folder,
                       const QString& file) {
  const bool other = folder != folder_;
  rows_->clear();
  folder_ = folder;
  for (const BrowserRow& row : rows) {
    auto* item = new QListWidgetItem(row.text, rows_);
    item->setData(Qt::UserRole, row.path);
    if (!file.isEmpty() && row.text == file) rows_->setCurrentItem(item);
  }
  ShowFolder();
  if (other && rows_->currentItem() == nullptr) rows_->scrollToTop();
}

QString BrowserView::PathOf(int row) const {
  const QListWidgetItem* item = rows_->item(row);
  return item == nullptr ? QString() : item->data(Qt::UserRole).toString();
}

void BrowserView::ShowFolder() {
  folderLabel_->setText(QFontMetrics(folderLabel_->font())
                            .elidedText(folder_, Qt::ElideMiddle, folderLabel_->width()));
  folderLabel_->setToolTip(folder_);
}

void BrowserView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowFolder();
}

BrowserBinding::BrowserBinding(Display& display, FileBrowser& browser, BrowserView& view,
                               Disk& disk)
    : Binding(display, browser, view), browser_(browser), view_(view), disk_(disk) {
  view.Rows().installEventFilter(this);
  view.Rows().viewport()->installEventFilter(this);
}

void BrowserBinding::ListAnew() {
  view_.Show(BrowserRows(disk_, browser_), browser_.Folder(), browser_.File());
}

// A folder is listed when it is shown and when another one is chosen: what other programs put there
// meanwhile is seen.
void BrowserBinding::Apply() {
  const bool shown = browser_.ShownWithFrames();
  const QString now = browser_.Folder() + QLatin1Char('\n') + browser_.File();
  if (shown && (!wasShown_ || now != listed_)) {
    listed_ = now;
    ListAnew();
  }
  wasShown_ = shown;
  Binding::Apply();
}

void BrowserBinding::PickRow(int row, bool twice) {
  const QString path = view_.PathOf(row);
  if (path.isEmpty()) return;
  GetDesk().Dispatch([&] {
    if (browser_.takesFocus) GetDesk().Focus(browser_);
    GetDesk().Pick(browser_, path, twice);
  });
}

bool BrowserBinding::TakeMouse(QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  const bool press = event->type() == QEvent::MouseButtonPress;
  const bool twice = event->type() == QEvent::MouseButtonDblClick;
  if ((!press && !twice) || mouse->button() != Qt::LeftButton)
    return event->type() == QEvent::MouseButtonRelease;
  const QListWidgetItem* item = view_.Rows().itemAt(mouse->position().toPoint());
  const int row = item == nullptr ? -1 : view_.Rows().row(item);
  const bool file = browser_.GetKind() == FileBrowser::Kind::File;
  view_.Rows().setCurrentRow(row);
  if (row >= 0 && (file || twice)) {
    PickRow(row, twice);
  } else if (browser_.takesFocus) {
    GetDesk().UserFocus(browser_);
  }
  return true;
}

bool BrowserBinding::TakeKey(QKeyEvent& event) {
  const std::optional<Key> key = KeyOf(event);
  if (!key) return false;
  if (key->Is(Key::Name::Tab) || key->Is(Key::Name::BackTab)) {
    GetDesk().MoveFocus(key->Is(Key::Name::Tab));
    return true;
  }
  if (GetDesk().HandleKey(browser_, *key)) return true;
  if (key->IsEnter()) PickRow(view_.Rows().currentRow(), false);
  if (key->Is(Key::Name::Backspace) && browser_.GetKind() == FileBrowser::Kind::Folder)
    GetDesk().Pick(browser_, Above(browser_.Folder()), false);
  return key->IsEnter() || key->Is(Key::Name::Backspace);
}

bool BrowserBinding::eventFilter(QObject* object, QEvent* event) {
  if (object == view_.Rows().viewport()) return TakeMouse(event);
  if (event->type() == QEvent::KeyPress) return TakeKey(static_cast<QKeyEvent&>(*event));
  if (object == &view_.Rows() && event->type() != QEvent::FocusIn) return false;
  return TakeCommon(event);
}

}  // namespace tamo
