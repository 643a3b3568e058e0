#include "reports/cents.h"

#include <gtest/gtest.h>

namespace tamo::test {
namespace {

TEST(Cents, TheEntriesThatBringThemAreNamed) {
  const QStringList items = {QStringLiteral("Bond                     33.33"),
                             QStringLiteral("Permit                  300.00")};
  EXPECT_EQ(EntriesWithCents(items, QStringLiteral("-12.50")),
            (QStringList{QStringLiteral("the item \"Bond\", 33.33"),
                         QStringLiteral("the adjustment, -12.50")}));
  EXPECT_EQ(EntriesWithCents(items.mid(1), QStringLiteral("-850")), QStringList());
  EXPECT_EQ(EntriesWithCents({}, QStringLiteral("0.00")), QStringList());
}

TEST(Cents, TheSumIsSaidInPlainFigures) {
  EXPECT_EQ(
      CentsNote({QStringLiteral("the item \"Bond\", 33.33")}, QStringLiteral("The total"), 35121.5),
      QStringLiteral("Entered with cents: the item \"Bond\", 33.33. The total in plain "
                     "figures is 35121.50."));
  EXPECT_EQ(CentsNote({}, QStringLiteral("The total"), 34.9965),
            QStringLiteral("The markup of the bottom line items has cents. The total in plain "
                           "figures is 35.00."));
}

}  // namespace
}  // namespace tamo::test
