#include "plans/shownpictures.h"

#include <gtest/gtest.h>

#include "support/fakeplanengine.h"
#include "support/memoryreader.h"

using namespace tamo;
using namespace tamo::test;

namespace {

constexpr int kPatience = 20000;

struct Showing : ::testing::Test {
  FakePlanEngine engine;
  OverlayPictures over{[] {}};
  ShownPictures pictures{over, [] { return QStringLiteral("a.pdf"); }};
  std::vector<bool> painting;
  PlanView view;

  Showing() {
    pictures.onPainting = [this](bool more) { painting.push_back(more); };
    view.width = 100;
    view.height = 80;
  }
  std::shared_ptr<EnginePlan> Plan() {
    auto reader = std::make_shared<MemoryReader>("%PDF-1.4\n");
    return engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
  }
};

}  // namespace

TEST_F(Showing, WithoutAPlanThereIsNothingAndNothingIsWaitedFor) {
  pictures.Look(view);
  EXPECT_EQ(painting, std::vector<bool>{false});
  EXPECT_TRUE(pictures.PicturesFor(view).empty());
  EXPECT_EQ(pictures.Thumbnail(1, 64), nullptr);
  EXPECT_EQ(pictures.PrintPicture(view, nullptr), nullptr);
  EXPECT_FALSE(pictures.WaitUntilSharp(kPatience));
  EXPECT_FALSE(pictures.WaitForCoarse(kPatience));
}

TEST_F(Showing, WhatIsLookedAtIsPainted) {
  pictures.Show(Plan(), {PageSize()});
  pictures.Look(view);
  EXPECT_TRUE(pictures.WaitForCoarse(kPatience));
  EXPECT_TRUE(pictures.WaitUntilSharp(kPatience));
  EXPECT_FALSE(pictures.PicturesFor(view).empty());
  EXPECT_NE(pictures.PrintPicture(view, nullptr), nullptr);
  pictures.Look(view);
  EXPECT_FALSE(painting.back()) << "all is there";
}

TEST_F(Showing, AForgottenPictureIsPaintedAnewADroppedPlanIsNot) {
  pictures.Show(Plan(), {PageSize()});
  pictures.Look(view);
  ASSERT_TRUE(pictures.WaitUntilSharp(kPatience));
  pictures.Forget();
  ASSERT_TRUE(pictures.WaitUntilSharp(kPatience));
  EXPECT_FALSE(pictures.PicturesFor(view).empty());
  pictures.Drop();
  EXPECT_TRUE(pictures.PicturesFor(view).empty());
  EXPECT_EQ(pictures.Thumbnail(1, 64), nullptr);
}

TEST_F(Showing, AnotherPlanLaidOverStandsInItsPlace) {
  engine.size = {50, 40};
  const auto now = Plan();
  pictures.Show(now, {engine.size});
  OverlaySheets sheets = {now, Plan(), 1, SheetFit()};
  over.Show(sheets, 1, {engine.size});
  pictures.Look(view);
  ASSERT_TRUE(over.Shows(1));
  EXPECT_TRUE(pictures.WaitUntilSharp(kPatience));
  EXPECT_EQ(pictures.PicturesFor(view).size(), over.PicturesFor(view).size());
  over.Drop();
  pictures.Look(view);
  EXPECT_TRUE(pictures.WaitUntilSharp(kPatience));
  EXPECT_FALSE(pictures.PicturesFor(view).empty());
}
