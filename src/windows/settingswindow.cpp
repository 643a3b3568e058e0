#include "windows/formlayouts.h"

// What is set once per installation.

namespace tamo {
namespace {

constexpr int kCaptions = 17 * kGrid;

QWidget* Palette(Builder& b) {
  auto* palette = new QWidget;
  auto* grid = new QGridLayout(palette);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kGrid);
  grid->setVerticalSpacing(kGrid / 2);
  const char* names[] = {"iRed",    "iGreen",  "iBlue",    "iYellow", "iOrange",
                         "iPurple", "iViolet", "iDkGreen", "iNavy",   "iTeal",
                         "iAqua",   "iBrown",  "iMaroon",  "iLtBlue", "iLtGrn"};
  int at = 0;
  for (const char* name : names) {
    grid->addWidget(b.Patch(name), at / 8, at % 8);
    ++at;
  }
  grid->setColumnStretch(8, 1);
  return palette;
}

QWidget* Row(std::initializer_list<QWidget*> widgets) {
  auto* row = new QWidget;
  auto* line = RowIn(row, 3 * kGrid);
  for (QWidget* widget : widgets) line->addWidget(widget);
  line->addStretch(1);
  return row;
}

}  // namespace

void LayOutSettings(Builder& b) {
  QVBoxLayout& body = b.Window().Body();
  body.addWidget(Section(QStringLiteral("Estimator")));
  FieldColumn who(body);
  who.captionWidth = kCaptions;
  who.Add(FixedCaption(QStringLiteral("Estimator Number:")), b.Field("EstimatorNumber", 4),
          FixedPrompt(QStringLiteral("Two digits; they begin the id of every project.")));
  who.Add(FixedCaption(QStringLiteral("Estimator Name:")), b.Field("EstimatorName"));
  who.Add(FixedCaption(QStringLiteral("Company Name:")), b.Field("CompanyName"));
  who.Add(FixedCaption(QStringLiteral("Telephone:")), b.Field("Telephone", 24));
  who.Add(FixedCaption(QStringLiteral("Data Folder:")), b.Field("DataPath"),
          FixedPrompt(QStringLiteral("All projects and prices lie here. Enter makes the folder.")));
  body.addSpacing(kGrid);
  body.addWidget(Rule());
  body.addWidget(Section(QStringLiteral("Plan line")));
  FieldColumn line(body);
  line.captionWidth = kCaptions;
  line.Add(FixedCaption(QStringLiteral("Colour:")), Palette(b));
  line.Add(FixedCaption(QStringLiteral("Width:")),
           b.Bar("HScroll1", QStringLiteral("Width of the plan line")));
  line.Add(FixedCaption(QStringLiteral("Sample:")), b.SampleLine("Line1"));
  body.addSpacing(kGrid);
  body.addWidget(Rule());
  FieldColumn ways(body);
  ways.captionWidth = kCaptions;
  ways.Add(FixedCaption(QStringLiteral("User Interface:")),
           Row({b.Choice("Option1"), b.Choice("Option2")}));
  ways.Add(FixedCaption(QStringLiteral("Scale:")), Row({b.Choice("Option3"), b.Choice("Option4")}));
  ways.Add(FixedCaption(QStringLiteral("Look:")),
           Row({b.Choice("LookSystem"), b.Choice("LookLight"), b.Choice("LookDark")}));
  ways.Add(FixedCaption(QStringLiteral("Reports:")), b.Check("AutoCheck"));
  QLabel* guard = b.Text("PlanGuard");
  guard->setWordWrap(true);
  body.addWidget(guard);
  body.addStretch(1);
  auto* foot = new QHBoxLayout;
  foot->addStretch(1);
  foot->addWidget(b.PushButton("Command1"));
  body.addLayout(foot);
  b.Window().firstSize = {760, 560};
}

}  // namespace tamo
