#pragma once

#include <vector>

#include "plans/comparedsheets.h"
#include "plans/pagecontent.h"

namespace tamo {

// What is written otherwise on the new sheet, letter by letter at their places, whole lines named:
// `8'-0" became 9'-0"`, "Gone: ...", "New: ...", "Moved: ...". However the file cuts its texts into
// pieces; letters that cannot be seen (behind a scan, outside the sheet) are left out. Boxes are on
// the new sheet, around both lines.
std::vector<ChangedPlace> TextChangesOf(const PageContent& old, const PageContent& now,
                                        const SheetFit& fit);

// The smallest upright box around a box of the old sheet.
PageBox FittedBox(const SheetFit& fit, const PageBox& box);

}  // namespace tamo
