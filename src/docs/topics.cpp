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

QString FileOfForm(const QString& form) {
  static constexpr std::pair<const char*, const char*> forms[] = {
      {"Tamo", "ProjectsDocs.tamo"},
      {"Settings", "SettingsDocs.tamo"},
      {"Pricing", "PricingDocs.tamo"},
      {"RFSForm", "RFSDocs.tamo"},
      {"EstimateForm", "NonRFSDocs.tamo"},
      {"BottomLine", "BottomLineDocs.tamo"},
      {"AdjustmentForm", "PriceAdjustDocs.tamo"},
      {"OST", "OSTDocs.tamo"},
      {"Reports", "ReportsDocs.tamo"},
      {"Versions", "VersionsDocs.tamo"}};
  for (const auto& [name, file] : forms) {
    if (form == QLatin1String(name)) return QLatin1String(file);
  }
  return QStringLiteral("DocumentationDocs.tamo");
}

}  // namespace tamo
