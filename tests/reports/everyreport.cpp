#include "everyreport.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/notebook.h"
#include "reports/quantities.h"
#include "reports/recap.h"

namespace tamo::test {

Markups RandomMarkups(unsigned seed) {
  const QString texts[] = {QStringLiteral(".10"), QStringLiteral("0"),    QString(),
                           QStringLiteral("ten"), QStringLiteral("-.05"), QStringLiteral("12")};
  Markups markups;
  for (QString* text :
       {&markups.LOH, &markups.LTX, &markups.LMU, &markups.MOH, &markups.MTX, &markups.MMU,
        &markups.BLOH, &markups.BLTX, &markups.BLMU, &markups.MIOH, &markups.MITX, &markups.MIMU}) {
    *text = texts[seed % 6];
    seed = seed / 6 + 7 * (seed % 5);
  }
  return markups;
}

namespace {

Report Make(int report, const ReportSource& source, const Markups& markups) {
  QString adjustment;
  switch (report) {
    case 0:
      return MinimalRecapSheet(source, markups, false, adjustment);
    case 1:
      return MinimalRecapSheet(source, markups, true, adjustment);
    case 2:
      return DetailedRecapSheet(source, markups);
    case 3:
      return Quantities(source);
    case 4:
      return BillofMaterial(source);
    case 5:
      return BreakDown(MakeBreak(source, markups, adjustment));
    case 6:
      return FieldCopy(source);
    default:
      return OfficeCopy(source, markups);
  }
}

}  // namespace

Outcome Play(int report, const ReportSource& source, const Markups& markups) {
  try {
    Uncounted uncounted;
    ReportSource told = source;
    if (told.uncounted == nullptr) told.uncounted = &uncounted;
    const Report made = Make(report, told, markups);
    // Whether a file is missing or gone depends on what was read before, and no figure on that.
    QStringList notes;
    for (const QString& sentence : told.uncounted->Sentences()) {
      if (!sentence.contains(ReadReasonText(kGone))) notes += sentence;
    }
    for (const ReportNote& note : made.notes) {
      for (const int row : note.rows) EXPECT_LT(row, made.lines.size());
      notes += NoteLine(note);
    }
    return {made.lines.ToList(), notes, {}};
  } catch (const RunTimeFailure& failure) {
    EXPECT_FALSE(failure.text.isEmpty());
    return {{}, {}, failure.text};
  }
}

}  // namespace tamo::test
