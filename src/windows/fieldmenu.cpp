#include "windows/fieldmenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

namespace tamo {
namespace {

struct State {
  bool selected;
  bool writable;
  bool any;
};

template <class Edit>
void Fill(QMenu& menu, Edit& edit, const State& state, const std::function<void()>& paste) {
  const QMimeData* held = QGuiApplication::clipboard()->mimeData();
  const bool text = held != nullptr && held->hasText();
  const auto add = [&](const char* caption, QKeySequence::StandardKey key, bool can,
                       const std::function<void()>& action) {
    QAction* entry = menu.addAction(QLatin1String(caption));
    entry->setShortcut(key);
    entry->setEnabled(can);
    QObject::connect(entry, &QAction::triggered, &edit, action);
  };
  add("Cu&t", QKeySequence::Cut, state.selected && state.writable, [&edit] { edit.cut(); });
  add("&Copy", QKeySequence::Copy, state.selected, [&edit] { edit.copy(); });
  add("&Paste", QKeySequence::Paste, state.writable && text, paste);
  menu.addSeparator();
  add("Select &All", QKeySequence::SelectAll, state.any, [&edit] { edit.selectAll(); });
}

}  // namespace

void ShowFieldMenu(QWidget& field, const QPoint& place, const std::function<void()>& paste) {
  auto* menu = new QMenu(&field);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* line = qobject_cast<QLineEdit*>(&field)) {
    Fill(*menu, *line,
         {line->hasSelectedText() && line->echoMode() == QLineEdit::Normal, !line->isReadOnly(),
          !line->text().isEmpty()},
         paste);
  } else if (auto* text = qobject_cast<QPlainTextEdit*>(&field)) {
    Fill(*menu, *text,
         {text->textCursor().hasSelection(), !text->isReadOnly(), !text->document()->isEmpty()},
         paste);
  }
  menu->popup(place);
}

}  // namespace tamo
