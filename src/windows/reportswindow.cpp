#include <QPointer>
#include <QShortcut>

#include "reports/lineweight.h"
#include "reports/reportsform.h"
#include "windows/findbar.h"
#include "windows/formlayouts.h"

// The lines, nothing else, and the notes strip; the office copy has the figures panel on the right.

namespace tamo {
namespace {

QWidget* Figures(Builder& b) {
  QFrame* panel = b.Panel("Frame1");
  panel->setFixedWidth(30 * kGrid);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
  column->setSpacing(kGrid);
  struct Block {
    const char* title;
    std::vector<std::pair<const char*, const char*>> rows;
  };
  const Block blocks[] = {
      {"Project", {{"Total:", "ttText"}, {"Completed:", "tcText"}, {"Per cent:", "pcText"}}},
      {"Labor", {{"Total:", "tlText"}, {"Completed:", "lcText"}, {"Per cent:", "lpText"}}},
      {"Material", {{"Total:", "tmText"}, {"Completed:", "mcText"}, {"Per cent:", "mpText"}}}};
  for (const Block& block : blocks) {
    column->addWidget(Section(QLatin1String(block.title)));
    FieldColumn fields(*column);
    fields.captionWidth = 10 * kGrid;
    for (const auto& [caption, name] : block.rows) {
      QLineEdit* field = b.Field(name);
      field->setAlignment(Qt::AlignRight);
      fields.Add(FixedCaption(QLatin1String(caption)), field);
    }
    column->addSpacing(kGrid);
  }
  column->addStretch(1);
  return panel;
}

// Which state of the bid the report shows; empty for the one that stands.
QLayout* VersionStrip(Builder& b) {
  QHBoxLayout* strip = NewRow();
  QLabel* which = b.Text("VersionLabel");
  QFont heavy = which->font();
  heavy.setBold(true);
  which->setFont(heavy);
  strip->addWidget(which, 1);
  strip->addWidget(b.PushButton("KeepPrinted"), 0, Qt::AlignRight);
  strip->addWidget(b.PushButton("BackToNow"), 0, Qt::AlignRight);
  return strip;
}

void LetTypeGrow(QWidget& window, const std::vector<RowsView*>& lists) {
  const auto grow = [lists](double points) {
    for (RowsView* list : lists) {
      QFont font = list->font();
      font.setPointSizeF(std::clamp(font.pointSizeF() + points, 7.0, 28.0));
      list->setFont(font);
    }
  };
  const std::pair<const char*, double> keys[] = {{"Ctrl++", 1}, {"Ctrl+=", 1}, {"Ctrl+-", -1}};
  for (const auto& [key, points] : keys) {
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key)), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window,
                     [grow, points = points] { grow(points); });
  }
}

// A tick of the Office Copy is no place to go to: nothing is chosen here.
FindBar* Find(Builder& b, std::initializer_list<RowsView*> lists) {
  std::vector<std::unique_ptr<FindPlace>> places;
  for (RowsView* list : lists)
    places.push_back(std::make_unique<FindInRows>(*list, b.GetDisplay(), nullptr));
  auto* find = new FindBar(std::move(places), b.GetDisplay(), QStringLiteral("the report"));
  find->OpenByKey(b.Window());
  return find;
}

void SaveByKey(Builder& b) {
  MenuEntry* entry = b.GetForm().FindMenu(QStringLiteral("SaveReport"));
  Display& display = b.GetDisplay();
  auto* shortcut = new QShortcut(QKeySequence(QKeySequence::Save), &b.Window());
  QObject::connect(shortcut, &QShortcut::activated, &b.Window(), [entry, &display] {
    display.MarkDirty();
    display.GetDesk().ChooseMenu(*entry);
  });
}

}  // namespace

void LayOutReports(Builder& b) {
  FormWindow& window = b.Window();
  QVBoxLayout& body = window.Body();
  body.addLayout(VersionStrip(b));
  auto* row = new QHBoxLayout;
  row->setSpacing(kGrid);
  RowsView* reporter = b.List("Reporter", QStringLiteral("Report"), 96, 30);
  RowsView* copy = b.List("Reporter1", QStringLiteral("Office Copy"), 96, 30);
  auto* lists = new QVBoxLayout;
  for (RowsView* list : {reporter, copy}) {
    list->UseFixedColumns();
    list->isHeavy = [list](int row) {
      const ListRows& rows = list->Model().Rows();
      return row == 0 || IsHeavyLine(rows.At(0), rows.At(row));
    };
    lists->addWidget(list, 1);
  }
  auto* empty = FixedPrompt(QStringLiteral(
      "There is no report here. Choose one from the menu Reports; with no project open, the list "
      "of projects comes up first: pick one, then choose the report again."));
  empty->setAlignment(Qt::AlignCenter);
  lists->addWidget(empty, 1);
  window.onSynced.push_back(
      [empty, reporter, copy] { empty->setVisible(reporter->isHidden() && copy->isHidden()); });
  row->addLayout(lists, 1);
  row->addWidget(Figures(b));
  body.addLayout(row, 1);
  body.addWidget(Find(b, {reporter, copy}));
  auto* strip = new QHBoxLayout;
  RowsView* notes = b.List("NotesList", QStringLiteral("Notes to the report"), 60, 2);
  notes->linesOfRow = 2;
  notes->setFont(PromptFont());
  auto* noteRows = b.Find<OrderedList>("NotesList");
  auto* noteBinding = static_cast<ListBinding*>(b.GetDisplay().Of(*noteRows));
  noteBinding->onApplied = [notes, noteRows] {
    notes->wantedRows = std::clamp(noteRows->Count(), 1, 2);
    notes->setFixedHeight(notes->sizeHint().height());
  };
  strip->addWidget(notes, 1);
  strip->addWidget(b.Check("WholeQuantities"), 0, Qt::AlignTop);
  body.addLayout(strip);
  SaveByKey(b);
  LetTypeGrow(window, {reporter, copy});
  window.firstSize = {1080, 700};
}

}  // namespace tamo
