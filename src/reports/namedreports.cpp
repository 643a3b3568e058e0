#include "reports/namedreports.h"

#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/projectinformation.h"
#include "reports/quantities.h"
#include "reports/recap.h"
#include "reports/schedulecheck.h"

namespace tamo {
namespace {

// In the order of ReportKind.
constexpr NamedReport kReports[] = {
    {ReportKind::Recap, "recap", "Recap Sheet"},
    {ReportKind::DetailedRecap, "detailed-recap", "Detailed Recap"},
    {ReportKind::Quantities, "quantities", "Quantities"},
    {ReportKind::BillOfMaterial, "bill", "Bill Of Materials"},
    {ReportKind::BreakDown, "breakdown", "BreakDown"},
    {ReportKind::OfficeCopy, "office-copy", "Office Copy"},
    {ReportKind::FieldCopy, "field-copy", "Field Copy"},
    {ReportKind::ProjectInformation, "information", "Project Information"},
    {ReportKind::ScheduleCheck, "schedule-check", "Schedule Check"},
    {ReportKind::WhatChanged, "changes", "What Changed"},
};

}  // namespace

std::span<const NamedReport> NamedReports() {
  return kReports;
}

const NamedReport& NamedReportOf(ReportKind kind) {
  return kReports[static_cast<size_t>(kind)];
}

const NamedReport* FindReport(const QString& name) {
  for (const NamedReport& report : kReports) {
    if (name == QLatin1String(report.name)) return &report;
  }
  return nullptr;
}

Report MakeReport(ReportKind kind, const ReportSource& source, const ReportFacts& facts,
                  QString& adjustment) {
  switch (kind) {
    case ReportKind::Recap:
    case ReportKind::DetailedRecap:
      return MinimalRecapSheet(source, facts.markups, kind == ReportKind::DetailedRecap,
                               adjustment);
    case ReportKind::Quantities:
      return Quantities(source);
    case ReportKind::BillOfMaterial:
      return BillofMaterial(source);
    case ReportKind::BreakDown:
      return BreakDown(MakeBreak(source, facts.markups, adjustment), source.table);
    case ReportKind::OfficeCopy:
      return OfficeCopy(source, facts.markups);
    case ReportKind::FieldCopy:
      return FieldCopy(source);
    case ReportKind::ProjectInformation:
      return ProjectInformation(facts.jobID, facts.project, source.table);
    case ReportKind::ScheduleCheck:
      return ScheduleCheck(source);
    case ReportKind::WhatChanged:
      break;
  }
  return {};
}

}  // namespace tamo
