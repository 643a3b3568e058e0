#include <gtest/gtest.h>

#include <QBuffer>
#include <QGraphicsView>
#include <QPdfWriter>
#include <QPushButton>
#include <memory>

#include "windows/application.h"
#include "windows/chartmodule.h"
#include "windows/chartwindow.h"
#include "windows/filedialog.h"

namespace tamo::test {
namespace {

ChartData Walls() {
  ChartData data{QStringLiteral("Recap Sheet - <Riverside> & Clinic"),
                 QStringLiteral("Total $ 92747.00"),
                 {QStringLiteral("GWB Partition A"), QStringLiteral("Wall Paint"),
                  QStringLiteral("Wall Paint"), QString()},
                 {}};
  data.series = {{QStringLiteral("Labor"), {27240, 3220, 3365, 1}},
                 {QStringLiteral("Material"), {14479, 1779, 3216, 1}},
                 {QStringLiteral("Markups"), {12984, 1554, 2008, 1}},
                 {QStringLiteral("Unit price"), {0, 0, 0, 0}}};
  return data;
}

// Where a picture is wanted: TAMO_PICTURES names a folder.
void KeepPicture(QWidget& widget, const char* name) {
  const QString folder = qEnvironmentVariable("TAMO_PICTURES");
  if (!folder.isEmpty()) widget.grab().save(folder + u'/' + QLatin1String(name));
}

class Chart : public WithApplication, public ::testing::Test {};

TEST_F(Chart, SaysInWordsWhatItShows) {
  const std::unique_ptr<QWidget> view(NewChartView(Walls(), ChartColoursOfScreen()));
  EXPECT_NE(qobject_cast<QGraphicsView*>(view.get()), nullptr) << "what draws charts is not there";
  EXPECT_TRUE(view->accessibleDescription().contains(QStringLiteral(
      "GWB Partition A: Labor $ 27240.00, Material $ 14479.00, Markups $ 12984.00")));
  view->resize(900, 600);
  view->show();
  KeepPicture(*view, "chart.png");
}

TEST_F(Chart, ItsWindowIsReachedByKeys) {
  RealDisk disk;
  ChartWindow window(
      Walls(), disk, [](const FileQuestion&) { return QString(); }, nullptr);
  window.setAttribute(Qt::WA_DeleteOnClose, false);
  window.show();
  QStringList captions;
  for (const QPushButton* button : window.findChildren<QPushButton*>()) captions += button->text();
  EXPECT_EQ(captions, QStringList({QStringLiteral("&Print ..."), QStringLiteral("&Save as PDF ..."),
                                   QStringLiteral("&Close")}));
  KeepPicture(window, "chartwindow.png");
}

TEST_F(Chart, IsPaintedOnPaper) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&bytes);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageOrientation(QPageLayout::Landscape);
    PaintChart(Walls(), writer);
  }
  EXPECT_TRUE(bytes.data().startsWith("%PDF-"));
  EXPECT_GT(bytes.data().size(), 4000);
}

TEST(FileDialog, KnowsTheEndingOfAFilter) {
  EXPECT_EQ(EndingOfFilter(QStringLiteral("PDF (*.pdf)")), QStringLiteral("pdf"));
  EXPECT_EQ(EndingOfFilter(QStringLiteral("Sheets (*.xlsx *.csv)")), QStringLiteral("xlsx"));
  EXPECT_EQ(EndingOfFilter(QStringLiteral("All files (*)")), QString());
}

}  // namespace
}  // namespace tamo::test
