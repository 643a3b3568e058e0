#include "windows/plancolumn.h"

#include <QPushButton>

#include "program/program.h"
#include "windows/roles.h"
#include "windows/scrolled.h"

namespace tamo {
namespace {

constexpr int kColumnWidth = 34 * kGrid;

void Stack(QVBoxLayout& column, const QString& caption, QWidget* field) {
  auto* label = new QLabel(caption);
  label->setFont(PromptFont());
  MakeQuiet(*label);
  label->setBuddy(field);
  column.addWidget(label);
  column.addWidget(field);
}

QHBoxLayout* Line(std::initializer_list<QWidget*> widgets) {
  auto* line = new QHBoxLayout;
  line->setSpacing(kGrid);
  for (QWidget* widget : widgets) line->addWidget(widget);
  return line;
}

void Scales(Builder& b, QVBoxLayout& column) {
  QLabel* scale = b.Text("ScaleInForce");
  scale->setWordWrap(true);
  column.addWidget(scale);
  column.addWidget(b.PushButton("SetInches"));
  column.addWidget(b.PushButton("TakeScale"));
  auto* line = Line({b.Field("Scale1", 6, QStringLiteral("Scale on the plan")),
                     b.Field("Text5", 0, QStringLiteral("Unit of the scale")),
                     b.Field("Scale2", 5, QStringLiteral("Scale in feet"))});
  line->setSpacing(kGrid / 2);
  column.addLayout(line);
  column.addWidget(b.Check("FollowSheet"));
}

// The step says little to whoever zooms by wheel.
void ShowPerCent(Builder& b, QLabel& label) {
  label.setObjectName(QStringLiteral("ZoomPerCent"));
  const QString caption = label.text();
  b.Window().onSynced.push_back([&label, caption, &viewer = b.GetProgram().Viewer()] {
    label.setText(QStringLiteral("%1 %2%").arg(caption).arg(viewer.Zoom()));
  });
}

void Sheet(Builder& b, QVBoxLayout& column) {
  Stack(column, QStringLiteral("Job Name"), b.Field("ProjectName"));
  Stack(column, QStringLiteral("Plan"), b.Field("PlanLocation"));
  auto* grid = new QGridLayout;
  grid->setSpacing(kGrid / 2);
  const std::tuple<const char*, const char*, int> fields[] = {
      {"Page", "PageText", 6}, {"Zoom", "ZoomLevel", 3}, {"Mode", "Mode", 0}};
  int at = 0;
  for (const auto& [caption, name, columns] : fields) {
    QLabel* label = FixedPrompt(QLatin1String(caption));
    if (at == 1) ShowPerCent(b, *label);
    QLineEdit* field = b.Field(name, columns);
    label->setBuddy(field);
    grid->addWidget(label, 0, at);
    grid->addWidget(field, 1, at++);
  }
  grid->setColumnStretch(2, 1);
  column.addLayout(grid);
}

void Distance(Builder& b, QVBoxLayout& column) {
  QLineEdit* distance = b.Field("DistanceText", 0, QStringLiteral("Last distance or count"));
  distance->setFont(FigureFont());
  distance->setFixedHeight(6 * kGrid);
  distance->setAlignment(Qt::AlignRight);
  column.addWidget(distance);
}

void KnownDimension(Builder& b, QVBoxLayout& column) {
  QLabel* known = FixedPrompt(QStringLiteral("Known dimension, feet"));
  QLineEdit* dimension = b.Field("KnownDimension", 8);
  known->setBuddy(dimension);
  column.addLayout(Line({known, dimension}));
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kGrid / 2);
  for (const char* name : {"CheckDimension", "Calibrate"}) {
    QPushButton* button = b.PushButton(name);
    button->setFont(PromptFont());  // both fit beside each other, uncut
    buttons->addWidget(button);
  }
  column.addLayout(buttons);
  column.addWidget(b.Prompt("DimensionResult"));
}

void Notes(Builder& b, QVBoxLayout& column) {
  column.addWidget(b.PushButton("Command3"));
  QPlainTextEdit* notes = b.LongField("PlanNotes", QStringLiteral("Plan notes"));
  notes->setMinimumHeight(8 * kGrid);
  column.addWidget(notes, 1);
  QLabel* problem = b.Text("PlanProblem");
  problem->setWordWrap(true);
  column.addWidget(problem);
}

QWidget* Column(Builder& b) {
  auto* side = new QWidget;
  side->setMinimumWidth(kColumnWidth - 2 * kGrid);  // beside a scroll bar
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  column->setSpacing(kGrid / 2);
  Sheet(b, *column);
  column->addWidget(Rule());
  Scales(b, *column);
  Distance(b, *column);
  column->addWidget(Rule());
  column->addWidget(b.Check("Check1"));
  column->addWidget(KeepPlaceWhenHidden(b.SampleLine("Line1")));
  column->addWidget(b.PushButton("Command2"));
  column->addWidget(Rule());
  KnownDimension(b, *column);
  Notes(b, *column);
  column->addStretch(0);
  return side;
}

}  // namespace

QWidget* PlanColumn(Builder& b) {
  QWidget* side = Scrolled(Column(b), 20 * kGrid);
  side->setFixedWidth(kColumnWidth);
  return side;
}

}  // namespace tamo
