#pragma once

#include <QString>
#include <span>

#include "records/markupsfile.h"
#include "reports/projectrecord.h"
#include "reports/reportsource.h"

namespace tamo {

enum class ReportKind {
  Recap,
  DetailedRecap,
  Quantities,
  BillOfMaterial,
  BreakDown,
  OfficeCopy,
  FieldCopy,
  ProjectInformation,
  ScheduleCheck,
  WhatChanged,
};

// A report as a user of the command line asks for it, and as a saved one is called.
struct NamedReport {
  ReportKind kind;
  const char* name;   // one word
  const char* title;  // as the menus call it
};
std::span<const NamedReport> NamedReports();
const NamedReport& NamedReportOf(ReportKind kind);
// By its name; nullptr when there is none.
const NamedReport* FindReport(const QString& name);

// What the reports count beside the files of the takeoff.
struct ReportFacts {
  Markups markups;
  QString jobID;
  ProjectFacts project;
};

// A report of the bid as it stands in `source`. Not WhatChanged, which needs a former state.
// `adjustment` is the text that the reports hold and takes that of the project's file.
Report MakeReport(ReportKind kind, const ReportSource& source, const ReportFacts& facts,
                  QString& adjustment);

}  // namespace tamo
