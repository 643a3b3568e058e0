// "Find Same" on generated sheets of some 200,000 lines: symbols turned by any angle, mirrored,
// touching and crossed, among larger and smaller ones and others nearly alike. Tells what was
// found, asked about, missed and wrong, and how long it took. The argument is the number of sheets
// of each kind.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "figureline.h"
#include "plans/likefinder.h"
#include "support/likesheets.h"

namespace {

using namespace tamo;
using namespace tamo::test;
using Clock = std::chrono::steady_clock;

struct Sum {
  LikesScore score;
  int others = 0;
  size_t lines = 0;
  double seconds = 0;
  double longest = 0;
};

void Look(const LikesSheet& sheet, Sum& sum) {
  const auto index = std::make_shared<SnapIndex>(SnapLinesOf(ContentOf(sheet)));
  const auto start = Clock::now();
  const LikeSheet likes(index, std::make_shared<std::vector<LikeLetter>>());
  CancelFlag cancel;
  std::atomic<int> perCent = 0;
  const LikesFound found = FindLikes(likes, sheet.box, cancel, perCent);
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::vector<PagePoint> places;
  std::vector<bool> sure;
  for (const Like& like : found.likes) {
    places.push_back(like.middle);
    sure.push_back(like.doubt.isEmpty());
  }
  const LikesScore score = ScoreOf(sheet, places, sure);
  sum.score.there += score.there;
  sum.score.found += score.found;
  sum.score.asked += score.asked;
  sum.score.missed += score.missed;
  sum.score.wrong += score.wrong;
  sum.score.doubted += score.doubted;
  sum.others += sheet.others;
  sum.lines = std::max(sum.lines, index->Lines());
  sum.seconds += seconds;
  sum.longest = std::max(sum.longest, seconds);
}

}  // namespace

int main(int count, char** arguments) {
  const int sheets = count > 1 ? std::max(1, std::atoi(arguments[1])) : 3;
  for (const SymbolFamily& family : SymbolFamilies()) {
    Sum sum;
    for (int seed = 1; seed <= sheets; ++seed)
      Look(LikesSheetMaker(unsigned(seed), family, 27, 18, 1500).Make(), sum);
    const LikesScore& score = sum.score;
    std::printf(
        "%s: %d there, %d found, %d asked, %d missed, %d wrong; %d others, %d of them asked; "
        "%zu lines, %.2f s, longest %.2f s\n",
        family.name, score.there, score.found, score.asked, score.missed, score.wrong, sum.others,
        score.doubted, sum.lines, sum.seconds / sheets, sum.longest);
    const std::string found = "Find Same, " + std::string(family.name) + ": found (" +
                              std::to_string(score.missed) + " missed, " +
                              std::to_string(score.wrong) + " wrong)";
    bench::TellFigure(found, score.found, "there", score.there, 1, "");
    bench::TellFigure("Find Same, " + std::string(family.name) + ": the search, up to " +
                          std::to_string(sum.lines) + " lines",
                      sum.seconds / sheets * 1e3, "the longest", sum.longest * 1e3);
  }
  return 0;
}
