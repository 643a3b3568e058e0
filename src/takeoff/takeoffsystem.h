#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "common/sharedfields.h"

namespace tamo {

// What a takeoff line takes from the system it names.
struct TakeoffSystem {
  QString units;       // as it stands in the file; "" when there is no such system
  QString lineColour;  // nine digits; the settings' colour when the system has no such code
};

// Reads the project's copy of the system `name`; when there is none, fetches it from the library
// first (`fetched` then holds its lines). `error` is the number of the last failure, 0 when the
// system was found.
TakeoffSystem LoadTakeoffSystem(Files& files, const SharedFields& shared, const QString& name,
                                QStringList& fetched, int& error);

// Copies the system `name` from the library into the project. A system that is not in the library,
// or a project without a folder for systems, is passed over in silence. Returns the number of the
// failure.
int ImportTakeoffSystem(Files& files, const SharedFields& shared, const QString& name,
                        QStringList& fetched);

}  // namespace tamo
