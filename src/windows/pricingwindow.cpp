#include "windows/formlayouts.h"
namespace tamo {
void LayOutPricing(Builder&) {}
}  // namespace tamo
