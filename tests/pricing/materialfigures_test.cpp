#include "pricing/materialfigures.h"

#include <gtest/gtest.h>

#include "records/materialblock.h"

namespace tamo {
namespace {

QStringList Block(const char* upo, const char* upoTag, const char* mnhr, const char* mnhrTag) {
  MaterialBlock block;
  block.material = QStringLiteral("Drywall");
  block.orderUnits = QStringLiteral("SHT");
  block.price = QStringLiteral("12.00");
  block.upo = QLatin1String(upo);
  block.upoTag = QLatin1String(upoTag);
  block.mnhrPO = QLatin1String(mnhr);
  block.mnhrTag = QLatin1String(mnhrTag);
  block.wageRate = QStringLiteral("50.00");
  return block.Rows();
}

TEST(MaterialFigures, BothDirectionsOfBothNumbers) {
  const MaterialFigures per = FiguresOf(Block("32", kUpo, "64", kUpm), 0);
  EXPECT_EQ(per.quantity, QStringLiteral("0.031 SHT"));
  EXPECT_EQ(per.cost, QStringLiteral("0.38"));  // 12 / 32 is .375
  EXPECT_EQ(per.labor, QStringLiteral("0.78"));
  const MaterialFigures times = FiguresOf(Block("1.5", kOpu, ".02", kMpu), 0);
  EXPECT_EQ(times.quantity, QStringLiteral("1.50 SHT"));
  EXPECT_EQ(times.cost, QStringLiteral("18.00"));
  EXPECT_EQ(times.labor, QStringLiteral("1.00"));
}

TEST(MaterialFigures, OfTheMaterialInItsRow) {
  const QStringList system = Block("32", kUpo, "64", kUpm) + Block("2", kOpu, "1", kMpu);
  EXPECT_EQ(FiguresOf(system, 1).quantity, QStringLiteral("2.00 SHT"));
  EXPECT_EQ(FiguresOf(system, 2).quantity, QString());
}

TEST(MaterialFigures, WhatIsNotThereYetIsEmpty) {
  const MaterialFigures none = FiguresOf(Block("0", kUpo, "", ""), 0);
  EXPECT_EQ(none.quantity, QString());
  EXPECT_EQ(none.cost, QString());
  EXPECT_EQ(none.labor, QString());
  EXPECT_EQ(FiguresOf(QStringList(kBlockRows, QString()), 0).quantity, QString());
}

}  // namespace
}  // namespace tamo
