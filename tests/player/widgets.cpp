#include "player/widgets.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>

#include "player/trouble.h"

namespace tamo::player {
namespace {

constexpr int kSettleRounds = 4;

struct KeyCode {
  Key::Name name;
  Qt::Key code;
  Qt::KeyboardModifiers held;
  const char* text;
};

constexpr KeyCode kKeyCodes[] = {
    {Key::Name::Enter, Qt::Key_Return, Qt::NoModifier, "\r"},
    {Key::Name::LineFeed, Qt::Key_Return, Qt::ControlModifier, "\n"},
    {Key::Name::Backspace, Qt::Key_Backspace, Qt::NoModifier, "\b"},
    {Key::Name::Delete, Qt::Key_Delete, Qt::NoModifier, "\x7f"},
    {Key::Name::Escape, Qt::Key_Escape, Qt::NoModifier, "\x1b"},
    {Key::Name::Tab, Qt::Key_Tab, Qt::NoModifier, "\t"},
    {Key::Name::BackTab, Qt::Key_Backtab, Qt::ShiftModifier, ""},
    {Key::Name::Space, Qt::Key_Space, Qt::NoModifier, " "},
    {Key::Name::Up, Qt::Key_Up, Qt::NoModifier, ""},
    {Key::Name::Down, Qt::Key_Down, Qt::NoModifier, ""},
    {Key::Name::Left, Qt::Key_Left, Qt::NoModifier, ""},
    {Key::Name::Right, Qt::Key_Right, Qt::NoModifier, ""},
    {Key::Name::End, Qt::Key_End, Qt::NoModifier, ""},
    {Key::Name::TakeBack, Qt::Key_Z, Qt::ControlModifier, "\x1a"},
    {Key::Name::BringBack, Qt::Key_Y, Qt::ControlModifier, "\x19"},
};

void SendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers keys = Qt::NoModifier) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, keys);
  QSpontaneKeyEvent::setSpontaneous(&event);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

void Settle() {
  for (int i = 0; i < kSettleRounds; ++i) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void SendKey(QWidget& widget, const Key& key) {
  for (const KeyCode& code : kKeyCodes) {
    if (code.name != key.name) continue;
    QTest::sendKeyEvent(QTest::Click, &widget, code.code, QString::fromLatin1(code.text),
                        code.held);
    return;
  }
  SendTyped(widget, QString(key.character));
}

void SendTyped(QWidget& widget, const QString& character) {
  const QChar c = character[0];
  const Qt::Key code =
      c.unicode() < 256 ? static_cast<Qt::Key>(c.toUpper().unicode()) : Qt::Key_unknown;
  QTest::sendKeyEvent(QTest::Click, &widget, code, character,
                      c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

void SendPress(QWidget& widget, QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  SendMouse(widget, QEvent::MouseButtonPress, at, button, button, keys);
}
void SendMove(QWidget& widget, QPointF at, Qt::MouseButtons held, Qt::KeyboardModifiers keys) {
  SendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, held, keys);
}
void SendRelease(QWidget& widget, QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, keys);
}

void SendClick(QWidget& widget, QPointF at, Qt::MouseButton button) {
  SendPress(widget, at, button);
  SendRelease(widget, at, button);
}

void SendDoubleClick(QWidget& widget, QPointF at) {
  SendClick(widget, at, Qt::LeftButton);
  SendMouse(widget, QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
  SendRelease(widget, at, Qt::LeftButton);
}

QPointF OpenPlace(QWidget& widget, const QRect& area, const QString& name, Spot spot) {
  QWidget* window = widget.window();
  const QRect seen = area.intersected(widget.rect());
  if (!widget.isVisible() || seen.isEmpty())
    Fail(QStringLiteral("a person can't see %1 in its window").arg(name));
  const int inset = 3;
  const int box = 9;  // the middle of a check box at the widget's left edge
  const QPoint start(seen.left() + box, seen.center().y());
  const QPoint end = seen.bottomRight() - QPoint(inset, inset);
  const QPoint first = spot == Spot::Start ? start : spot == Spot::End ? end : seen.center();
  const QPoint places[] = {first, seen.center(), start,
                           QPoint(seen.right() - inset, seen.center().y()),
                           QPoint(seen.left() + inset, seen.top() + inset)};
  QWidget* over = nullptr;
  for (const QPoint& place : places) {
    over = window->childAt(widget.mapTo(window, place));
    if (over == &widget || (over != nullptr && widget.isAncestorOf(over)) ||
        (over == nullptr && &widget == window))
      return place;
  }
  Fail(over == nullptr ? QStringLiteral("%1 lies outside its window").arg(name)
                       : QStringLiteral("a person can't click %1: %2 covers it")
                             .arg(name, over->accessibleName().isEmpty() ? over->objectName()
                                                                         : over->accessibleName()));
}

namespace {

// Whether the underlined letter leads to this entry of the bar alone.
bool OwnLetter(const QMenuBar& bar, const QAction& entry) {
  const QKeySequence letter = QKeySequence::mnemonic(entry.text());
  if (letter.isEmpty()) return false;
  const auto shares = [&](const QAction* other) {
    return other != &entry && other->isVisible() && QKeySequence::mnemonic(other->text()) == letter;
  };
  const QList<QAction*> entries = bar.actions();
  return std::none_of(entries.begin(), entries.end(), shares);
}

// Opens the first menu of the way, or chooses the entry that stands on the bar itself. What the
// window is too narrow to show is chosen by its underlined letter, or with the arrows and Enter
// when two entries share the letter.
void StartOnBar(QMenuBar& bar, QAction& first) {
  const QRect place = bar.actionGeometry(&first);
  if (!place.isEmpty() && bar.rect().contains(place.center())) {
    SendMove(bar, place.center(), Qt::NoButton);
    SendClick(bar, place.center(), Qt::LeftButton);
  } else if (OwnLetter(bar, first)) {
    QTest::keySequence(&bar, QKeySequence::mnemonic(first.text()));
  } else {
    bar.setActiveAction(&first);
    if (first.menu() == nullptr) QTest::keyClick(&bar, Qt::Key_Return);
  }
  Settle();
}

}  // namespace

void ChooseAction(QWidget& window, QAction& action, const QList<QAction*>& above) {
  bool chosen = false;
  const auto heard =
      QObject::connect(&action, &QAction::triggered, &action, [&chosen] { chosen = true; });
  QList<QAction*> way = above;
  way += &action;
  QMenu* popup = way.first()->menu();
  if (popup != nullptr && QApplication::activePopupWidget() == popup) {
    way.removeFirst();
  } else if (auto* bar = window.findChild<QMenuBar*>();
             bar != nullptr && bar->actions().contains(way.first())) {
    StartOnBar(*bar, *way.takeFirst());
  } else {
    // A pop-up entry that no right click has brought up.
    action.trigger();
    way.clear();
  }
  for (QAction* next : way) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr || !menu->actions().contains(next)) break;
    menu->setActiveAction(next);
    if (next->menu() == nullptr || !next->menu()->isVisible())
      QTest::keyClick(menu, Qt::Key_Return);
    Settle();
  }
  while (QWidget* left = QApplication::activePopupWidget()) left->close();
  QObject::disconnect(heard);
  if (!chosen) Fail(QStringLiteral("the menus do not lead to the entry \"%1\"").arg(action.text()));
}

}  // namespace tamo::player
