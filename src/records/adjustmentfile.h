#pragma once

#include <QString>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The price adjustment of a project: one value, read delimited (what stands behind a comma is
// lost). Error numbers as Files has them; `amount` keeps its text when there is nothing to read.
int ReadAdjustment(Files& files, const ProjectFolder& project, QString& amount);
int WriteAdjustment(Files& files, const ProjectFolder& project, const QString& amount);

}  // namespace tamo
