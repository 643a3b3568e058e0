#include <QPainter>

#include "windows/formlayouts.h"

// The schedule that was read off the plan: its rows above, below them the cells of one row, the
// codes, and what is not sure.

namespace tamo {
namespace {

// The names of the cells over the columns of a list.
class CellHeads : public QWidget {
 public:
  explicit CellHeads(const RowsView& rows) : rows_(rows) {
    setFixedHeight(fontMetrics().height() + kGrid);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(CurrentLook().quiet);
    const QStringList names = {"Number", "Name",  "Floor", "Base",    "North",
                               "East",   "South", "West",  "Ceiling", "Remarks"};
    for (qsizetype i = 0; i < names.size(); ++i) {
      painter.drawText(rows_.CellLeft(size_t(i)) + 1, height() - kGrid, names[i]);
    }
  }

 private:
  const RowsView& rows_;
};

// What the columns mean, and where a schedule comes from when no plan has it.
QVBoxLayout* SourcesOf(Builder& b) {
  auto* column = new QVBoxLayout;
  column->addWidget(Section(QStringLiteral("Columns")));
  RowsView* columns = b.List("Columns", QStringLiteral("Columns of the sheet"), 30, 8);
  columns->cellWidths = {16};
  column->addWidget(columns, 1);
  FieldColumn fields(*column);
  fields.Add(b.Caption("MeaningLabel"), b.Field("Meaning", 16), b.Prompt("MeaningPrompt"));
  fields.Add(b.Caption("FileLabel"), b.Field("File", 24));
  column->addWidget(b.Caption("PastedLabel"));
  auto* pasted = b.LongField("Pasted", QStringLiteral("Rows of a spreadsheet"));
  pasted->setMaximumHeight(4 * pasted->fontMetrics().height());
  column->addWidget(pasted);
  return column;
}

QWidget* AreaFields(Builder& b) {
  auto* fields = new QWidget;
  auto* row = new QHBoxLayout(fields);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(b.Field("FloorArea", 6, QStringLiteral("Finish area of floors")));
  row->addWidget(b.Field("BaseArea", 6, QStringLiteral("Finish area of bases")));
  row->addWidget(b.Field("WallsArea", 6, QStringLiteral("Finish area of walls")));
  row->addWidget(b.Field("CeilingArea", 6, QStringLiteral("Finish area of ceilings")));
  return fields;
}

}  // namespace

void LayOutSchedule(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  body.addWidget(b.Text("Summary"));
  RowsView* rows = b.List("Rows", QStringLiteral("Rooms of the schedule"), 100, 12);
  rows->cellWidths = {7, 15, 9, 6, 7, 7, 7, 7, 13};
  body.addWidget(new CellHeads(*rows));
  body.addWidget(rows, 3);
  auto* below = new QHBoxLayout;
  auto* cells = new QVBoxLayout;
  cells->addWidget(Section(QStringLiteral("Cells of the room")));
  RowsView* own = b.List("Cells", QStringLiteral("Cells of the room"), 40, 10);
  own->cellWidths = {9};
  cells->addWidget(own, 1);
  FieldColumn correct(*cells);
  correct.Add(b.Caption("CorrectLabel"), b.Field("Correct", 24), b.Prompt("Why"));
  below->addLayout(cells, 3);
  auto* codes = new QVBoxLayout;
  codes->addWidget(Section(QStringLiteral("Finish codes")));
  codes->addWidget(b.List("Key", QStringLiteral("Finish codes"), 24, 8), 1);
  codes->addWidget(b.Text("LegendText"));
  FieldColumn system(*codes);
  system.Add(b.Caption("CodeLabel"), b.Field("System", 22), b.Prompt("SystemPrompt"));
  codes->addWidget(b.Text("UnpricedNames"));
  FieldColumn areas(*codes);
  areas.Add(b.Caption("AreasLabel"), AreaFields(b));
  below->addLayout(codes, 2);
  below->addLayout(SourcesOf(b), 3);
  auto* unsure = new QVBoxLayout;
  unsure->addWidget(Section(QStringLiteral("Not sure")));
  unsure->addWidget(b.List("Unsure", QStringLiteral("Cells that are not sure"), 10, 8), 1);
  below->addLayout(unsure, 1);
  body.addLayout(below, 3);
  b.Window().firstSize = {1040, 680};
}

}  // namespace tamo
