#pragma once

#include <QString>
#include <array>

#include "common/files.h"
#include "common/sharedfields.h"
#include "records/datafolder.h"

namespace tamo {

// The twelve markups as typed. Each is a fraction: .10 means ten percent, and a 10 that was meant
// as ten percent loads the cost eleven times. A text with no number counts as 0.
struct Markups {
  QString MOH, MTX, MMU;     // material: overhead, tax, markup
  QString LOH, LTX, LMU;     // labor
  QString BLOH, BLTX, BLMU;  // bottom line
  QString MIOH, MITX, MIMU;  // misc.

  // The twelve in the order of the file: bottom line before misc.
  std::array<QString*, 12> InFileOrder();
};

// Reads the project's file, or the master file when there never was one. Texts that a short file
// does not reach, or all of them when there is no file at all, stay as they are. Returns the error
// number of the last open.
int LoadMarkups(Files& files, const SharedFields& shared, Markups& into);

// The file that LoadMarkups would read holds more than was last read of it.
bool MarkupsAreBehind(Files& files, const SharedFields& shared);

// Writes the project's file with a project open, the master file otherwise.
int SaveMarkups(Files& files, const SharedFields& shared, Markups markups);

}  // namespace tamo
