#include "windows/stylesheet.h"

#include <QMenu>
#include <QVariant>
#include <algorithm>

namespace tamo {
namespace {

constexpr char kProperty[] = "sheet";

constexpr char kMenu[] = R"(
QMenu { background: @base; color: @text; border: 1px solid @line; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 20px; border-radius: 3px; }
QMenu::item:selected { background: @accent; color: @onAccent; }
QMenu::item:disabled { color: @quiet; }
)";

constexpr char kTools[] = R"(
QToolButton {
  border: 1px solid @line; border-radius: 3px; padding: 3px 7px; background: @button;
  color: @text;
}
QToolButton:hover { border-color: @accent; }
QToolButton::menu-button { border: none; width: 16px; }
QToolButton[popupMode="1"] { padding-right: 18px; }
QToolButton:checked { border: 2px solid @accent; padding: 2px 6px; background: @ground; }
QToolButton[popupMode="1"]:checked { padding-right: 17px; }
)";

constexpr char kOffer[] = R"(
QListView {
  background: @base; color: @text; border: none; border-radius: 0px; padding: 1px;
  selection-background-color: @accent; selection-color: @onAccent;
}
QListView::item { padding: 2px 6px; color: @text; }
QListView::item:hover { background: @ground; }
QListView::item:selected { background: @accent; color: @onAccent; }
QLabel { border-top: 1px solid @faint; color: @quiet; }
)";

QString InColours(const char* text, const Look& look) {
  const QPalette palette = look.Palette();
  std::pair<const char*, QColor> names[] = {
      {"@accent", look.accent},
      {"@ground", look.accentGround},
      {"@base", look.base},
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
  QString sheet = QLatin1String(text);
  for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour.name());
  return sheet;
}

const char* TextOf(const QWidget& widget) {
  if (qobject_cast<const QMenu*>(&widget) != nullptr) return kMenu;
  switch (static_cast<OwnSheet>(widget.property(kProperty).toInt())) {
    case OwnSheet::Tools:
      return kTools;
    case OwnSheet::Offer:
      return kOffer;
    case OwnSheet::None:
      break;
  }
  return nullptr;
}

}  // namespace

void GiveSheet(QWidget& widget, OwnSheet sheet) {
  widget.setProperty(kProperty, static_cast<int>(sheet));
}

void PutOnSheet(QWidget& widget, const Look& look) {
  const char* const text = TextOf(widget);
  if (text == nullptr) return;
  const QString sheet = InColours(text, look);
  if (widget.styleSheet() != sheet) widget.setStyleSheet(sheet);
}

}  // namespace tamo
