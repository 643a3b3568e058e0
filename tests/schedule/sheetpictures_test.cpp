#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>
#include <functional>

#include "engine/mupdfengine.h"
#include "recogniser.h"
#include "schedule/sheetpictures.h"
#include "schedule/tesseract.h"
#include "support/doubles.h"
#include "support/sourcefile.h"

// A scanned sheet is read by another program, when there is one and somebody wants it.

namespace tamo {
namespace {

const PageBox kBox = {100, 140, 758.53, 523.02};
const std::vector<QStringList> kRows = {{"NO.", "NAME", "FLOOR", "BASE", "WALLS", "CEILING"},
                                        {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
                                        {"102", "OFFICE", "CPT-1", "RB-1", "P-2", ""},
                                        {"103", "STORAGE", "VCT-1", "RB-2", "P-1", "ACT-2"}};
const char kPrint[] = "echo \"$@\" > $here/asked; head -c 17 \"$1\" > $here/head; cat $here/table";

SheetToRead Scan() {
  static MuPdfEngine engine;
  SheetToRead sheet;
  RealDisk disk;
  std::shared_ptr<FileReader> file;
  disk.OpenToRead(test::SourceFile(QStringLiteral("tests/data/schedules/scan.pdf")), file);
  sheet.plan = engine.NewPlan(std::make_shared<PlanSource>(file, file->Size()));
  sheet.plan->Open({});
  sheet.box = kBox;
  sheet.withLegend = true;
  return sheet;
}

class ScannedSheet : public testing::Test {
 protected:
  SheetRead Read(bool answer, int patience = Tesseract::kPatience) {
    const Tesseract recogniser(patience);
    messages_.answers = {answer};
    return ReadOrOffer(Scan(), std::make_shared<const SheetPictures>(recogniser), ask_,
                       [](int, int) { return true; });
  }
  void ExpectRefused(const SheetRead& read, const char* why) {
    EXPECT_TRUE(read.parts.empty());
    EXPECT_TRUE(read.problem.contains(QLatin1String(why))) << read.problem.toStdString();
  }

  test::ScriptedMessages messages_;
  const std::function<bool(const QString&)> ask_ = [this](const QString& question) {
    return messages_.Ask(question);
  };
};

TEST_F(ScannedSheet, IsReadAndNoCellIsSure) {
  const FakeRecogniser fake(kPrint, TableOf(kRows));
  const SheetRead read = Read(true);
  EXPECT_EQ(read.problem, "");
  ASSERT_EQ(read.parts.size(), 1u);
  ASSERT_EQ(read.parts[0].rows.size(), 3u);
  for (size_t row = 0; row < 3; ++row) {
    const std::vector<ScheduleCell>& cells = read.parts[0].rows[row].cells;
    ASSERT_EQ(cells.size(), 6u);
    for (size_t i = 0; i < cells.size(); ++i) {
      EXPECT_EQ(cells[i].text, kRows[row + 1][qsizetype(i)]);
      EXPECT_EQ(std::count(cells[i].doubts.begin(), cells[i].doubts.end(), Doubt::FromPicture), 1);
    }
  }
  const PageBox lobby = read.parts[0].rows[0].cells[1].box;
  EXPECT_NEAR(lobby.left, kBox.left + 120, 1);  // on the page
  EXPECT_NEAR(lobby.bottom, kBox.top + 47.2, 1);
  EXPECT_TRUE(fake.Written("asked").endsWith("stdout --psm 6 --dpi 300 tsv\n"));
  EXPECT_EQ(fake.Written("head").left(13), "P5\n2743 1595\n");
  ASSERT_EQ(messages_.texts.size(), 1);
  EXPECT_TRUE(messages_.texts[0].contains("Read the picture?"));
}

TEST_F(ScannedSheet, NoLeavesItUnread) {
  const FakeRecogniser fake(kPrint, TableOf(kRows));
  ExpectRefused(Read(false), "hidden behind a scanned picture");
  EXPECT_EQ(fake.Written("asked"), "");
}

TEST_F(ScannedSheet, WithoutAProgramNothingIsAsked) {
  const FakeRecogniser none("");
  ExpectRefused(Read(true), "hidden behind a scanned picture");
  EXPECT_TRUE(messages_.texts.isEmpty());
  const SheetRead without = ReadOrOffer(Scan(), nullptr, ask_, {});
  ExpectRefused(without, "hidden behind a scanned picture");
  EXPECT_TRUE(messages_.texts.isEmpty());
}

TEST_F(ScannedSheet, AProgramThatFailsIsSaid) {
  const FakeRecogniser fake("cat $here/table; exit 1", TableOf(kRows));
  ExpectRefused(Read(true), "tesseract failed");
}

TEST_F(ScannedSheet, NonsenseIsSaid) {
  const FakeRecogniser fake("cat $here/table", "Too few characters.\n5\t1\tx\n");
  ExpectRefused(Read(true), "No word was found");
}

TEST_F(ScannedSheet, WordsOfNoScheduleAreSaid) {
  const FakeRecogniser fake("cat $here/table", TableOf({{"SECTION", "A"}, {"SCALE", "NONE"}}));
  ExpectRefused(Read(true), "no room finish schedule");
}

TEST_F(ScannedSheet, AProgramThatHangsIsEnded) {
  const FakeRecogniser fake("exec sleep 30");
  QElapsedTimer since;
  since.start();
  ExpectRefused(Read(true, 200), "takes too long");
  EXPECT_LT(since.elapsed(), 20000);
}

TEST_F(ScannedSheet, EscapeStopsTheProgram) {
  const FakeRecogniser fake("touch $here/begun; exec sleep 30");
  const Tesseract recogniser;
  messages_.answers = {true};
  const SheetRead read =
      ReadOrOffer(Scan(), std::make_shared<const SheetPictures>(recogniser), ask_,
                  [&fake](int, int) { return !QFile::exists(fake.Path("begun")); });
  ExpectRefused(read, "was stopped");
}

TEST_F(ScannedSheet, ItsPictureIsPaintedInGrey) {
  GreyPicture picture;
  CancelFlag stop;
  EXPECT_EQ(PaintGrey(*Scan().plan, 1, kBox, stop, picture), "");
  EXPECT_EQ(picture.pixels.size(), qsizetype(picture.width) * picture.height);
  const auto dark = std::count_if(picture.pixels.begin(), picture.pixels.end(),
                                  [](char grey) { return uchar(grey) < 100; });
  EXPECT_GT(dark, 1000);
  EXPECT_LT(dark, picture.pixels.size() / 2);
  EXPECT_NE(PaintGrey(*Scan().plan, 99, kBox, stop, picture), "");
  EXPECT_NE(PaintGrey(*Scan().plan, 1, {-50, -50, -10, -10}, stop, picture), "");
}

}  // namespace
}  // namespace tamo
