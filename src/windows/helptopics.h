#pragma once

#include "common/form.h"

namespace tamo {

class Program;

// F1: brings up the documentation at the page of the field in focus, of the report, of the mode.
void ShowHelp(Program& program, Form& front);

}  // namespace tamo
