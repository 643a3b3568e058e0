#pragma once

#include <QObject>
#include <QPointF>
#include <QRect>
#include <QString>
#include <map>
#include <memory>

#include "common/control.h"
#include "common/form.h"
#include "plans/mark.h"

class QAction;
class QWidget;

namespace tamo {

class Display;
class FormWindow;
class PlanCanvas;
class PlanPictures;
class Program;

// A window for each form: made when the form is first shown (or first asked for), then shown,
// hidden, raised and activated as the Desk says, never destroyed before the keeper. Windows
// remember nothing but their place and size.
//
// The keeper takes Desk::onSettled, the observers of all controls and forms,
// Files::onPendingChanged and the paint events of the viewer. It must be made before Program::Start
// and be destroyed before the program.
class WindowKeeper : public QObject {
 public:
  // `pictures` paints the plan; without it the sheet is white with its marks. `placesFile` is the
  // file in which places and sizes are kept; empty: nowhere.
  explicit WindowKeeper(Program& program, PlanPictures* pictures = nullptr,
                        const QString& placesFile = {});
  ~WindowKeeper() override;

  // Brings every widget and window to the state of its control and form, at once. It is done by
  // itself after each event of the Desk; after this call nothing is left to do, and what the window
  // system reported about activation has been taken in.
  void SyncNow();

  // --- What stands for what: for tests and for playing scenarios through the windows.
  // The widget of a control: QLineEdit or QPlainTextEdit for a field, RowsView (a QListView) for a
  // list, QLabel, QPushButton, QCheckBox, QRadioButton, SwatchPatch, QSlider, BrowserView,
  // PlanCanvas. nullptr for a control that only holds data and has no widget.
  QWidget* WidgetOf(const Control& control);
  QWidget* WindowOf(const Form& form);
  // The action of a menu or pop-up entry; an entry that has entries below it has the action of its
  // QMenu. nullptr when there is none.
  QAction* ActionOf(const MenuEntry& entry);
  // The row of a list, in coordinates of ClickTarget(list); it is scrolled into view first. Empty
  // when there is no such row.
  QRect RowRect(const OrderedList& list, int row);
  QRect TickRect(const CheckList& list, int row);
  // The widget that takes the mouse events of a control: a list's viewport, else the widget itself.
  QWidget* ClickTarget(const Control& control);
  // Scrolls as a user does who drags the bar until `row` is the first visible row (or the last page
  // is in sight).
  void DragTo(const OrderedList& list, int row);
  // Chooses a folder or file in a browser as a user does who went there, whatever it shows now.
  void PickPath(FileBrowser& browser, const QString& path, bool twice);
  // The strip of saves that are not on the disk, in the window of `form`; hidden when all is saved.
  QWidget* NoticeOf(const Form& form);
  // The plan's widget and where a place of the current page stands in it; it is scrolled into view
  // first, which raises no scrolled event.
  QWidget* Plan();
  QPointF PlanPlace(PagePoint at);

 private:
  struct Parts;
  FormWindow* Window(Form& form);
  void SyncWindows();
  void ShowPopups();
  void EndWindows();
  bool eventFilter(QObject* object, QEvent* event) override;

  std::unique_ptr<Parts> parts_;
};

}  // namespace tamo
