#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>

#include "program/program.h"
#include "windows/formlayouts.h"
#include "windows/plancanvas.h"
#include "windows/plantoolbar.h"

// The plan: thumbnails on the left, the plan in the middle with its tools over it, a narrow column
// of what is looked at all the time on the right.

namespace tamo {
namespace {

constexpr int kColumnWidth = 34 * kGrid;
constexpr int kQuietSave = 300;  // milliseconds before a save shows its bar

// Over the sheet, where the eye is: which line the next length or count belongs to.
QWidget* GoesTo(Builder& b) {
  QLabel* goes = b.Text("GoesTo");
  goes->setTextFormat(Qt::PlainText);
  goes->setFont(SectionFont());
  goes->setContentsMargins(2 * kGrid, kGrid / 4, kGrid, kGrid / 2);
  goes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return goes;
}

// Words above the plan: of the tool in hand, and what speaks against the scale. The line is always
// there, so that the plan stays where it is when words come and go.
QWidget* Words(Builder& b) {
  auto* words = new QWidget;
  auto* line = new QHBoxLayout(words);
  line->setContentsMargins(kGrid, 0, kGrid, kGrid / 2);
  line->setSpacing(2 * kGrid);
  for (const char* name : {"ToolHint", "ScaleNote"}) {
    QLabel* label = b.Text(name);
    label->setFont(PromptFont());
    label->setWordWrap(true);
    label->setMinimumHeight(label->fontMetrics().height());
    line->addWidget(label, 1);
  }
  return words;
}

QWidget* Browser(Builder& b) {
  QFrame* frame = b.Panel("Frame1");
  frame->setFixedWidth(38 * kGrid);
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(kGrid);
  column->addWidget(Section(QStringLiteral("Plans")));
  column->addWidget(b.Browser("Drive1", QStringLiteral("Drives")));
  column->addWidget(b.Browser("Dir1", QStringLiteral("Folders")), 2);
  column->addWidget(FixedPrompt(QStringLiteral("A click on a plan opens it.")));
  column->addWidget(b.Browser("File1", QStringLiteral("Plans")), 3);
  return frame;
}

QWidget* Colours(Builder& b) {
  QFrame* frame = b.Panel("ColorFrame");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  grid->setSpacing(kGrid / 2);
  grid->setColumnStretch(6, 1);
  const char* names[] = {"iRed",    "iGreen",   "iBlue", "iYellow", "iOrange", "iPurple",
                         "iViolet", "iDkGreen", "iNavy", "iTeal",   "iAqua",   "iBrown"};
  int at = 0;
  for (const char* name : names) {
    grid->addWidget(b.Patch(name), at / 6, at % 6);
    ++at;
  }
  return frame;
}

void Stack(QVBoxLayout& column, const QString& caption, QWidget* field) {
  auto* label = new QLabel(caption);
  label->setFont(PromptFont());
  label->setProperty("role", QStringLiteral("prompt"));
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

// Shown while the plan asked for is locked.
QWidget* Password(Builder& b) {
  QFrame* frame = b.Panel("LockedPlan");
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  column->setSpacing(kGrid / 2);
  QLineEdit* password = b.Field("PlanPassword");
  password->setEchoMode(QLineEdit::Password);
  Stack(*column, QStringLiteral("Password of the plan"), password);
  column->addWidget(b.PushButton("UnlockPlan"));
  return frame;
}

void Distance(Builder& b, QVBoxLayout& column) {
  QLineEdit* distance = b.Field("DistanceText", 0, QStringLiteral("Last distance or count"));
  distance->setFont(FigureFont());
  distance->setProperty("role", QStringLiteral("figure"));
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
  side->setFixedWidth(kColumnWidth);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  column->setSpacing(kGrid / 2);
  Sheet(b, *column);
  column->addWidget(Password(b));
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

// The first marked copy of a large plan takes a while; the bar says so and can't be stopped. The
// windows are painted meanwhile, keys and mouse wait.
std::function<void(int)> SaveProgress(QWidget& window) {
  struct Shown {
    QElapsedTimer since;
    std::unique_ptr<QProgressDialog> bar;
  };
  return [shown = std::make_shared<Shown>(), &window](int perCent) {
    if (perCent >= 100) {
      *shown = {};
      return;
    }
    if (!shown->since.isValid()) shown->since.start();
    if (shown->bar == nullptr && shown->since.elapsed() > kQuietSave) {
      shown->bar = std::make_unique<QProgressDialog>(
          QStringLiteral("The marked copy of the plan is being written."), QString(), 0, 100,
          &window);
      shown->bar->setMinimumDuration(0);
      shown->bar->show();
    }
    if (shown->bar != nullptr) shown->bar->setValue(perCent);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  };
}

PlanThumbnails* Thumbnails(Builder& b, PlanCanvas& canvas) {
  auto* thumbnails =
      new PlanThumbnails(b.GetProgram().Viewer(), b.Pictures(), b.GetProgram().GetDesk());
  thumbnails->setFixedWidth(thumbnails->sizeHint().width());
  if (Control* box = b.Find("picPdfThumbnails")) b.Bind<ThumbnailsBinding>(*box, *thumbnails);
  canvas.onPictures = [thumbnails] { thumbnails->PagesChanged(); };
  return thumbnails;
}

PlanCanvas* Canvas(Builder& b) {
  PdfDraw& viewer = b.GetProgram().Viewer();
  Desk& desk = b.GetProgram().GetDesk();
  auto* canvas = new PlanCanvas(viewer, b.Pictures(), desk);
  if (Control* box = b.Find("picPdfDraw")) b.Bind<PlanBinding>(*box, *canvas);
  const auto choose = [&b, &desk](const char* name) {
    MenuEntry* entry = b.GetForm().FindMenu(QLatin1String(name));
    return [entry, &desk] {
      if (entry != nullptr) desk.ChooseMenu(*entry);
    };
  };
  canvas->onZoomIn = choose("ZoomIn");
  canvas->onZoomOut = choose("ZoomOut");
  FormWindow* window = &b.Window();
  viewer.onPrint = [canvas] { canvas->Print(); };
  viewer.onBringToFront = [window] { window->raise(); };
  viewer.onSaveProgress = SaveProgress(*window);
  return canvas;
}

}  // namespace

void LayOutOST(Builder& b) {
  b.Window().UseWholeWindow();
  PlanCanvas* canvas = Canvas(b);
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(Thumbnails(b, *canvas));
  row->addWidget(Browser(b));
  auto* middle = new QVBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(PlanToolBar(b, *canvas));
  middle->addWidget(GoesTo(b));
  middle->addWidget(Colours(b));
  middle->addWidget(Words(b));
  middle->addWidget(canvas, 1);
  row->addLayout(middle, 1);
  row->addWidget(Column(b));
  FormWindow& window = b.Window();
  window.Body().addLayout(row, 1);
  QLabel* keys =
      FixedPrompt(QStringLiteral("On the plan: arrows move the cross hair, Space sets a point, "
                                 "Enter goes back to the field."));
  keys->setWordWrap(false);
  window.StatusLine().addWidget(keys);
  window.firstSize = {1340, 700};
}

}  // namespace tamo
