#include "windows/plantoolbar.h"

#include <QBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <vector>

#include "program/program.h"
#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/stylesheet.h"

namespace tamo {
namespace {

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
QToolButton* DrawButton(Form& form, PdfDraw& viewer, Desk& desk) {
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
  menu->addSeparator();
  for (const auto& [name, text] :
       {std::pair("FindSame", "Find Same"), std::pair("CountGroups", "Count in Groups")}) {
    MenuEntry* entry = form.FindMenu(QLatin1String(name));
    if (entry == nullptr) continue;
    QObject::connect(menu->addAction(QLatin1String(text)), &QAction::triggered, button,
                     [&desk, entry] { desk.ChooseMenu(*entry); });
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

}  // namespace

// The viewer's own tool bar: which tool is in hand is shown by the pressed button and by Mode.
QWidget* PlanToolBar(Builder& b, PlanCanvas& canvas) {
  PdfDraw& viewer = b.GetProgram().Viewer();
  Desk& desk = b.GetProgram().GetDesk();
  auto* bar = new QWidget;
  GiveSheet(*bar, OwnSheet::Tools);
  auto* line = new QHBoxLayout(bar);
  line->setContentsMargins(kGrid / 2, kGrid / 2, kGrid / 2, kGrid / 2);
  line->setSpacing(kGrid / 2);
  const std::vector<QToolButton*> tools = ToolButtons(viewer, desk);
  for (QToolButton* tool : tools) line->addWidget(tool);
  line->addSpacing(kGrid / 2);
  for (QToolButton* button : PageButtons(viewer, desk, canvas)) line->addWidget(button);
  line->addSpacing(kGrid / 2);
  QToolButton* draw = DrawButton(b.GetForm(), viewer, desk);
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

}  // namespace tamo
