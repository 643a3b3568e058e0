#include "windows/keyspage.h"

#include <QDialog>
#include <QHeaderView>
#include <QShortcut>
#include <QTableWidget>
#include <utility>

#include "program/windowways.h"
#include "windows/look.h"
#include "windows/windowkeys.h"
#include "windows/windowplaces.h"

namespace tamo {
namespace {

struct Row {
  const char* form;  // "" in every window
  const char* keys;
  const char* what;
};

constexpr Row kRows[] = {
    {"RFSForm", "Enter", "On to the next field; in an empty one, back out"},
    {"EstimateForm", "Enter", "On to the next field; in an empty one, back out"},
    {"Pricing", "Enter", "On to the next field; in an empty one, finish"},
    {"Pricing", "Ctrl+F", "Find in the list that is open, or in the materials"},
    {"RFSForm", "Delete", "With the plan behind it: the last mark goes"},
    {"RFSForm", "Ctrl+Z, Ctrl+Y", "Take back the last entry, bring it back"},
    {"EstimateForm", "Ctrl+Z, Ctrl+Y", "Take back the last entry, bring it back"},
    {"RFSForm", "F7", "The marks of the line on the plan; again, the next one"},
    {"EstimateForm", "F7", "The marks of the line on the plan; again, the next one"},
    {"Reports", "Ctrl+F", "Find in the report; N the next, Shift+N the one before"},
    {"Reports", "Ctrl+S", "Save the report as a table or a page"},
    {"Reports", "Ctrl++, Ctrl+-", "Larger and smaller letters"},
    {"Docs", "Ctrl+F", "Find in the text; N the next, Shift+N the one before"},
    {"Tamo", "Ctrl+F", "Find a project; Space opens it"},
    {"Tamo", "Ctrl+Enter", "A new line in the notes"},
    {"OST", "Arrows", "Move the cross hair; with Shift in large steps"},
    {"OST", "Space", "Set a point"},
    {"OST", "Enter", "Back to the field that waits for a length"},
    {"OST", "Escape", "Give up the line in work"},
    {"OST", "Backspace", "Take the last mark away"},
    {"OST", "V, M, C", "Move, measure, count"},
    {"OST", "L, A, R", "Polyline, area, rectangle; Enter ends an outline"},
    {"OST", "K, E", "Cut-out of an area, perimeter"},
    {"OST", "B", "The next two points of an outline make an arc"},
    {"OST", "S, Tab", "Snap to the drawing or not, the next place to snap to"},
    {"OST", "Alt", "Held: no snapping"},
    {"OST", "N, P", "Choose the next mark, the one before; a click chooses, too"},
    {"OST", "Tab, Arrows", "Of the chosen mark: its next point; move it, with Ctrl finely"},
    {"OST", "Delete, Escape", "Take the chosen mark away, let go of it"},
    {"OST", "F2, F6", "Name the chosen mark; the list of the marks"},
    {"OST", "F7", "To the line of the takeoff that the chosen mark was entered into"},
    {"OST", "I", "Find Same: a box around a symbol; then Y yes, N no, A all"},
    {"OST", "+, -, F, W", "Zoom in, zoom out, the whole sheet, its whole width"},
    {"OST", "T", "Turn the sheet"},
    {"OST", "Ctrl+F", "Find text on all sheets; N the next, Shift+N the one before"},
    {"OST", "Ctrl+G", "Go to a sheet by its number, name or page"},
    {"OST", "Ctrl+B", "Bookmarks of the plan, links of the sheet"},
    {"OST", "Ctrl+L", "Layers of the plan"},
    {"OST", "Alt+Left, Alt+Right", "Back from a jump, forward again"},
    {"OST", "Page Up, Page Down", "The sheet before, the next one"},
    {"OST", "Ctrl+Z, Ctrl+Y", "Take back a mark, bring it back"},
    {"", "Down, Up", "Walk through the list under a field; Enter takes a row"},
    {"", "End", "Take the first name that is suggested"},
    {"", "Tab, Shift+Tab", "The next field, the one before"},
    {"", "Escape", "Put a list away"},
    {"", "Ctrl+C, Ctrl+X, Ctrl+V", "Copy, cut, paste in a field"},
    {"", "F1", "The manual at the page of the field"},
    {"", "F8", "What changed since the bid was sent"},
    {"", "Ctrl+P", "Print what is in front"},
    {"", "Ctrl+O", "Open a plan"},
    {"", "Ctrl+/", "This page"}};

QString WithoutSign(QString caption) {
  return caption.remove(QLatin1Char('&')).trimmed();
}

void AddMenuKeys(const FormWindow& window, std::vector<KeyWords>& keys) {
  for (const MenuEntry* entry : window.GetForm().Menus()) {
    const qsizetype sign = entry->Caption().indexOf(QLatin1Char('&'));
    if (entry->Parent() != nullptr || entry->IsPopup() || !entry->Shown() || sign < 0) continue;
    keys.push_back({QStringLiteral("Alt+%1").arg(entry->Caption()[sign + 1].toUpper()),
                    WithoutSign(entry->Caption())});
  }
}

}  // namespace

std::vector<KeyWords> KeysOf(const FormWindow& window) {
  std::vector<KeyWords> keys;
  AddMenuKeys(window, keys);
  for (const Row& row : kRows) {
    if (*row.form == '\0' || window.GetForm().Name() == QLatin1String(row.form))
      keys.push_back({QLatin1String(row.keys), QLatin1String(row.what)});
  }
  int number = 0;
  for (const WindowWay& way : WindowWays())
    keys.push_back({QStringLiteral("Ctrl+%1").arg(++number), QLatin1String(way.name)});
  return keys;
}

namespace {

QTableWidget* TableOf(const std::vector<KeyWords>& keys) {
  auto* table = new QTableWidget(static_cast<int>(keys.size()), 2);
  table->setAccessibleName(QStringLiteral("Keys of the window"));
  table->setHorizontalHeaderLabels({QStringLiteral("Key"), QStringLiteral("What it does")});
  table->verticalHeader()->hide();
  table->horizontalHeader()->setStretchLastSection(true);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table->setShowGrid(false);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  for (int row = 0; row < table->rowCount(); ++row) {
    const KeyWords& own = keys[static_cast<size_t>(row)];
    auto* key = new QTableWidgetItem(own.keys);
    key->setFont(SectionFont());
    table->setItem(row, 0, key);
    table->setItem(row, 1, new QTableWidgetItem(own.what));
  }
  table->resizeColumnsToContents();
  return table;
}

}  // namespace

void ShowKeysPage(FormWindow& window) {
  auto* page = new QDialog(&window);
  page->setAttribute(Qt::WA_DeleteOnClose);
  page->setObjectName(QStringLiteral("KeysPage"));
  page->setWindowTitle(QStringLiteral("Keys: ") + window.GetForm().Caption());
  auto* column = new QVBoxLayout(page);
  QTableWidget* table = TableOf(KeysOf(window));
  column->addWidget(table, 1);
  auto* foot = new QHBoxLayout;
  auto* close = new QPushButton(QStringLiteral("&Close"));
  close->setDefault(true);
  foot->addStretch(1);
  foot->addWidget(close);
  column->addLayout(foot);
  QObject::connect(close, &QPushButton::clicked, page, &QDialog::close);
  auto* again = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Slash), page);
  QObject::connect(again, &QShortcut::activated, page, &QDialog::close);
  page->resize(QSize(560, 640).boundedTo(RoomFor(window)));
  page->setModal(true);
  page->show();
  table->setFocus();
}

}  // namespace tamo
