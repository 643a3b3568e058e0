#include "windows/takeofflayout.h"

#include "windows/menukey.h"
#include "windows/roles.h"

namespace tamo {

QGridLayout* TakeoffFields(Builder& b, const std::vector<TakeoffField>& fields) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kGrid);
  grid->setVerticalSpacing(kGrid / 4);
  grid->setColumnMinimumWidth(2, 3 * kGrid);
  grid->setColumnStretch(4, 1);
  // Wide enough for every prompt, so that nothing moves when it changes.
  const int widest =
      QFontMetrics(PromptFont())
          .horizontalAdvance(QStringLiteral("Leave blank and press Enter for new Description "));
  grid->setColumnMinimumWidth(4, widest);
  for (size_t i = 0; i < fields.size(); ++i) {
    const TakeoffField& field = fields[i];
    const int row = static_cast<int>(i / 2) * 2;
    const int column = static_cast<int>(i % 2) * 3;
    QLabel* caption = b.Caption(field.caption);
    QLineEdit* edit = b.Field(field.field, field.columns);
    caption->setBuddy(edit);
    grid->addWidget(caption, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(edit, row, column + 1, Qt::AlignLeft);
    if (*field.prompt == '\0') continue;
    QLabel* prompt = b.Prompt(field.prompt);
    prompt->setWordWrap(false);
    grid->addWidget(KeepPlaceWhenHidden(prompt), row + 1, column + 1);
  }
  return grid;
}

QWidget* TakeoffLines(Builder& b, const char* list, const QString& accessibleName,
                      const QString& heads) {
  auto* box = new QWidget;
  auto* column = ColumnIn(box, kGrid / 2);
  auto* head = new QLabel(heads);
  head->setFont(FixedFont());
  MakeQuiet(*head);
  head->setContentsMargins(kGrid + 2, 0, 0, 0);
  column->addWidget(head);
  RowsView* rows = b.List(list, accessibleName, 56, 12);
  rows->UseFixedColumns();
  column->addWidget(rows, 1);
  return box;
}

QWidget* Tally(Builder& b, const char* lengths) {
  auto* tally = new QLabel;
  tally->setTextFormat(Qt::PlainText);
  tally->setFont(FixedFont());
  tally->setMinimumHeight(3 * kGrid);
  tally->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  tally->setAccessibleName(QStringLiteral("Entries of this line"));
  auto* list = b.Find<OrderedList>(lengths);
  auto* binding = static_cast<ListBinding*>(b.GetDisplay().Of(*list));
  binding->onApplied = [tally, list] {
    QStringList entries;
    // The last ones: they are what was just typed.
    for (int i = std::max(0, list->Count() - 8); i < list->Count(); ++i)
      entries += list->Row(i).trimmed();
    if (list->Count() > 8) entries.prepend(QStringLiteral("…"));
    tally->setText(entries.isEmpty()
                       ? QString()
                       : QStringLiteral("This line: ") + entries.join(QStringLiteral("  +  ")));
  };
  return tally;
}

QWidget* MeasureWaits(Builder& b) {
  auto* box = new QWidget;
  auto* line = RowIn(box);
  QLabel* text = b.Text("MeasuredText");
  text->setTextFormat(Qt::PlainText);
  line->addWidget(text, 1);
  line->addWidget(b.PushButton("TakeMeasured"));
  line->addWidget(b.PushButton("DropMeasured"));
  return box;
}

void TakeoffStatus(Builder& b) {
  GiveMenuKey(b, QKeySequence(Qt::Key_F7), "ShowMarks");
  QHBoxLayout& line = b.Window().StatusLine();
  line.addWidget(b.Text("StatusText"));
  line.addStretch(1);
  QLabel* caption = b.Text("ScaleLabel");
  MakeQuiet(*caption);
  line.addWidget(caption);
  line.addWidget(b.Text("ScaleText"));
}

}  // namespace tamo
