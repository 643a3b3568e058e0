#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <vector>

#include "common/disk.h"
#include "windows/display.h"
#include "windows/menubinder.h"

class QDragEnterEvent;
class QDropEvent;
class QMimeData;

namespace tamo {

// The first PDF file among what is being dragged, "" for none.
QString DroppedPlan(const QMimeData* data);

// The strip across the foot of every window while something is not on the disk yet: what, why, and
// that a click tries again.
class NoticeStrip : public QFrame {
 public:
  explicit NoticeStrip(QWidget* parent);
  void SetText(const QString& text);
  QString Text() const { return text_->text(); }
  std::function<void()> onClick;

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QLabel* text_;
};

// A text in the foot of a window, shortened where there is little room.
QLabel* NewFootLabel(const QString& text = {});

// The window of one form: its menu bar, what the form's own file lays out in Body(), the strip of
// saves that are not on the disk, and the status line.
class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, Display& display);

  Form& GetForm() const { return form_; }
  MenuBinder& Menus() { return menus_; }
  // Filled once by the form's own layout; margins of two grid steps.
  QVBoxLayout& Body() { return *body_; }
  // A body that goes to the window's edges.
  void UseWholeWindow();

  // The status line stands only in windows that show one.
  QHBoxLayout& StatusLine();
  void SetStatus(const QString& project, bool locked, const QString& folder);
  NoticeStrip& Notice() const { return *notice_; }
  // A window as narrow as its menus, on a screen that has the room, no narrower.
  void KeepMenusInSight();
  // Shows the strip, or puts it away; the window grows by it, and shrinks again.
  void SetNotice(const QString& text);

  // The size of a window that has never been shown; made larger where its contents need it.
  QSize firstSize = {640, 480};

  // Called after each sync while the window is shown, for what no control tells.
  std::vector<std::function<void()>> onSynced;

  // A PDF file was dropped on the window.
  std::function<void(const QString& path)> onPlanDropped;

  // Names of controls that the layout asked for and the form does not have.
  QStringList missing;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  // Tab walks as the form says, from wherever it is pressed.
  bool focusNextPrevChild(bool next) override;

 private:
  Form& form_;
  Display& display_;
  MenuBinder menus_;
  QVBoxLayout* body_;
  QVBoxLayout* whole_;
  QFrame* statusFrame_ = nullptr;
  QHBoxLayout* status_ = nullptr;
  QLabel* projectLabel_ = nullptr;
  QLabel* lockLabel_ = nullptr;
  QLabel* folderLabel_ = nullptr;
  NoticeStrip* notice_;
  int heightWithoutNotice_ = 0;
  QSpacerItem* menuWidth_ = nullptr;  // as wide as the menu bar
};

}  // namespace tamo
