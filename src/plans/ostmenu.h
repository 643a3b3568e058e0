#pragma once

#include <memory>
#include <vector>

#include "common/form.h"
#include "workspace/swatches.h"

namespace tamo {

// The menu bar of the plan form, in its order: the entries of the shell of mode 2, then those of
// the plan itself, with every scale. The entries are reached by their names; the form gives its own
// their handlers, the program those of the shell.
std::vector<std::unique_ptr<MenuEntry>> MakeOstMenu(Form& form);

// The entry that gives the chosen mark this colour.
QString ColourEntry(const SwatchRow& row);

}  // namespace tamo
