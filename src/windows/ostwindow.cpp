#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProgressDialog>
#include <QSplitter>
#include <memory>
#include <utility>

#include "program/program.h"
#include "windows/comparepanel.h"
#include "windows/findbar.h"
#include "windows/findonplan.h"
#include "windows/formlayouts.h"
#include "windows/groupstrip.h"
#include "windows/planbinding.h"
#include "windows/plancolumn.h"
#include "windows/planmarks.h"
#include "windows/planpanels.h"
#include "windows/planthumbnails.h"
#include "windows/plantoolbar.h"
#include "windows/roles.h"

// The plan: thumbnails on the left, the plan in the middle with its tools over it, a narrow column
// of what is looked at all the time on the right.

namespace tamo {
namespace {

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

// Words above the plan: of the tool in hand, and what speaks against the scale. Two lines are
// always there, so that the plan stays where it is when words come and go; what is longer is in the
// tool tip.
QWidget* Words(Builder& b) {
  auto* words = new QWidget;
  auto* line = new QHBoxLayout(words);
  line->setContentsMargins(kGrid, 0, kGrid, kGrid / 2);
  line->setSpacing(2 * kGrid);
  for (const char* name : {"ToolHint", "ScaleNote"}) {
    QLabel* label = b.Text(name);
    label->setFont(PromptFont());
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setFixedHeight(2 * label->fontMetrics().lineSpacing());
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
  auto keys = std::make_unique<PlanKeys>(*canvas, viewer, desk);
  const auto choose = [&b, &desk](const char* name) {
    MenuEntry* entry = b.GetForm().FindMenu(QLatin1String(name));
    return [entry, &desk] {
      if (entry != nullptr) desk.ChooseMenu(*entry);
    };
  };
  keys->onZoomIn = choose("ZoomIn");
  keys->onZoomOut = choose("ZoomOut");
  keys->onGroups = choose("CountGroups");
  if (Control* box = b.Find("picPdfDraw")) b.Bind<PlanBinding>(*box, *canvas, std::move(keys));
  FormWindow* window = &b.Window();
  viewer.onPrint = [canvas] { canvas->Print(); };
  viewer.onBringToFront = [window] { window->raise(); };
  viewer.onSaveProgress = SaveProgress(*window);
  return canvas;
}

FindBar* FindText(Builder& b, PlanCanvas& canvas) {
  std::vector<std::unique_ptr<FindPlace>> places;
  places.push_back(std::make_unique<FindOnPlan>(b.GetProgram().Viewer(), canvas, b.GetDisplay()));
  auto* find = new FindBar(std::move(places), b.GetDisplay(), QStringLiteral("the plan"));
  find->OpenByKey(b.Window());
  return find;
}

// What stands between the thumbnails and the plan; both share its height as the user likes.
QWidget* Beside(Builder& b) {
  auto* beside = new QSplitter(Qt::Vertical);
  beside->setChildrenCollapsible(false);
  beside->setHandleWidth(2);
  beside->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  beside->addWidget(PlanPanels(b, Browser(b)));
  beside->addWidget(ComparePanel(b));
  return beside;
}

}  // namespace

void LayOutOST(Builder& b) {
  b.Window().UseWholeWindow();
  PlanCanvas* canvas = Canvas(b);
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  PlanThumbnails* thumbnails = Thumbnails(b, *canvas);
  row->addWidget(thumbnails);
  row->addWidget(Beside(b));
  BindPlanWays(b, *canvas, *thumbnails);
  auto* middle = new QVBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(PlanToolBar(b, *canvas));
  middle->addWidget(GoesTo(b));
  middle->addWidget(Colours(b));
  middle->addWidget(Password(b));
  middle->addWidget(GroupStrip(b));
  middle->addWidget(Words(b));
  middle->addWidget(canvas, 1);
  middle->addWidget(FindText(b, *canvas));
  middle->addWidget(PlanMarks(b));
  row->addLayout(middle, 1);
  row->addWidget(PlanColumn(b));
  FormWindow& window = b.Window();
  window.Body().addLayout(row, 1);
  QLabel* keys = NewFootLabel(
      QStringLiteral("On the plan: arrows move the cross hair, Space sets a point, Enter goes back "
                     "to the field."));
  keys->setFont(PromptFont());
  MakeQuiet(*keys);
  window.StatusLine().addWidget(keys);
  window.firstSize = {1340, 700};
}

}  // namespace tamo
