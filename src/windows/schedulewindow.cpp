#include "windows/formlayouts.h"

// The schedule that was read off the plan: its rows above, below them the cells of one row, the
// codes, and what is not sure.

namespace tamo {

void LayOutSchedule(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  body.addWidget(b.Text("Summary"));
  body.addWidget(b.List("Rows", QStringLiteral("Rooms of the schedule"), 100, 12), 3);
  auto* below = new QHBoxLayout;
  auto* cells = new QVBoxLayout;
  cells->addWidget(Section(QStringLiteral("Cells of the room")));
  cells->addWidget(b.List("Cells", QStringLiteral("Cells of the room"), 40, 10), 1);
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
