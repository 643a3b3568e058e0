#include "windows/planmarks.h"

#include "plans/markspanel.h"
#include "windows/menukey.h"
#include "windows/roles.h"

namespace tamo {
namespace {

QHBoxLayout* TitleLine(Builder& b) {
  auto* line = new QHBoxLayout;
  line->setSpacing(kGrid);
  QLabel* caption = FixedPrompt(QStringLiteral("Name of the chosen mark (F2)"));
  QLineEdit* title = b.Field("MarkTitle", 30, QStringLiteral("Name of the chosen mark"));
  caption->setBuddy(title);
  line->addWidget(caption);
  line->addWidget(title);
  line->addWidget(b.PushButton("MarkToLine"));
  line->addStretch(1);
  return line;
}

// In a line of its own: beside the others there is hardly any room in a small window.
QLabel* Summary(Builder& b) {
  QLabel* summary = b.Text("MarksSummary");
  summary->setTextFormat(Qt::PlainText);
  summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return summary;
}

QWidget* ListUnder(Builder& b, const char* list, const QString& name, const QString& heads,
                   int columns) {
  auto* box = new QWidget;
  auto* column = ColumnIn(box, kGrid / 2);
  auto* head = new QLabel(heads);
  head->setFont(FixedFont());
  MakeQuiet(*head);
  head->setContentsMargins(kGrid + 2, 0, 0, 0);
  head->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  column->addWidget(head);
  RowsView* rows = b.List(list, name, columns, 6);
  rows->UseFixedColumns();
  column->addWidget(rows, 1);
  return box;
}

}  // namespace

QWidget* PlanMarks(Builder& b) {
  QFrame* frame = b.Panel("MarksFrame");
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(kGrid, kGrid / 2, kGrid, kGrid / 2);
  column->setSpacing(kGrid / 2);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kGrid);
  lists->addWidget(ListUnder(b, "MarksList", QStringLiteral("Marks of the plan"), MarksHead(), 60),
                   1);
  QWidget* totals =
      ListUnder(b, "MarksTotals", QStringLiteral("Totals by system"), TotalsHead(), 43);
  totals->setFixedWidth(QFontMetrics(FixedFont()).horizontalAdvance(QString(49, QLatin1Char('0'))));
  lists->addWidget(totals);
  column->addLayout(lists, 1);
  column->addLayout(TitleLine(b));
  column->addWidget(Summary(b));
  GiveMenuKey(b, QKeySequence(Qt::Key_F6), "MarksOfPlan");
  GiveMenuKey(b, QKeySequence(Qt::Key_F2), "NameMark");
  GiveMenuKey(b, QKeySequence(Qt::Key_F7), "MarkLine");
  return frame;
}

}  // namespace tamo
