#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QProgressDialog>
#include <QToolButton>

#include "program/program.h"
#include "windows/formlayouts.h"
#include "windows/plancanvas.h"
#include "windows/plancolumn.h"

// The plan: thumbnails on the left, the plan in the middle with its tools over it, a narrow column
// of what is looked at all the time on the right.

namespace tamo {
namespace {

constexpr int kQuietSave = 300;  // milliseconds before a save shows its bar

QToolButton* Tool(const QString& text, const QString& hover) {
  auto* tool = new QToolButton;
  tool->setText(text);
  tool->setToolTip(hover);
  tool->setFocusPolicy(Qt::NoFocus);
  tool->setMinimumHeight(kFieldHeight);
  return tool;
}

struct ToolRow {
  PlanTool tool;
  const char* text;
  const char* hover;
};
constexpr ToolRow kTools[] = {
    {PlanTool::None, "Move", "Pull the sheet with the mouse (V)"},
    {PlanTool::Measuring, "Measure", "Draw a line; Shift keeps it to steps of 45 degrees (M)"},
    {PlanTool::Counting, "Count", "Each press counts one (C)"}};
constexpr ToolRow kOutlineTools[] = {
    {PlanTool::Polyline, "Polyline", "A length along several points; Enter ends it (L)"},
    {PlanTool::Area, "Area", "Square feet inside an outline; Enter closes it (A)"},
    {PlanTool::Rectangle, "Rectangle", "Square feet between two corners (R)"},
    {PlanTool::CutOut, "Cut-out", "Takes a shaft or column off an area (K)"},
    {PlanTool::Perimeter, "Perimeter", "The length around an outline (E)"}};

std::vector<QToolButton*> ToolButtons(PdfDraw& viewer, Desk& desk) {
  std::vector<QToolButton*> tools;
  for (const ToolRow& row : kTools) {
    QToolButton* button = Tool(QLatin1String(row.text), QLatin1String(row.hover));
    button->setCheckable(true);
    QObject::connect(button, &QToolButton::clicked, button, [&viewer, &desk, tool = row.tool] {
      desk.Dispatch([&] { viewer.PickTool(tool); });
    });
    tools.push_back(button);
  }
  return tools;
}

// The tools that draw point by point, in a list that drops from one button. It keeps the name of
// the one used last, and a click on it takes that one again.
QToolButton* DrawButton(PdfDraw& viewer, Desk& desk) {
  QToolButton* button = Tool(QStringLiteral("Area"), QStringLiteral("Areas and long ways"));
  button->setCheckable(true);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  auto* menu = new QMenu(button);
  for (const ToolRow& row : kOutlineTools) {
    QAction* action = menu->addAction(QLatin1String(row.text));
    action->setToolTip(QLatin1String(row.hover));
    QObject::connect(action, &QAction::triggered, button, [&viewer, &desk, tool = row.tool] {
      desk.Dispatch([&] { viewer.PickTool(tool); });
    });
  }
  menu->setToolTipsVisible(true);
  button->setMenu(menu);
  QObject::connect(button, &QToolButton::clicked, button, [&viewer, &desk, button] {
    for (const ToolRow& row : kOutlineTools) {
      if (button->text() != QLatin1String(row.text)) continue;
      desk.Dispatch([&] { viewer.PickTool(row.tool); });
    }
  });
  return button;
}

std::vector<QToolButton*> PageButtons(PdfDraw& viewer, Desk& desk, PlanCanvas& canvas) {
  QToolButton* before = Tool(QStringLiteral("◀"), QStringLiteral("Page before (Page Up)"));
  QToolButton* after = Tool(QStringLiteral("▶"), QStringLiteral("Next page (Page Down)"));
  QToolButton* rotate =
      Tool(QStringLiteral("Turn"), QStringLiteral("Turn the sheet to the right (T)"));
  before->setAccessibleName(QStringLiteral("Page before"));
  after->setAccessibleName(QStringLiteral("Next page"));
  QToolButton* page =
      Tool(QStringLiteral("Fit page"), QStringLiteral("The whole sheet in sight (F)"));
  QToolButton* width =
      Tool(QStringLiteral("Fit width"), QStringLiteral("The sheet's whole width in sight (W)"));
  const auto turn = [&viewer, &desk](int by) {
    desk.Dispatch([&] { viewer.TurnPage(viewer.Page() + by); });
  };
  QObject::connect(before, &QToolButton::clicked, before, [turn] { turn(-1); });
  QObject::connect(after, &QToolButton::clicked, after, [turn] { turn(1); });
  QObject::connect(rotate, &QToolButton::clicked, rotate, [&canvas] { canvas.TurnView(); });
  QObject::connect(page, &QToolButton::clicked, page, [&canvas] { canvas.FitPage(); });
  QObject::connect(width, &QToolButton::clicked, width, [&canvas] { canvas.FitWidth(); });
  return {before, after, rotate, page, width};
}

// The viewer's own tool bar: which tool is in hand is shown by the pressed button and by Mode.
QWidget* ToolBar(Builder& b, PlanCanvas& canvas) {
  PdfDraw& viewer = b.GetProgram().Viewer();
  Desk& desk = b.GetProgram().GetDesk();
  auto* bar = new QWidget;
  auto* line = new QHBoxLayout(bar);
  line->setContentsMargins(kGrid / 2, kGrid / 2, kGrid / 2, kGrid / 2);
  line->setSpacing(kGrid / 2);
  const std::vector<QToolButton*> tools = ToolButtons(viewer, desk);
  for (QToolButton* tool : tools) line->addWidget(tool);
  line->addSpacing(kGrid / 2);
  for (QToolButton* button : PageButtons(viewer, desk, canvas)) line->addWidget(button);
  line->addSpacing(kGrid / 2);
  QToolButton* draw = DrawButton(viewer, desk);
  line->addWidget(draw);
  line->addStretch(1);
  // Mode changes with every tool; its field tells when to look.
  if (b.Find<TextField>("Mode") == nullptr) return bar;
  b.Window().onSynced.push_back([&viewer, tools, draw] {
    for (size_t i = 0; i < tools.size(); ++i) tools[i]->setChecked(viewer.Tool() == kTools[i].tool);
    draw->setChecked(PdfDraw::DrawsOutlines(viewer.Tool()));
    for (const ToolRow& row : kOutlineTools) {
      if (row.tool == viewer.Tool()) draw->setText(QLatin1String(row.text));
    }
  });
  return bar;
}

// Over the sheet, where the eye is: which line the next length or count belongs to.
QWidget* GoesTo(Builder& b) {
  QLabel* goes = b.Text("GoesTo");
  goes->setTextFormat(Qt::PlainText);
  goes->setFont(SectionFont());
  goes->setContentsMargins(2 * kGrid, kGrid / 4, kGrid, kGrid / 2);
  goes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return goes;
}

// A line that is always there, so that the plan stays where it is when words come and go.
QWidget* ToolHint(Builder& b) {
  QLabel* hint = b.Text("ToolHint");
  hint->setFont(PromptFont());
  hint->setWordWrap(true);
  hint->setContentsMargins(kGrid, 0, kGrid, kGrid / 2);
  hint->setMinimumHeight(hint->fontMetrics().height() + kGrid / 2);
  return hint;
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

// Shown over the sheet while the plan asked for is locked.
QWidget* Password(Builder& b) {
  QFrame* frame = b.Panel("LockedPlan");
  auto* line = new QHBoxLayout(frame);
  line->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
  line->setSpacing(kGrid);
  QLabel* caption = FixedPrompt(QStringLiteral("Password of the plan"));
  QLineEdit* password = b.Field("PlanPassword", 30);
  password->setEchoMode(QLineEdit::Password);
  caption->setBuddy(password);
  line->addWidget(caption);
  line->addWidget(password);
  line->addWidget(b.PushButton("UnlockPlan"));
  line->addStretch(1);
  return frame;
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
  middle->addWidget(ToolBar(b, *canvas));
  middle->addWidget(GoesTo(b));
  middle->addWidget(Colours(b));
  middle->addWidget(Password(b));
  middle->addWidget(ToolHint(b));
  middle->addWidget(canvas, 1);
  row->addLayout(middle, 1);
  row->addWidget(PlanColumn(b));
  FormWindow& window = b.Window();
  window.Body().addLayout(row, 1);
  QLabel* keys = NewFootLabel(
      QStringLiteral("On the plan: arrows move the cross hair, Space sets a point, Enter goes back "
                     "to the field."));
  keys->setFont(PromptFont());
  keys->setProperty("role", QStringLiteral("prompt"));
  window.StatusLine().addWidget(keys);
  window.firstSize = {1340, 700};
}

}  // namespace tamo
