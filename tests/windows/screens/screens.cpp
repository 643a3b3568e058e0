#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QScrollArea>
#include <QTemporaryDir>

#include "windows/bodyarea.h"
#include "windows/keeperroom.h"

// Every window on a small screen: it lies whole on it, and every button and field can be scrolled
// into sight:  test_screens WIDTHxHEIGHTxPERCENT

namespace tamo {
namespace {

int perCent = 100;

const char* const kForms[] = {"Tamo",         "Settings",   "Pricing",        "RFSForm",
                              "EstimateForm", "BottomLine", "AdjustmentForm", "OST",
                              "Reports",      "Docs",       "Versions",       "Schedule"};

struct ScreensTest : testing::Test, test::KeeperRoom {
  ScreensTest() {
    QFont font = QApplication::font();
    font.setPointSizeF(10.5 * perCent / 100);
    QApplication::setFont(font);
    ApplyLook(Look::Light());
    PutLines(Path("home/Tamo/Descriptions.tamo"), {QStringLiteral("Wall Paint")});
    program.Shared().JobID = QStringLiteral("07-2611004");
    program.Shared().JobName = QStringLiteral("A Clinic With a Name That Is Rather Long");
  }
};

void ShowAllFrames(Form& form) {
  for (Control* control : form.Controls()) {
    if (dynamic_cast<Frame*>(control) != nullptr) control->Show();
  }
}

// Scrolls to it and looks whether all of it then stands in the window.
bool CanBeSeen(QWidget& widget, const QWidget& window) {
  BringIntoSight(widget);
  test::Settle();
  const QRect place(widget.mapTo(&window, QPoint()), widget.size());
  QRect seen = window.rect();
  for (QWidget* at = widget.parentWidget(); at != &window; at = at->parentWidget())
    seen &= QRect(at->mapTo(&window, QPoint()), at->size());
  return seen.contains(place.center()) && seen.intersected(place).width() >= place.width() / 2;
}

TEST_F(ScreensTest, EveryButtonAndFieldOfEveryWindowCanBeReached) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const char* name : kForms) {
    SCOPED_TRACE(name);
    Form& form = FormOf(name);
    ShowAllFrames(form);
    form.Show();
    windows.SyncNow();
    test::Settle();
    ASSERT_TRUE(form.Visible());
    FormWindow& window = Window(name);
    EXPECT_LE(window.width(), screen.width());
    EXPECT_LE(window.height(), screen.height());
    EXPECT_TRUE(screen.contains(window.geometry()));
    for (Control* control : form.Controls()) {
      QWidget* widget = windows.WidgetOf(*control);
      if (widget == nullptr || !widget->isVisible() || dynamic_cast<Frame*>(control) != nullptr)
        continue;
      EXPECT_TRUE(CanBeSeen(*widget, window))
          << widget->mapTo(&window, QPoint()).x() << ' ' << widget->mapTo(&window, QPoint()).y()
          << ' ' << widget->width() << 'x' << widget->height() << ' '
          << control->FullName().toStdString() << " of a window " << window.width() << " wide, "
          << window.height() << " high";
    }
    form.Hide();
    windows.SyncNow();
  }
}

}  // namespace
}  // namespace tamo

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QStringList words = QString::fromLocal8Bit(argc > 1 ? argv[1] : "800x600x100").split(u'x');
  if (words.size() != 3) return 2;
  tamo::perCent = words[2].toInt();
  const QTemporaryDir folder;
  const QString described = folder.filePath(QStringLiteral("screen.json"));
  QFile file(described);
  if (!file.open(QIODevice::WriteOnly)) return 2;
  file.write(QStringLiteral(R"({"screens":[{"name":"screen","x":0,"y":0,"width":%1,"height":%2,)"
                            R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
                 .arg(words[0], words[1])
                 .toUtf8());
  file.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(described));
  return RUN_ALL_TESTS();
}
