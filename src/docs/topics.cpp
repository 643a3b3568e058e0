#include "docs/topics.h"

#include <utility>

namespace tamo {
namespace {

constexpr Topic kTopics[] = {
    {"Mission Statement", "MissionDocs.tamo"},
    {"Getting Started", "StartDocs.tamo"},
    {"Projects", "ProjectsDocs.tamo"},
    {"     Open Project", "OpenProjectDocs.tamo"},
    {"     Clear Project", "ClearProjectDocs.tamo"},
    {"     Create Project", "NewProjectDocs.tamo"},
    {"     Project Information", "ProjectInformationDocs.tamo"},
    {"     Lock/Unlock Project", "LockUnlockProjectDocs.tamo"},
    {"     Copy Project", "CopyProjectDocs.tamo"},
    {"     Paste Project", "PasteProjectDocs.tamo"},
    {"     Delete Project", "DeleteProjectDocs.tamo"},
    {"Pricing", "PricingDocs.tamo"},
    {"     Building Systems", "BuildingSystemsDocs.tamo"},
    {"     Markups", "MarkupsDocs.tamo"},
    {"     Copy System", "CopySystemDocs.tamo"},
    {"     Paste System", "PasteSystemDocs.tamo"},
    {"     Import System", "ImportSystemDocs.tamo"},
    {"     Export System", "ExportSystemDocs.tamo"},
    {"     Exit", "ExitPricingDocs.tamo"},
    {"Estimate", "EstimateDocs.tamo"},
    {"     Room Finish Schedule", "RFSDocs.tamo"},
    {"          Enter Room Finish Schedule", "EnterRFSDocs.tamo"},
    {"          Estimate Room Finish Schedule", "EstimateRFSDocs.tamo"},
    {"     Non Room Finish Schedule Items", "NonRFSDocs.tamo"},
    {"     Bottom Line Items", "BottomLineDocs.tamo"},
    {"     Price Adjustment", "PriceAdjustDocs.tamo"},
    {"Reports", "ReportsDocs.tamo"},
    {"     Project Information", "ProjectInformationDocs.tamo"},
    {"     Quantities", "QuantitiesDocs.tamo"},
    {"     Recap Sheet", "RecapSheetDocs.tamo"},
    {"     Area/Room Detailed Report", "AreaRoomDetailDocs.tamo"},
    {"     Bill of Material", "BillOfMaterialDocs.tamo"},
    {"     Billing Help", "BillingHelpDocs.tamo"},
    {"DSW", "OSTDocs.tamo"},
    {"     Zoom Out", "ZoomOutDocs.tamo"},
    {"     Zoom In", "ZoomInDocs.tamo"},
    {"     Scale", "ScaleDocs.tamo"},
    {"     Files", "FilesDocs.tamo"},
    {"     Save", "SaveDocs.tamo"},
    {"     Print", "PrintDocs.tamo"},
    {"Documentation", "DocumentationDocs.tamo"},
    {"Settings", "SettingsDocs.tamo"},
    {"Exit", "ExitOSTDocs.tamo"},
};

}  // namespace

std::span<const Topic> Topics() {
  return kTopics;
}

QString FileOfTopic(const QString& row) {
  for (const Topic& topic : kTopics) {
    if (row == QLatin1String(topic.row)) return QLatin1String(topic.file);
  }
  return {};
}

namespace {

struct FieldTopic {
  const char* form;
  const char* fields;  // with a blank around each; "" for the form itself
  const char* file;
};

constexpr FieldTopic kFields[] = {
    {"Tamo", " JobsList ", "OpenProjectDocs.tamo"},
    {"Tamo", " JobName BidDate Addenda Phase BidItems Inclusions Exclusions Architect Notes ",
     "ProjectInformationDocs.tamo"},
    {"Tamo", "", "ProjectsDocs.tamo"},
    {"HomePage", "", "StartDocs.tamo"},
    {"Settings", "", "SettingsDocs.tamo"},
    {"Pricing", " MOH MTX MMU LOH LTX LMU BLOH BLTX BLMU MIOH MITX MIMU ExitMarkups ",
     "MarkupsDocs.tamo"},
    {"Pricing", " Drive1 Dir1 File1 ", "ImportSystemDocs.tamo"},
    {"Pricing",
     " Units UnitPrice Material OrderUnits Price UPO MnhrPO Waste WageRate MaterialList "
     "PricingNotes ",
     "BuildingSystemsDocs.tamo"},
    {"Pricing", "", "PricingDocs.tamo"},
    {"RFSForm", "", "EnterRFSDocs.tamo"},
    {"Schedule", "", "EnterRFSDocs.tamo"},
    {"EstimateForm", "", "NonRFSDocs.tamo"},
    {"BottomLine", "", "BottomLineDocs.tamo"},
    {"AdjustmentForm", "", "PriceAdjustDocs.tamo"},
    {"OST", " Scale1 Scale2 Text5 KnownDimension CheckDimension SetInches ", "ScaleDocs.tamo"},
    {"OST", " Drive1 Dir1 File1 PlanLocation ", "FilesDocs.tamo"},
    {"OST", " ZoomLevel ", "ZoomInDocs.tamo"},
    {"OST", "", "OSTDocs.tamo"},
    {"Reports", "", "ReportsDocs.tamo"},
    {"Versions", "", "VersionsDocs.tamo"}};

// By the title in a report's first line.
constexpr std::pair<const char*, const char*> kReports[] = {
    {"Recap Sheet", "RecapSheetDocs.tamo"},
    {"Quantities", "QuantitiesDocs.tamo"},
    {"Bill Of Materials", "BillOfMaterialDocs.tamo"},
    {"Project Information", "ProjectInformationDocs.tamo"},
    {"Project Manager", "AreaRoomDetailDocs.tamo"}};

}  // namespace

QString FileOfField(const QString& form, const QString& field) {
  const QByteArray sought = ' ' + field.toLatin1() + ' ';
  for (const FieldTopic& row : kFields) {
    const QByteArray fields = row.fields;
    if (form == QLatin1String(row.form) && (fields.isEmpty() || fields.contains(sought)))
      return QLatin1String(row.file);
  }
  return QStringLiteral("DocumentationDocs.tamo");
}

QString FileOfReport(const QString& title) {
  for (const auto& [name, file] : kReports) {
    if (title.trimmed() == QLatin1String(name)) return QLatin1String(file);
  }
  return QStringLiteral("ReportsDocs.tamo");
}

}  // namespace tamo
