#include "windows/findbar.h"
#include "windows/formlayouts.h"
#include "windows/homelayout.h"

// The main form: the project list on the left, the project panel on the right.

namespace tamo {
namespace {

QWidget* ProjectList(Builder& b) {
  auto* side = new QWidget;
  auto* column = ColumnIn(side);
  column->addWidget(Section(QStringLiteral("Projects")));
  RowsView* list = b.List("JobsList", QStringLiteral("Projects"), 44, 16);
  list->UseFixedColumns();
  column->addWidget(list, 1);
  // Without a list on the screen the place says what to do.
  auto* hint = FixedPrompt(QString());
  hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  column->addWidget(hint, 1);
  auto* jobs = b.Find<OrderedList>("JobsList");
  const Frame* panel = b.Find<Frame>("JobNFOFrame");
  auto* binding = static_cast<ListBinding*>(b.GetDisplay().Of(*jobs));
  binding->onApplied = [hint, jobs, panel] {
    hint->setHidden(jobs->Shown() && panel->Shown());
    hint->setText(
        jobs->Empty()
            ? QStringLiteral("There is no list of projects on the screen.\n\nProject, Open Project "
                             "shows the projects of this data folder.\nProject, Create Project "
                             "begins a new one.")
            : QStringLiteral("Project, Open Project shows the projects of this data "
                             "folder.\nProject, Create Project begins a new one."));
  };
  // Without list and panel the home page has the whole window. How wide the list is, is asked for
  // only then: its font is no other's.
  b.Window().onSynced.push_back([side, hint, list, jobs, panel] {
    const bool wanted = jobs->Shown() || panel->Shown();
    if (side->isHidden() != wanted) return;
    if (wanted) hint->setMinimumWidth(list->sizeHint().width());
    side->setVisible(wanted);
  });
  return side;
}

QWidget* ProjectPanel(Builder& b) {
  QFrame* panel = b.Panel("JobNFOFrame");
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, 2 * kGrid);
  column->setSpacing(kGrid);
  column->addWidget(Section(QStringLiteral("Project Information")));
  FieldColumn fields(*column);
  fields.captionWidth = 12 * kGrid;
  const std::pair<const char*, const char*> rows[] = {
      {"JobName", "Job Name:"},      {"BidDate", "Bid Date:"},    {"Addenda", "Addenda:"},
      {"Phase", "Phase:"},           {"BidItems", "Bid Items:"},  {"Inclusions", "Inclusions:"},
      {"Exclusions", "Exclusions:"}, {"Architect", "Architect:"},
  };
  for (const auto& [name, caption] : rows)
    fields.Add(FixedCaption(QLatin1String(caption)), b.Field(name));
  QLabel* notesCaption = FixedCaption(QStringLiteral("Notes:"));
  QPlainTextEdit* notes = b.LongField("Notes", QStringLiteral("Notes"));
  notes->setMinimumHeight(7 * kGrid);
  fields.Add(notesCaption, notes,
             FixedPrompt(QStringLiteral("Enter goes on to the next field; in the notes Ctrl+Enter "
                                        "begins a new line.")));
  QLabel* missing = b.Text("NumberMissing");
  missing->setWordWrap(true);
  column->addWidget(missing);
  auto* foot = new QHBoxLayout;
  foot->addStretch(1);
  foot->addWidget(b.PushButton("Command1"));
  column->addLayout(foot);
  return panel;
}

FindBar* FindProject(Builder& b) {
  auto* jobs = b.Find<OrderedList>("JobsList");
  auto& view = static_cast<ListBinding*>(b.GetDisplay().Of(*jobs))->View();
  std::vector<std::unique_ptr<FindPlace>> places;
  places.push_back(std::make_unique<FindInRows>(view, b.GetDisplay(), jobs));
  auto* find = new FindBar(std::move(places), b.GetDisplay(), QStringLiteral("the projects"));
  find->OpenByKey(b.Window());
  return find;
}

}  // namespace

void LayOutTamo(Builder& b) {
  auto* row = NewRow(2 * kGrid);
  row->addWidget(ProjectList(b), 2);
  auto* right = new QVBoxLayout;
  right->addWidget(ProjectPanel(b));
  right->addStretch(0);
  right->addWidget(HomePageOf(b), 1);
  row->addLayout(right, 3);
  b.Window().Body().addLayout(row, 1);
  b.Window().Body().addWidget(FindProject(b));
  b.Window().firstSize = {1000, 600};
}

}  // namespace tamo
