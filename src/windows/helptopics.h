#pragma once

#include "common/form.h"

namespace tamo {

class Program;

// F1: brings up the documentation at the topic of the form in front.
void ShowHelp(Program& program, Form& front);

}  // namespace tamo
