#pragma once

#include <QAction>
#include <QPointF>
#include <QRect>

#include "plans/mark.h"
#include "program/program.h"
#include "windows/formwindow.h"
#include "windows/listbinding.h"
#include "windows/plancanvas.h"
#include "windows/windowkeeper.h"

namespace tamo::test {

// The windows with what a test asks of them: which widget stands for which control, and where its
// rows are.
class WindowProbe : public WindowKeeper {
 public:
  using WindowKeeper::Offer;
  using WindowKeeper::WindowKeeper;

  // The widget of a control: QLineEdit or QPlainTextEdit for a field, RowsView (a QListView) for a
  // list, QLabel, QPushButton, QCheckBox, QRadioButton, SwatchPatch, QSlider, BrowserView,
  // PlanCanvas. nullptr for a control that only holds data and has no widget.
  QWidget* WidgetOf(const Control& control) {
    Binding* binding = BindingOf(control);
    return binding == nullptr ? nullptr : &binding->Widget();
  }
  // The widget that takes the mouse events of a control: a list's viewport, else the widget itself.
  QWidget* ClickTarget(const Control& control) {
    Binding* binding = BindingOf(control);
    return binding == nullptr ? nullptr : &binding->ClickTarget();
  }
  QWidget* WindowOf(const Form& form) { return &WindowKeeper::WindowOf(form); }
  // The action of a menu or pop-up entry; an entry that has entries below it has the action of its
  // QMenu. nullptr when there is none.
  QAction* ActionOf(const MenuEntry& entry) {
    return WindowKeeper::WindowOf(entry.Owner()).Menus().ActionOf(entry);
  }
  // The row of a list, in coordinates of ClickTarget(list); it is scrolled into view first. Empty
  // when there is no such row.
  QRect RowRect(const OrderedList& list, int row) {
    ListBinding* binding = ListOf(list);
    if (binding == nullptr || row < 0 || row >= list.Count()) return {};
    RowsView& view = binding->View();
    const QModelIndex index = view.Model().index(row);
    const QRect rect = view.visualRect(index);
    if (rect.isEmpty() || !view.viewport()->rect().contains(rect.center())) view.scrollTo(index);
    return view.visualRect(index);
  }
  QRect TickRect(const CheckList& list, int row) {
    if (RowRect(list, row).isEmpty()) return {};
    return ListOf(list)->View().TickRect(row);
  }
  // Scrolls as a user does who drags the bar until `row` is the first visible row (or the last page
  // is in sight).
  void DragTo(const OrderedList& list, int row) {
    if (ListBinding* binding = ListOf(list)) binding->DragTo(row);
  }
  // Chooses a folder or file in a browser as a user does who went there, whatever it shows now.
  void PickPath(FileBrowser& browser, const QString& path, bool twice) {
    WindowKeeper::WindowOf(browser.Owner());
    GetProgram().GetDesk().Pick(browser, path, twice);
  }
  // The strip of saves that are not on the disk, in the window of `form`; hidden when all is saved.
  QWidget* NoticeOf(const Form& form) { return &WindowKeeper::WindowOf(form).Notice(); }
  // The plan's widget and where a place of the current page stands in it; it is scrolled into view
  // first, which raises no scrolled event.
  QWidget* Plan() {
    Form* ost = GetProgram().FindForm(QStringLiteral("OST"));
    return ost == nullptr ? nullptr : FindPlanCanvas(WindowKeeper::WindowOf(*ost));
  }
  QPointF PlanPlace(PagePoint at) {
    auto* canvas = dynamic_cast<PlanCanvas*>(Plan());
    return canvas == nullptr ? QPointF() : canvas->PlaceInView(at);
  }

 private:
  Binding* BindingOf(const Control& control) {
    WindowKeeper::WindowOf(control.Owner());
    return GetDisplay().Of(control);
  }
  ListBinding* ListOf(const OrderedList& list) {
    return dynamic_cast<ListBinding*>(BindingOf(list));
  }
};

}  // namespace tamo::test
