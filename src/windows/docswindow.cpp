#include "windows/formlayouts.h"
namespace tamo {
void LayOutDocs(Builder&) {}
}  // namespace tamo
