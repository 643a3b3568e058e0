#include "windows/homelayout.h"

#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "plans/planpictures.h"
#include "program/program.h"
#include "windows/homecell.h"
#include "windows/plainbindings.h"
#include "windows/planpaint.h"
#include "windows/roles.h"
#include "windows/scrolled.h"

namespace tamo {
namespace {

constexpr int kLongSide = 480;       // pixels of the plan's small picture
constexpr int kUntilItIsThere = 15;  // milliseconds between two looks for it, at first
constexpr int kSeldom = 10'000;      // for a sheet that can't be painted

// The plan's sheet in small, under its name.
class PlanCell : public HomeCell {
 public:
  PlanCell(PdfDraw& viewer, PlanPictures* pictures) : viewer_(viewer), pictures_(pictures) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    again_.setSingleShot(true);
    connect(&again_, &QTimer::timeout, this, [this] { update(); });
  }
  QSize minimumSizeHint() const override { return {18 * kGrid, TextHeight() + 8 * kGrid}; }

 protected:
  void PaintMore(QPainter& painter, const QRect& place) override {
    if (pictures_ == nullptr || viewer_.ShownFile().isEmpty() || place.height() < kGrid) return;
    const QString sheet = viewer_.ShownFile() + QString::number(viewer_.Page());
    if (std::exchange(sheet_, sheet) != sheet) wait_ = kUntilItIsThere;
    const std::shared_ptr<const Picture> picture = pictures_->Thumbnail(viewer_.Page(), kLongSide);
    if (picture == nullptr) {
      again_.start(wait_);
      wait_ = std::min(2 * wait_, kSeldom);
      return;
    }
    const QImage image = ImageOf(*picture);
    const QSize size = image.size().scaled(place.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(place.topLeft(), size), image);
  }

 private:
  PdfDraw& viewer_;
  PlanPictures* pictures_;
  QTimer again_;
  QString sheet_;  // that is waited for
  int wait_ = kUntilItIsThere;
};

// A way to begin, with a sentence on what it is.
class WayCell : public HomeCell {
 public:
  explicit WayCell(const QString& sentence) : sentence_(sentence) {
    setAccessibleDescription(sentence);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }
  QSize minimumSizeHint() const override { return {22 * kGrid, 9 * kGrid}; }
  QSize sizeHint() const override { return {40 * kGrid, 12 * kGrid}; }

 protected:
  bool HasMore() const override { return true; }
  void PaintMore(QPainter& painter, const QRect& place) override {
    painter.setFont(PromptFont());
    painter.setPen(CurrentLook().quiet);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, sentence_);
  }

 private:
  const QString sentence_;
};

template <class Cell>
Cell* Placed(Builder& b, const char* name, Cell* cell) {
  cell->setObjectName(QLatin1String(name));
  if (auto* button = b.Find<Button>(name)) b.Bind<ButtonBinding>(*button, *cell);
  cell->setFocusPolicy(Qt::TabFocus);
  return cell;
}

QWidget* Figure(Builder& b, const char* name, HomeCell::Weight weight = HomeCell::Weight::Plain) {
  return Placed(b, name, new HomeCell(weight));
}

QLabel* Large(Builder& b, const char* name) {
  QLabel* label = b.Text(name);
  label->setTextFormat(Qt::PlainText);
  label->setFont(FigureFont());
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return label;
}

QWidget* ProjectState(Builder& b) {
  QWidget* state = b.Group("HomeState");
  auto* column = ColumnIn(state);
  column->addWidget(Large(b, "HomeName"));
  QLabel* number = b.Text("HomeNumber");
  MakeQuiet(*number);
  column->addWidget(number);
  QLabel* uncounted = b.Text("HomeUncounted");
  uncounted->setWordWrap(true);
  GiveRole(*uncounted, Role::Tag);
  column->addWidget(uncounted);
  auto* grid = new QGridLayout;
  grid->setSpacing(kGrid);
  grid->addWidget(Figure(b, "HomeTotal", HomeCell::Weight::Strong), 0, 0, 1, 2);
  grid->addWidget(Figure(b, "HomeHours", HomeCell::Weight::Strong), 0, 2);
  const char* rows[3][3] = {{"HomeBidDate", "HomeRooms", "HomeAreas"},
                            {"HomeEmptyLines", "HomeUnpriced", "HomeItems"},
                            {"HomeAdjustment", "HomeLast", nullptr}};
  for (int row = 0; row < 3; ++row) {
    for (int at = 0; at < 3; ++at) {
      if (rows[row][at] == nullptr) continue;
      const int span = row == 2 && at == 1 ? 2 : 1;
      grid->addWidget(Figure(b, rows[row][at]), row + 1, at, 1, span);
    }
  }
  for (int at = 0; at < 3; ++at) grid->setColumnStretch(at, 1);
  column->addLayout(grid);
  column->addWidget(Placed(b, "HomeThumbnail", new PlanCell(b.GetProgram().Viewer(), b.Pictures())),
                    1);
  return state;
}

QWidget* Recent(Builder& b, const QString& caption, const char* none, const QString& names) {
  auto* box = new QWidget;
  auto* column = ColumnIn(box);
  column->addWidget(Section(caption));
  column->addWidget(b.Prompt(none));
  for (int i = 1; i <= 5; ++i)
    column->addWidget(Figure(b, (names + QString::number(i)).toLatin1().constData()));
  column->addStretch(1);
  return box;
}

QWidget* WaysToBegin(Builder& b) {
  QWidget* start = b.Group("HomeStart");
  auto* column = ColumnIn(start, 2 * kGrid);
  auto* title = new QLabel(QStringLiteral("No project is open"));
  title->setFont(FigureFont());
  column->addWidget(title);
  const std::pair<const char*, const char*> ways[] = {
      {"HomeSample", "A whole bid to look around in: rooms, prices, a plan and every report."},
      {"HomeCreate", "A new bid, with its number, its name and its bid date."},
      {"HomeOpen", "The list of the projects of this data folder."},
      {"HomeGuide", "The first lesson of the manual."}};
  auto* grid = new QGridLayout;
  grid->setSpacing(kGrid);
  int at = 0;
  for (const auto& [name, sentence] : ways) {
    grid->addWidget(Placed(b, name, new WayCell(QLatin1String(sentence))), at / 2, at % 2);
    ++at;
  }
  column->addLayout(grid, 1);
  auto* recent = NewRow(3 * kGrid);
  recent->addWidget(
      Recent(b, QStringLiteral("Last projects"), "HomeNoProjects", QStringLiteral("HomeProject")),
      1);
  recent->addWidget(
      Recent(b, QStringLiteral("Last plans"), "HomeNoPlans", QStringLiteral("HomePlan")), 1);
  column->addLayout(recent, 1);
  return start;
}

}  // namespace

QWidget* HomePageOf(Builder& b) {
  QWidget* page = b.Group("HomePage");
  auto* inner = new QWidget;
  auto* column = ColumnIn(inner);
  column->addWidget(ProjectState(b), 1);
  column->addWidget(WaysToBegin(b), 1);
  // A small window scrolls it.
  ColumnIn(page)->addWidget(Scrolled(inner, 12 * kGrid));
  return page;
}

}  // namespace tamo
