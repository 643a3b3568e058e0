#pragma once

namespace tamo {

// Tells readers of screens what the program's own widgets are: windows, swatches that are buttons,
// sample lines that are pictures. Called once, before the first window; more calls do nothing.
void InstallAccessibility();

}  // namespace tamo
