#include "windows/stylesheet.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr char kSheet[] = R"(
QLineEdit, QPlainTextEdit, RowsView, QListView {
  background: @base; color: @text; border: 1px solid @line; border-radius: 3px;
  selection-background-color: @accent; selection-color: @onAccent;
}
QLineEdit { padding: 3px 6px; min-height: 22px; max-height: 22px; }
QLineEdit[role="figure"] { min-height: 40px; max-height: 40px; }
QLineEdit:read-only { background: @window; border-color: @faint; }
QLineEdit:focus { border: 2px solid @accent; padding: 2px 5px; background: @ground; }
QPlainTextEdit { padding: 4px; }
QPlainTextEdit:read-only { background: @window; border-color: @faint; }
QPlainTextEdit:focus { border: 2px solid @accent; padding: 3px; background: @ground; }
QListView { padding: 1px; }
QListView:focus { border: 2px solid @accent; padding: 0px; }
QListView[role="drop"] { border: 1px solid @accent; }
QFrame[role="offer"] { background: @base; border: 1px solid @accent; border-radius: 3px; }
QFrame[role="offer"] QListView { border: none; border-radius: 0px; }
QFrame[role="offer"] QListView::item { padding: 2px 6px; color: @text; }
QFrame[role="offer"] QListView::item:hover { background: @ground; }
QFrame[role="offer"] QListView::item:selected { background: @accent; color: @onAccent; }
QFrame[role="offer"] QLabel { border-top: 1px solid @faint; }
QPushButton {
  min-height: 22px; padding: 3px 14px; border: 1px solid @line; border-radius: 3px;
  background: @button; color: @text;
}
QPushButton:hover { border-color: @accent; }
QPushButton:pressed { background: @ground; }
QPushButton:focus { border: 2px solid @accent; padding: 2px 13px; background: @ground; }
QPushButton:disabled { color: @quiet; border-color: @faint; }
QToolButton {
  border: 1px solid @line; border-radius: 3px; padding: 3px 7px; background: @button;
  color: @text;
}
QToolButton:hover { border-color: @accent; }
QToolButton::menu-button { border: none; width: 16px; }
QToolButton[popupMode="1"] { padding-right: 18px; }
QToolButton:checked { border: 2px solid @accent; padding: 2px 6px; background: @ground; }
QToolButton[popupMode="1"]:checked { padding-right: 17px; }
QCheckBox, QRadioButton { padding: 3px; border: 2px solid transparent; border-radius: 3px; }
QCheckBox:focus, QRadioButton:focus { border-color: @accent; background: @ground; }
QLabel[role="prompt"], QLabel[role="quiet"] { color: @quiet; }
QLabel[role="title"] { color: @text; }
QLabel[role="tag"] {
  background: @notice; color: @text; border: 1px solid @noticeLine; border-radius: 3px;
  padding: 2px 6px;
}
QFrame[role="rule"] { background: @faint; border: none; max-height: 1px; min-height: 1px; }
QFrame[role="panel"] { background: @base; border: 1px solid @line; border-radius: 4px; }
QFrame[role="foot"] { background: @window; border: none; border-top: 1px solid @faint; }
QFrame[role="notice"] { background: @notice; border: none; border-top: 2px solid @noticeLine; }
QFrame[role="notice"] QLabel { color: @text; background: transparent; }
QMenuBar { background: @window; color: @text; padding: 2px 8px; }
QMenuBar::item { padding: 5px 5px; margin-right: 1px; border-radius: 3px; background: transparent; }
QToolButton#qt_menubar_ext_button { border: none; padding: 0px; background: @window; }
QToolButton#qt_menubar_ext_button:hover { background: @ground; }
QMenuBar::item:selected { background: @ground; border: 1px solid @accent; padding: 4px 4px; }
QMenu { background: @base; color: @text; border: 1px solid @line; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 20px; border-radius: 3px; }
QMenu::item:selected { background: @accent; color: @onAccent; }
QMenu::item:disabled { color: @quiet; }
QToolTip { background: @base; color: @text; border: 1px solid @line; padding: 4px; }
)";

}  // namespace

QString StyleSheetOf(const Look& look) {
  const QPalette palette = look.Palette();
  std::pair<const char*, QColor> names[] = {
      {"@noticeLine", look.noticeLine},
      {"@notice", look.notice},
      {"@accent", look.accent},
      {"@ground", look.accentGround},
      {"@base", look.base},
      {"@window", look.window},
      {"@text", look.text},
      {"@quiet", look.quiet},
      {"@line", look.line},
      {"@faint", look.faintLine},
      {"@button", palette.color(QPalette::Button)},
      {"@onAccent", palette.color(QPalette::HighlightedText)}};
  // Longer names first, so that no name is read as the beginning of another.
  std::sort(std::begin(names), std::end(names), [](const auto& one, const auto& other) {
    return qstrlen(one.first) > qstrlen(other.first);
  });
  QString sheet = QLatin1String(kSheet);
  for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour.name());
  return sheet;
}

}  // namespace tamo
