#pragma once

#include <QTest>
#include <QWidget>

namespace tamo::test {

// Keys and mouse events as a person's: shortcuts and mnemonics see them, too.
inline void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
  QTest::keyClick(&widget, key, held);
}

inline void Type(QWidget& widget, const QString& text) {
  for (const QChar c : text)
    QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

inline void Press(QWidget& widget, QPoint at, Qt::MouseButton button) {
  QTest::mousePress(&widget, button, Qt::NoModifier, at);
}
inline void Release(QWidget& widget, QPoint at, Qt::MouseButton button) {
  QTest::mouseRelease(&widget, button, Qt::NoModifier, at);
}

}  // namespace tamo::test
