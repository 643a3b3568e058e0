#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "records/inusefile.h"

namespace tamo {

// What the estimator reads about a project that another program has open. `now` is the time here.
QString ReadOnlyText(const InUse& sign, const QDateTime& now);
QString ReadOnlyTitle(const InUse& sign);
QString TakeOverQuestion(const InUse& sign, const QDateTime& now);
// `unsaved`: the files that were not saved before that.
QString TakenOverText(const InUse& sign, const QStringList& unsaved);
// The project is this program's again. `waiting`: files that it could not save before it lost it.
QString WaitingQuestion(const QStringList& waiting);
QString UnsignedTitle();
QString GoneText();
QString GoneTitle();

}  // namespace tamo
