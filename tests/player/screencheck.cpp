#include "player/screencheck.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "common/form.h"
#include "player/caret.h"
#include "player/values.h"
#include "windows/browserview.h"
#include "windows/swatchpatch.h"

namespace tamo::player {
namespace {

// A drop list without rows would be an empty box: it stays away.
bool OnScreen(const Control& control) {
  const auto* list = dynamic_cast<const OrderedList*>(&control);
  const bool nothing = list != nullptr && list->dropsFrom != nullptr && list->Empty();
  return control.ShownWithFrames() && !nothing;
}

QString Differs(const QString& name, const char* what, const QString& form, const QString& screen) {
  if (form == screen) return {};
  return QStringLiteral("%1 differs on the screen, %2: the form has \"%3\", the window \"%4\"")
      .arg(name, QLatin1String(what), Shown(form), Shown(screen));
}

QString CheckField(const TextField& field, QWidget& widget) {
  QString text;
  QString selected;
  if (const auto* line = qobject_cast<QLineEdit*>(&widget)) {
    text = line->text();
    selected = line->selectedText();
  } else if (const auto* area = qobject_cast<QPlainTextEdit*>(&widget)) {
    text = area->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    selected = area->textCursor().selectedText().replace(QChar(0x2029), QStringLiteral("\r\n"));
  } else {
    return {};
  }
  const QString wrong = Differs(field.FullName(), "its text", field.Text(), text);
  if (!wrong.isEmpty() || !field.HasFocus()) return wrong;
  return Differs(field.FullName(), "its selected text", field.SelectedText(), selected);
}

QString CheckRows(const OrderedList& list, QWidget& widget) {
  const auto* view = qobject_cast<QAbstractItemView*>(&widget);
  if (view == nullptr || view->model() == nullptr) return {};
  const QAbstractItemModel& model = *view->model();
  if (model.rowCount() != list.Count())
    return Differs(list.FullName(), "its rows", QString::number(list.Count()),
                   QString::number(model.rowCount()));
  const auto* ticks = dynamic_cast<const CheckList*>(&list);
  for (int row = 0; row < list.Count(); ++row) {
    const QModelIndex at = model.index(row, 0);
    const QString wrong = Differs(list.FullName(), "a row", list.Row(row), at.data().toString());
    if (!wrong.isEmpty()) return wrong;
    if (ticks == nullptr) continue;
    const bool ticked = at.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    if (ticked != ticks->Ticked(row))
      return Differs(list.FullName(), "a tick", TrueOrFalse(!ticked), TrueOrFalse(ticked));
  }
  const QModelIndexList chosen = view->selectionModel() == nullptr
                                     ? QModelIndexList()
                                     : view->selectionModel()->selectedRows();
  const int index = chosen.isEmpty() ? -1 : chosen.first().row();
  return Differs(list.FullName(), "the selected row", QString::number(list.Index()),
                 QString::number(index));
}

QString CheckCaption(const Captioned& control, QWidget& widget) {
  if (const auto* label = qobject_cast<QLabel*>(&widget)) {
    QString text = label->text();
    if (label->buddy() != nullptr) text.replace(QLatin1String("&&"), QLatin1String("&"));
    return Differs(control.FullName(), "its caption", control.Caption(), text);
  }
  const auto* button = qobject_cast<QAbstractButton*>(&widget);
  if (button == nullptr) return {};
  QString wrong = Differs(control.FullName(), "its caption", control.Caption(), button->text());
  if (!wrong.isEmpty() || !button->isCheckable()) return wrong;
  if (const auto* box = dynamic_cast<const CheckBox*>(&control))
    wrong = Differs(control.FullName(), "its tick", TrueOrFalse(box->Value() != 0),
                    TrueOrFalse(button->isChecked()));
  if (const auto* option = dynamic_cast<const Option*>(&control))
    wrong = Differs(control.FullName(), "its choice", TrueOrFalse(option->Selected()),
                    TrueOrFalse(button->isChecked()));
  return wrong;
}

QString CheckSwatch(const Swatch& swatch, QWidget& widget) {
  const auto* patch = dynamic_cast<const SwatchPatch*>(&widget);
  if (patch == nullptr) return {};
  QString wrong = Differs(swatch.FullName(), "its colour", swatch.Colour(), patch->Colour());
  if (wrong.isEmpty())
    wrong = Differs(swatch.FullName(), "its width", QString::number(swatch.Width()),
                    QString::number(patch->LineWidth()));
  return wrong.isEmpty()
             ? Differs(swatch.FullName(), "its caption", swatch.Caption(), patch->Caption())
             : wrong;
}

QString CheckBrowser(const FileBrowser& browser, const QWidget& widget) {
  const auto* view = dynamic_cast<const BrowserView*>(&widget);
  if (view == nullptr || browser.GetKind() != FileBrowser::Kind::File) return {};
  QStringList rows;
  for (int row = 0; row < view->Rows().count(); ++row) rows += view->Rows().item(row)->text();
  if (!rows.contains(browser.File())) return {};
  const QListWidgetItem* chosen = view->Rows().currentItem();
  return Differs(browser.FullName(), "the picked file", browser.File(),
                 chosen == nullptr ? QString() : chosen->text());
}

QString CheckControl(const Control& control, QWidget& widget, QWidget& window) {
  const QString name = control.FullName();
  QString wrong = Differs(name, "shown", TrueOrFalse(OnScreen(control)),
                          TrueOrFalse(widget.isVisibleTo(&window)));
  if (wrong.isEmpty())
    wrong = Differs(name, "enabled", TrueOrFalse(control.Enabled()),
                    TrueOrFalse(widget.isEnabledTo(&window)));
  if (!wrong.isEmpty() || !OnScreen(control)) return wrong;
  if (const auto* field = dynamic_cast<const TextField*>(&control))
    return CheckField(*field, widget);
  if (const auto* list = dynamic_cast<const OrderedList*>(&control))
    return CheckRows(*list, widget);
  if (const auto* swatch = dynamic_cast<const Swatch*>(&control))
    return CheckSwatch(*swatch, widget);
  if (const auto* bar = dynamic_cast<const ScrollBar*>(&control)) {
    const auto* slider = qobject_cast<const QAbstractSlider*>(&widget);
    return slider == nullptr ? QString()
                             : Differs(name, "its value", QString::number(bar->Value()),
                                       QString::number(slider->value()));
  }
  if (const auto* browser = dynamic_cast<const FileBrowser*>(&control))
    return CheckBrowser(*browser, widget);
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control))
    return CheckCaption(*captioned, widget);
  return {};
}

QString CheckMenus(test::WindowProbe& keeper, const Form& form) {
  for (const MenuEntry* entry : form.Menus()) {
    const QAction* action = keeper.ActionOf(*entry);
    if (action == nullptr || entry->IsPopup()) continue;
    QString wrong = Differs(entry->FullName(), "shown", TrueOrFalse(entry->Shown()),
                            TrueOrFalse(action->isVisible()));
    if (wrong.isEmpty() && entry->Shown())
      wrong = Differs(entry->FullName(), "its caption", entry->Caption(), action->text());
    if (wrong.isEmpty() && entry->Shown())
      wrong = Differs(entry->FullName(), "enabled", TrueOrFalse(entry->Enabled()),
                      TrueOrFalse(action->isEnabled()));
    if (!wrong.isEmpty()) return wrong;
  }
  return {};
}

QString CheckForm(test::WindowProbe& keeper, const Form& form) {
  QWidget* window = keeper.WindowOf(form);
  if (window == nullptr)
    return form.Visible() ? QStringLiteral("%1 has no window").arg(form.Name()) : QString();
  QString wrong = Differs(form.Name(), "visible", TrueOrFalse(form.Visible()),
                          TrueOrFalse(window->isVisible()));
  if (!wrong.isEmpty() || !form.Visible()) return wrong;
  // What the form is about stands behind its caption.
  if (!window->windowTitle().startsWith(form.Caption() + QStringLiteral(" - ")))
    wrong = Differs(form.Name(), "its caption", form.Caption(), window->windowTitle());
  for (const Control* control : form.Controls()) {
    if (!wrong.isEmpty()) return wrong;
    if (QWidget* widget = keeper.WidgetOf(*control))
      wrong = CheckControl(*control, *widget, *window);
  }
  return wrong.isEmpty() ? CheckMenus(keeper, form) : wrong;
}

QString CheckNotice(test::WindowProbe& keeper, const Form& form, const QString& notice) {
  const QWidget* strip = keeper.NoticeOf(form);
  if (strip == nullptr) return {};
  const QString shown = strip->isVisible() ? strip->accessibleName() : QString();
  return Differs(form.Name(), "its notice of what is not saved", notice, shown);
}

QString CheckFocus(test::WindowProbe& keeper, Desk& desk) {
  const Form* active = desk.Active();
  if (active == nullptr || QApplication::activePopupWidget() != nullptr) return {};
  const QWidget* window = keeper.WindowOf(*active);
  if (QApplication::activeWindow() != window)
    return QStringLiteral("the window of %1 is not the active one").arg(active->Name());
  const Control* focused = desk.Focused();
  const QWidget* wanted = focused == nullptr ? nullptr : keeper.WidgetOf(*focused);
  const QWidget* found = QApplication::focusWidget();
  if (wanted == nullptr || wanted == found || (found != nullptr && wanted->isAncestorOf(found)))
    return {};
  return QStringLiteral("%1 has the focus, but on the screen it is elsewhere (%2)")
      .arg(focused->FullName(), found == nullptr ? QStringLiteral("nowhere") : found->objectName());
}

}  // namespace

QString FirstDifference(test::WindowProbe& keeper, Desk& desk, const QString& notice, bool front) {
  for (const Form* form : desk.Forms()) {
    if (form->Controls().empty() && form->Menus().empty() && !form->Visible()) continue;
    QString wrong = CheckForm(keeper, *form);
    if (wrong.isEmpty() && form->Visible()) wrong = CheckNotice(keeper, *form, notice);
    if (!wrong.isEmpty()) return wrong;
  }
  return front ? CheckFocus(keeper, desk) : QString();
}

}  // namespace tamo::player
