#pragma once

#include "windows/look.h"

class QWidget;

namespace tamo {

// Menus, the tools above a plan and offered names have their looks from style sheets. All else is
// drawn by the style itself: a sheet is matched against each widget that is measured or painted,
// which took a third of the time until the first window stood.
enum class OwnSheet { None, Tools, Offer };

// `widget` and what is in it get the sheet when they are first shown. A menu has its own unasked.
void GiveSheet(QWidget& widget, OwnSheet sheet);

// Puts on `widget` the sheet that it is to have in the colours of the look, if it has not got it.
void PutOnSheet(QWidget& widget, const Look& look);

}  // namespace tamo
