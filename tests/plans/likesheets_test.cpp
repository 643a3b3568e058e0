#include "support/likesheets.h"

#include <QElapsedTimer>

#include "plans/likefinder.h"
#include "plans/planfixture.h"

// Sheets with many symbols in all lies, among others that are nearly alike: every one is found,
// none is wrong, and what can't be told is asked about.

using namespace tamo;
using namespace tamo::test;

namespace {

struct LikesOnSheets : PlanFixture {
  LikesFound Find(const LikesSheet& sheet) {
    const QByteArray box = "/MediaBox[0 0 " + QByteArray::number(sheet.width) + ' ' +
                           QByteArray::number(sheet.height) + ']';
    draw = std::make_unique<PdfDraw>(files, engine);
    EXPECT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{box, sheet.content}})), ""), 0);
    SheetLines& lines = draw->Snap().Lines();
    lines.Want(draw->OpenedPlan(), 1);
    EXPECT_TRUE(lines.Wait(60000));
    const LikeSheet likes(lines.Index(), std::make_shared<std::vector<LikeLetter>>());
    CancelFlag cancel;
    std::atomic<int> perCent = 0;
    return FindLikes(likes, sheet.box, cancel, perCent);
  }
};

}  // namespace

TEST_F(LikesOnSheets, EveryOneIsFoundAndNoneIsWrong) {
  for (const SymbolFamily& family : SymbolFamilies()) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
      const LikesSheet sheet = LikesSheetMaker(seed, family, 10, 8, 40).Make();
      const LikesFound found = Find(sheet);
      ASSERT_EQ(found.problem.toStdString(), "");
      std::vector<PagePoint> places;
      std::vector<bool> sure;
      for (const Like& like : found.likes) {
        places.push_back(like.middle);
        sure.push_back(like.doubt.isEmpty());
      }
      const LikesScore score = ScoreOf(sheet, places, sure);
      EXPECT_EQ(score.missed, 0) << family.name << ", sheet " << seed;
      EXPECT_EQ(score.wrong, 0) << family.name << ", sheet " << seed;
      EXPECT_LE(score.asked * 5, score.there) << family.name << ", sheet " << seed;
      EXPECT_GT(score.there, 20);
    }
  }
}
