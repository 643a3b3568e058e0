#pragma once

#include <QSize>

#include "windows/builder.h"

namespace tamo {

// One layout for each form, in a file of its own: which widget stands where, and nothing else.
void LayOutTamo(Builder& builder);
void LayOutSettings(Builder& builder);
void LayOutPricing(Builder& builder);
void LayOutRFSForm(Builder& builder);
void LayOutEstimateForm(Builder& builder);
void LayOutBottomLine(Builder& builder);
void LayOutAdjustmentForm(Builder& builder);
void LayOutOST(Builder& builder);
void LayOutSchedule(Builder& builder);
void LayOutReports(Builder& builder);
void LayOutDocs(Builder& builder);
void LayOutVersions(Builder& builder);

// The layout of a form of that name; false when there is none (a form that is never shown).
bool LayOut(Builder& builder);

}  // namespace tamo
