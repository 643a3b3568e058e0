#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "common/sharedfields.h"

namespace tamo {

// The library's name of a system, whatever the case of `name`; empty when it has none.
QString InLibrary(const QStringList& systems, const QString& name);

// A new system of the library without a price, to be priced later: its file with the takeoff unit
// `units`, and its name at the top of the list. "" when it was made; else why not, and nothing was
// changed. A name with a comma, a quotation mark or more than 20 characters is refused. What the
// disk does not take is tried again with the pending saves.
QString MakeEmptySystem(Files& files, const SharedFields& shared, const QString& name,
                        const QString& units);

// Those of the systems that have neither a unit price nor a material, in the project where it has
// the system, else in the library.
QStringList Unpriced(Files& files, const SharedFields& shared, const QStringList& systems);

}  // namespace tamo
