#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "player/step.h"

namespace tamo::player {

// The lines of a scenario file; "-" is standard input. False when it can't be read.
bool ReadScenarioLines(const QString& file, QStringList& lines);

// The folder in which a scenario stands; "." for standard input.
QString ScenarioFolder(const QString& file);

// The steps of a scenario as they are played: in the place of each `use FILE` stand the steps of
// that file, which may use others. FILE is sought beside the file in which the step stands, then
// beside the scenario. A file that can't be read, or that would use itself, leaves a step with an
// error.
std::vector<Step> StepsOf(const QString& file, const QStringList& lines);

}  // namespace tamo::player
