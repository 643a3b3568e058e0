#include "windows/planpanels.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QShortcut>

#include "plans/ostform.h"
#include "program/program.h"
#include "windows/plancanvas.h"
#include "windows/planloupe.h"
#include "windows/planthumbnails.h"
#include "windows/rowsview.h"

namespace tamo {
namespace {

constexpr int kPanelWidth = 38 * kGrid;

QVBoxLayout* Panel(Builder& b, const char* name, const QString& caption, QWidget*& panel) {
  QFrame* frame = b.Panel(name);
  frame->setFixedWidth(kPanelWidth);
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(kGrid);
  column->addWidget(Section(caption));
  panel = frame;
  return column;
}

QLabel* Words(Builder& b, const char* name) {
  QLabel* words = b.Prompt(name);
  words->setWordWrap(true);
  return words;
}

QWidget* GoTo(Builder& b) {
  QWidget* panel = nullptr;
  QVBoxLayout* column = Panel(b, "GoToFrame", QStringLiteral("Go to sheet"), panel);
  column->addWidget(b.Field("SheetWanted", 0, QStringLiteral("Number, name or page of the sheet")));
  column->addWidget(Words(b, "SheetWords"));
  column->addWidget(b.List("SheetList", QStringLiteral("Sheets"), 0, 8), 1);
  return panel;
}

QWidget* Bookmarks(Builder& b) {
  QWidget* panel = nullptr;
  QVBoxLayout* column = Panel(b, "BookmarkFrame", QStringLiteral("Bookmarks"), panel);
  column->addWidget(Words(b, "BookmarkWords"));
  column->addWidget(b.List("BookmarkList", QStringLiteral("Bookmarks"), 0, 8), 2);
  column->addWidget(Section(QStringLiteral("Links on this sheet")));
  column->addWidget(b.List("LinkList", QStringLiteral("Links on this sheet"), 0, 4), 1);
  return panel;
}

QWidget* Layers(Builder& b) {
  QWidget* panel = nullptr;
  QVBoxLayout* column = Panel(b, "LayerFrame", QStringLiteral("Layers"), panel);
  column->addWidget(Words(b, "LayerWords"));
  column->addWidget(b.List("LayerList", QStringLiteral("Layers"), 0, 8), 1);
  column->addWidget(b.PushButton("ShowAllLayers"));
  return panel;
}

}  // namespace

QWidget* PlanPanels(Builder& b, QWidget* browser) {
  auto* panels = new QWidget;
  auto* grid = new QGridLayout(panels);
  grid->setContentsMargins(0, 0, 0, 0);
  for (QWidget* panel : {browser, GoTo(b), Bookmarks(b), Layers(b)}) grid->addWidget(panel, 0, 0);
  return panels;
}

void BindPlanWays(Builder& b, PlanCanvas& canvas, PlanThumbnails& thumbnails) {
  auto* ost = dynamic_cast<OSTForm*>(&b.GetForm());
  if (ost == nullptr) return;
  PlanWayfinding& ways = ost->Ways();
  canvas.linkAt = [&ways](PagePoint at) {
    const PageLink* link = ways.Bookmarks().LinkAt(at);
    return link == nullptr ? QString() : ways.Bookmarks().TargetInWords(link->target);
  };
  const QPointer<PlanLoupe> loupe = new PlanLoupe(canvas, b.GetProgram().Viewer());
  if (MenuEntry* entry = b.GetForm().FindMenu(QStringLiteral("ShowLoupe"))) {
    entry->onClick = [loupe] {
      if (loupe != nullptr) loupe->Toggle();
    };
  }
  thumbnails.titleOf = [&ways](int page) { return ways.Book().TitleOf(page); };
  ways.onBookNews = [&thumbnails] { thumbnails.viewport()->update(); };
  QObject::connect(&thumbnails, &QObject::destroyed, &thumbnails,
                   [&ways] { ways.onBookNews = nullptr; });
  const std::pair<QKeySequence, const char*> keys[] = {
      {QKeySequence(Qt::CTRL | Qt::Key_G), "GoToSheet"},
      {QKeySequence(Qt::CTRL | Qt::Key_B), "ShowBookmarks"},
      {QKeySequence(Qt::CTRL | Qt::Key_L), "ShowLayers"},
      {QKeySequence(Qt::ALT | Qt::Key_Left), "JumpBack"},
      {QKeySequence(Qt::ALT | Qt::Key_Right), "JumpForward"}};
  Desk& desk = b.GetProgram().GetDesk();
  for (const auto& [sequence, name] : keys) {
    MenuEntry* entry = b.GetForm().FindMenu(QLatin1String(name));
    if (entry == nullptr) continue;
    auto* shortcut = new QShortcut(sequence, &b.Window());
    QObject::connect(shortcut, &QShortcut::activated, &b.Window(),
                     [&desk, entry] { desk.ChooseMenu(*entry); });
  }
}

}  // namespace tamo
