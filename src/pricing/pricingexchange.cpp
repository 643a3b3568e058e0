#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "pricing/exchange.h"
#include "pricing/pricingform.h"
#include "records/materialfile.h"

// Copy and paste within a run, export and import through files, and the printed page.

namespace tamo {
namespace {

constexpr char kPrintFont[] = "MS Gothic";
constexpr int kPrintPoints = 12;

}  // namespace

void PricingForm::SetUpExchange() {
  CopySystem.onClick = [this] { Copy(); };
  PasteSystem.onClick = [this] { Paste(); };
  ExportSystem.onClick = [this] { Export(); };
  ImportSystem.onClick = [this] {
    IELabel.SetCaption(QStringLiteral("Import System"));
    File1.Show();
    File1.SetFolder(Dir1.Folder());
    IEFrame.Show();
  };
  PrintSystem.onClick = [this] { Print(); };
  Drive1.onPick = [this] {
    Dir1.SetFolder(Drive1.Folder());
    File1.SetFolder(Drive1.Folder());
  };
  Dir1.SetFolder(NativePath(kit_.platform.homeFolder));
  Dir1.onPick = [this] { File1.SetFolder(Dir1.Folder()); };
  const auto putAway = [this](Key& key) {
    if (!key.Is(Key::Name::Escape)) return;
    key.Drop();
    IEFrame.Hide();
  };
  Drive1.onKey = putAway;
  File1.onKey = putAway;
  Dir1.onKey = [this, putAway](Key& key) {
    // Keys that only walk in the folders export nothing.
    for (const Key::Name walking :
         {Key::Name::Up, Key::Name::Down, Key::Name::Left, Key::Name::Right}) {
      if (key.Is(walking)) return;
    }
    putAway(key);
    if (key.dropped || File1.Shown()) return;
    key.Drop();
    ExportInto(Dir1.Folder());
  };
  File1.onPick = [this] { Import(); };
}

// --- within a run ---

void PricingForm::Copy() {
  CopySys.SetRows(System.Rows());
  PasteSystem.SetEnabled(!CopySys.Empty());
}

// The materials change; name, units and price stay.
void PricingForm::Paste() {
  const QStringList rows = CopySys.Rows();
  System.SetRows(rows);
  MaterialList.SetRows(MaterialNames(rows));
  StoreSystem();
  if (!MaterialList.Empty()) MaterialList.SetIndex(MaterialList.Count() - 1);
  refresh_.PrintReport();
}

// --- files ---

void PricingForm::Export() {
  if (Description.Empty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral("Please load system that you wish to export."));
    return;
  }
  IELabel.SetCaption(QStringLiteral("Export System"));
  File1.Hide();
  IEFrame.Show();
  Insist(Dir1);
}

void PricingForm::ExportInto(const QString& folder) {
  IEFrame.Hide();
  if (Description.Empty()) return;
  RefuseOrGoOn(Description.Text());
  kit_.files.SaveText(InFolder(folder, SystemFileName(Description.Text())),
                      pricing::ExportedText(OpenSystem()));
}

// The file is looked at whole before anything changes.
void PricingForm::Import() {
  IEFrame.Hide();
  const pricing::ImportedSystem imported =
      pricing::ReadExported(kit_.files, InFolder(File1.Folder(), File1.File()));
  if (!imported.refusal.isEmpty()) {
    kit_.desk.GetMessages().Tell(imported.refusal);
    return;
  }
  const SystemFile& system = imported.system;
  EmptySystem();
  Description.SetText(system.description);
  Units.SetText(system.units);
  UnitPrice.SetText(system.unitPrice);
  LineColor = system.lineColor;
  PaintLine();
  System.SetRows(system.blocks);
  FramePricing.Show();
  if (Value(UnitPrice.Text()) == 0) {
    ShowLabor();
  } else {
    LandMFrame.Hide();
    EUP.Hide();
    Label9.Hide();
  }
  WriteSystem();
  SaveImportedMaterial();
  MakeEUP();
  refresh_.PrintReport();
}

// The library takes over the prices of the file, also those of materials that it knew.
void PricingForm::SaveImportedMaterial() {
  MaterialList.Clear();
  for (int row = 0; row < System.Count(); row += kBlockRows) {
    const MaterialBlock block = MaterialBlock::At(System.Rows(), row);
    kit_.files.SaveText(MaterialPath(kit_.shared, block.material),
                        MaterialFileText(block, {block.upoTag}, {block.mnhrTag}));
    MaterialList.Add(block.material);
  }
  if (!MaterialList.Empty()) MaterialList.SetIndex(0);
}

// --- paper ---

void PricingForm::Print() {
  if (Description.Empty()) return;
  Printer& printer = kit_.platform.printer;
  if (!printer.BeginPrint(Description.Text())) return;
  printer.SetFont(QString::fromLatin1(kPrintFont), kPrintPoints);
  for (const QString& line : pricing::PrintedSystem(OpenSystem())) printer.PrintLine(line);
  printer.EndPage();
  printer.EndPrint();
}

}  // namespace tamo
