#pragma once

namespace tamo {

// In what the paper is measured.
enum class PaperUnit { Inches = 0, Centimetres = 1, Millimetres = 2 };

}  // namespace tamo
