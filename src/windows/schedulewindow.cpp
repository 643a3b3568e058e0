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
  FieldColumn system(*codes);
  system.Add(b.Caption("CodeLabel"), b.Field("System", 22), b.Prompt("SystemPrompt"));
  below->addLayout(codes, 2);
  auto* unsure = new QVBoxLayout;
  unsure->addWidget(Section(QStringLiteral("Not sure")));
  unsure->addWidget(b.List("Unsure", QStringLiteral("Cells that are not sure"), 10, 8), 1);
  below->addLayout(unsure, 1);
  body.addLayout(below, 3);
  b.Window().firstSize = {1040, 680};
}

}  // namespace tamo
