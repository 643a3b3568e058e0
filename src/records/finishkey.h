#pragma once

#include <QString>
#include <vector>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// Which system of the library an architect's finish code means ("CPT-1" is "Carpet Broadloom").
struct FinishChoice {
  QString code;
  QString system;  // empty: the code is left out
};
using FinishKey = std::vector<FinishChoice>;

// The system of a code, whatever the code's case; empty when it is left out or not in the key.
QString SystemOfCode(const FinishKey& key, const QString& code);
bool InFinishKey(const FinishKey& key, const QString& code);
// Sets a code's system, at the end of the key when the code is new.
void SetSystemOfCode(FinishKey& key, const QString& code, const QString& system);

// The key of a project, and the one that the next bid begins with. Two lines a code: the code, then
// its system or an empty line. Read by whole lines; an odd last line is a code that is left out.
// Error numbers as Files has them; without a file the key is empty.
int ReadFinishKey(Files& files, const ProjectFolder& project, FinishKey& key);
int WriteFinishKey(Files& files, const ProjectFolder& project, const FinishKey& key);
int ReadFinishKey(Files& files, const DataFolder& data, FinishKey& key);
int WriteFinishKey(Files& files, const DataFolder& data, const FinishKey& key);

}  // namespace tamo
