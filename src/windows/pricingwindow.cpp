#include "pricing/materialfigures.h"
#include "windows/findbar.h"
#include "windows/formlayouts.h"

// The price library: the system above, its materials below with the list of them beside the fields,
// the estimated unit price large; colours, notes, markups and exchange in a column of their own.

namespace tamo {
namespace {

constexpr int kSideWidth = 35 * kGrid;
constexpr int kCaptions = 21 * kGrid;
constexpr int kPrompts = 42 * kGrid;

// Captions name units and grow with them; the fields stay where they are.
QLabel* Steady(QLabel* caption) {
  caption->setFixedWidth(kCaptions);
  caption->setWordWrap(true);
  return caption;
}

QWidget* SystemFields(Builder& b) {
  QWidget* frame = b.Group("FramePricing");
  auto* column = ColumnIn(frame, kGrid / 4);
  auto* line = NewRow();
  QLabel* units = b.Caption("LabelUnits");
  units->setFixedWidth(kCaptions);
  QLabel* price = b.Caption("LabelUnitPrice");
  QLineEdit* unitsField = b.Field("Units", 8);
  QLineEdit* priceField = b.Field("UnitPrice", 10);
  units->setBuddy(unitsField);
  price->setBuddy(priceField);
  SwatchPatch* sample = b.SampleLine("Line1");
  sample->setMinimumWidth(3 * kGrid);
  sample->setMaximumWidth(20 * kGrid);
  line->addWidget(units);
  line->addWidget(unitsField);
  line->addSpacing(kGrid);
  line->addWidget(price);
  line->addWidget(priceField);
  line->addSpacing(kGrid);
  line->addWidget(FixedCaption(QStringLiteral("Line:")));
  line->addWidget(sample, 1);
  line->addWidget(b.PushButton("Command2"));
  line->addWidget(b.PushButton("Command1"));
  column->addLayout(line);
  auto* under = new QHBoxLayout;
  under->addSpacing(kCaptions + kGrid);
  under->addWidget(KeepPlaceWhenHidden(b.Prompt("Label3")), 1);
  column->addLayout(under);
  return frame;
}

// The caption reads as the units are; as long as there is none, a reader of screens has these
// words.
void AddRatio(Builder& b, FieldColumn& column, const char* caption, const char* name,
              const char* prompt) {
  QLabel* label = Steady(b.Caption(caption));
  QLineEdit* field = b.Field(name, 14);
  column.Add(label, field, b.Prompt(prompt));
  b.Window().onSynced.push_back([label, field] {
    const QString words = label->text().isEmpty() ? QStringLiteral("Conversion number") : QString();
    if (field->accessibleName() != words) field->setAccessibleName(words);
  });
}

QWidget* MaterialFields(Builder& b) {
  auto* fields = new QWidget;
  FieldColumn column(*fields);
  column.captionWidth = kCaptions;
  column.Add(Steady(b.Caption("LabelMaterial")), b.Field("Material", 34), b.Prompt("Label18"));
  column.Add(Steady(b.Caption("LabelOrderUnits")), b.Field("OrderUnits", 14));
  column.Add(Steady(b.Caption("LabelPrice")), b.Field("Price", 14));
  AddRatio(b, column, "LabelUPO", "UPO", "Label5");
  AddRatio(b, column, "LabelMnhr", "MnhrPO", "Label8");
  column.Add(Steady(b.Caption("Label4")), b.Field("Waste", 14));
  column.Add(Steady(b.Caption("Label7")), b.Field("WageRate", 14));
  column.Grid().setColumnMinimumWidth(1, kPrompts);
  column.Grid().setRowStretch(column.Grid().rowCount(), 1);
  return fields;
}

// Beside each name what one takeoff unit takes of it, in a quieter tone.
QWidget* Materials(Builder& b) {
  auto* box = new QWidget;
  auto* column = ColumnIn(box, kGrid / 4);
  RowsView* list = b.List("MaterialList", QStringLiteral("Materials of this system"), 18, 10);
  list->setMinimumWidth(20 * kGrid);
  list->besideWidths = {11, 6, 6};
  if (const auto* system = b.Find<OrderedList>("System")) {
    list->besides = [system](int row) {
      const MaterialFigures figures = FiguresOf(system->Rows(), row);
      return QStringList{figures.quantity, figures.cost, figures.labor};
    };
  }
  QLabel* heads = FixedPrompt(QStringLiteral("Of one takeoff unit: quantity, cost, labor"));
  heads->setWordWrap(false);
  heads->setAlignment(Qt::AlignRight);
  heads->setMinimumWidth(1);
  b.Window().onSynced.push_back([heads, list] { heads->setVisible(list->BesideWidth() > 0); });
  column->addWidget(heads);
  column->addWidget(list, 1);
  return box;
}

QWidget* Labor(Builder& b) {
  QWidget* frame = b.Group("LandMFrame");
  auto* column = ColumnIn(frame);
  column->addWidget(Rule());
  auto* row = NewRow(2 * kGrid);
  auto* left = new QVBoxLayout;
  left->addWidget(Section(QStringLiteral("Labor and material")));
  left->addWidget(MaterialFields(b), 1);
  auto* right = new QVBoxLayout;
  right->addWidget(Section(QStringLiteral("Materials of this system")));
  right->addWidget(Materials(b), 1);
  row->addLayout(left);
  row->addLayout(right, 1);
  column->addLayout(row, 1);
  return frame;
}

QWidget* Price(Builder& b) {
  auto* line = new QWidget;
  auto* row = RowIn(line, 2 * kGrid);
  QLabel* price = b.Figure("EUP");
  price->setFont(FigureFont());
  price->setAccessibleName(QStringLiteral("Estimated unit price"));
  row->addStretch(1);
  row->addWidget(b.Text("Label9"));
  row->addWidget(b.Text("Label19"));
  row->addWidget(price);
  line->setFixedHeight(6 * kGrid);
  return line;
}

QWidget* Colours(Builder& b) {
  QFrame* frame = b.Panel("ColorFrame");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  grid->setSpacing(kGrid / 2);
  grid->addWidget(Section(QStringLiteral("Colour on the plan")), 0, 0, 1, 4);
  const char* names[] = {"iRed",    "iGreen",   "iBlue",   "iYellow", "iOrange", "iPurple",
                         "iViolet", "iDkGreen", "iNavy",   "iTeal",   "iAqua",   "iBrown",
                         "iLtBlue", "iLtGrn",   "iMaroon", "iNoColor"};
  int at = 0;
  for (const char* name : names) {
    grid->addWidget(b.Patch(name), 1 + at / 4, at % 4);
    ++at;
  }
  grid->addWidget(b.Text("Label20"), 5, 0, 1, 4);
  return frame;
}

QWidget* Markups(Builder& b) {
  QFrame* frame = b.Panel("MarkupsFrame");
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(kGrid, kGrid, 2 * kGrid, kGrid);
  column->setSpacing(kGrid / 2);
  struct Group {
    const char* title;
    const char* fields[3];
  };
  static constexpr Group kGroups[] = {{"Material", {"MOH", "MTX", "MMU"}},
                                      {"Labor", {"LOH", "LTX", "LMU"}},
                                      {"Bottom line", {"BLOH", "BLTX", "BLMU"}},
                                      {"Misc.", {"MIOH", "MITX", "MIMU"}}};
  for (const Group& group : kGroups) {
    column->addWidget(Section(QLatin1String(group.title)));
    FieldColumn fields(*column);
    fields.captionWidth = kCaptions;
    for (const char* name : group.fields) {
      const QByteArray label = QByteArrayLiteral("Label") + name;
      fields.Add(b.Caption(label.constData()), b.Field(name, 8));
    }
  }
  column->addWidget(FixedPrompt(QStringLiteral("Fractions: 0.10 is ten per cent.")));
  column->addWidget(b.PushButton("ExitMarkups"));
  column->addStretch(1);
  return frame;
}

QWidget* Exchange(Builder& b) {
  QFrame* frame = b.Panel("IEFrame");
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(kGrid);
  QLabel* title = b.Text("IELabel");
  title->setFont(SectionFont());
  column->addWidget(title);
  column->addWidget(b.Browser("Drive1", QStringLiteral("Drives")));
  column->addWidget(b.Browser("Dir1", QStringLiteral("Folders")), 2);
  column->addWidget(b.Browser("File1", QStringLiteral("Systems")), 3);
  return frame;
}

QWidget* Side(Builder& b) {
  auto* side = new QWidget;
  side->setFixedWidth(kSideWidth);
  auto* column = ColumnIn(side);
  column->addWidget(Colours(b));
  column->addWidget(Exchange(b), 1);
  QPlainTextEdit* notes = b.LongField("PricingNotes", QStringLiteral("Notes of the system"));
  notes->setPlaceholderText(QStringLiteral("Notes of this system"));
  notes->setMinimumHeight(9 * kGrid);
  column->addWidget(notes, 1);
  column->addStretch(0);
  // Stands only while something stands in it; the fields on the left never move.
  b.Window().onSynced.push_back([side] {
    bool any = false;
    for (const QWidget* panel : side->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
      any = any || !panel->isHidden();
    side->setVisible(any);
  });
  return side;
}

// In the list that is open under a field, else in the list of the field in focus, which then opens;
// without one in the materials of the system.
FindBar* FindInLists(Builder& b) {
  std::vector<std::unique_ptr<FindPlace>> places;
  for (const char* name : {"DescriptionsList", "UnitsList", "MaterialsList", "oUnitsList",
                           "WagesList", "MaterialList"}) {
    auto* list = b.Find<OrderedList>(name);
    auto& view = static_cast<ListBinding*>(b.GetDisplay().Of(*list))->View();
    places.push_back(std::make_unique<FindInRows>(view, b.GetDisplay(), list));
  }
  auto* find = new FindBar(std::move(places), b.GetDisplay(), QStringLiteral("the library"));
  find->beforeOpen = [&form = b.GetForm()] {
    for (Control* control : form.Controls()) {
      auto* list = dynamic_cast<OrderedList*>(control);
      if (list == nullptr || list->dropsFrom == nullptr || !list->dropsFrom->HasFocus()) continue;
      form.GetDesk().Dispatch([list] { list->Show(); });
    }
  };
  find->OpenByKey(b.Window());
  return find;
}

}  // namespace

void LayOutPricing(Builder& b) {
  auto* row = NewRow(2 * kGrid);
  auto* main = new QVBoxLayout;
  main->setSpacing(kGrid / 2);
  FieldColumn name(*main);
  name.captionWidth = kCaptions;
  name.Add(b.Caption("LabelDescription"), b.Field("Description", 40),
           FixedPrompt(QStringLiteral("Leave blank and press Enter to finish. A click shows the "
                                      "systems of the library.")));
  main->addWidget(KeepPlaceWhenHidden(SystemFields(b)));
  main->addWidget(KeepPlaceWhenHidden(Labor(b)), 1);
  main->addWidget(Price(b));
  row->addLayout(main, 1);
  row->addWidget(Side(b));
  row->addWidget(Markups(b));
  b.Window().Body().addLayout(row, 1);
  b.DropList("DescriptionsList", "Description");
  b.DropList("UnitsList", "Units");
  b.DropList("MaterialsList", "Material");
  b.DropList("oUnitsList", "OrderUnits");
  b.DropList("WagesList", "WageRate");
  b.Window().Body().addWidget(FindInLists(b));
  b.Window().firstSize = {1128, 680};
}

}  // namespace tamo
