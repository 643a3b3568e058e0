#include "pricing/systemexchange.h"

#include "common/paths.h"
#include "pricing/exchange.h"
#include "pricing/steps.h"

namespace tamo {
namespace {

constexpr char kPrintFont[] = "MS Gothic";
constexpr int kPrintPoints = 12;

}  // namespace

SystemExchange::SystemExchange(const Kit& kit, const PricingParts& parts,
                               std::function<void()> beforeImport,
                               std::function<void()> afterImport)
    : kit_(kit),
      p_(parts),
      beforeImport_(std::move(beforeImport)),
      afterImport_(std::move(afterImport)) {
  BindMenus();
  BindPicker();
}

void SystemExchange::BindMenus() {
  PricingMenus& menus = p_.menus;
  menus.CopySystem.SetEnabled(false);
  menus.PasteSystem.SetEnabled(false);
  menus.CopySystem.onClick = [this] { Copy(); };
  menus.PasteSystem.onClick = [this] { Paste(); };
  menus.ExportSystem.onClick = [this] { Export(); };
  menus.ImportSystem.onClick = [this] {
    ExchangeControls& c = p_.exchange;
    c.IELabel.SetCaption(QStringLiteral("Import System"));
    c.File1.Show();
    c.File1.SetFolder(c.Dir1.Folder());
    c.IEFrame.Show();
  };
  menus.PrintSystem.onClick = [this] { Print(); };
}

void SystemExchange::BindPicker() {
  ExchangeControls& c = p_.exchange;
  c.Drive1.onPick = [&c] {
    c.Dir1.SetFolder(c.Drive1.Folder());
    c.File1.SetFolder(c.Drive1.Folder());
  };
  c.Dir1.SetFolder(NativePath(kit_.platform.homeFolder));
  c.Dir1.onPick = [&c] { c.File1.SetFolder(c.Dir1.Folder()); };
  const auto putAway = [&c](Key& key) {
    if (!key.Is(Key::Name::Escape)) return;
    key.Drop();
    c.IEFrame.Hide();
  };
  c.Drive1.onKey = putAway;
  c.File1.onKey = putAway;
  c.Dir1.onKey = [this, putAway](Key& key) {
    putAway(key);
    if (!key.dropped) PressInFolders(key);
  };
  c.File1.onPick = [this] { Import(); };
}

// Keys that only walk in the folders export nothing.
void SystemExchange::PressInFolders(Key& key) {
  for (const Key::Name walking :
       {Key::Name::Up, Key::Name::Down, Key::Name::Left, Key::Name::Right}) {
    if (key.Is(walking)) return;
  }
  if (p_.exchange.File1.Shown()) return;
  key.Drop();
  ExportInto(p_.exchange.Dir1.Folder());
}

// --- within a run ---

void SystemExchange::Copy() {
  p_.exchange.CopySys.SetRows(p_.blocks.Rows());
  p_.menus.PasteSystem.SetEnabled(!p_.exchange.CopySys.Empty());
}

// The materials change; name, units and price stay.
void SystemExchange::Paste() {
  p_.open.RequireOwnName();
  p_.blocks.Take(p_.exchange.CopySys.Rows());
  p_.open.SaveSystem();
  OrderedList& names = p_.materials.MaterialList;
  if (!names.Empty()) names.SetIndex(names.Count() - 1);
  p_.refresh.PrintReport();
}

// --- files ---

void SystemExchange::Export() {
  if (p_.system.Description.Empty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral("Please load system that you wish to export."));
    return;
  }
  p_.exchange.IELabel.SetCaption(QStringLiteral("Export System"));
  p_.exchange.File1.Hide();
  p_.exchange.IEFrame.Show();
  FocusByCommand(kit_.desk, p_.exchange.Dir1);
}

void SystemExchange::ExportInto(const QString& folder) {
  p_.exchange.IEFrame.Hide();
  const QString& name = p_.system.Description.Text();
  if (name.isEmpty()) return;
  RequireFileName(name);
  kit_.files.Sweep(folder);
  kit_.files.SaveText(InFolder(folder, SystemFileName(name)), ExportedText(p_.open.AsFile()));
}

// The file is looked at whole before anything changes.
void SystemExchange::Import() {
  const FileBrowser& file = p_.exchange.File1;
  p_.exchange.IEFrame.Hide();
  const ImportedSystem imported = ReadExported(kit_.files, InFolder(file.Folder(), file.File()));
  if (!imported.refusal.isEmpty()) {
    kit_.desk.GetMessages().Tell(imported.refusal);
    return;
  }
  beforeImport_();
  Take(imported.system);
  p_.price.MakeEUP();
  p_.refresh.PrintReport();
}

// The library takes over the prices of the file, also those of materials that it knew.
void SystemExchange::Take(const SystemFile& system) {
  p_.open.Take(system);
  p_.open.TakeName();
  p_.open.Write();
  SaveImportedMaterial();
  afterImport_();
}

void SystemExchange::SaveImportedMaterial() {
  for (int place = 0; place < p_.blocks.Count(); ++place)
    p_.material.SaveMaterial(p_.blocks.At(place));
  if (!p_.blocks.Empty()) p_.materials.MaterialList.SetIndex(0);
}

// --- paper ---

void SystemExchange::Print() {
  const QString& name = p_.system.Description.Text();
  if (name.isEmpty()) return;
  Printer& printer = kit_.platform.printer;
  if (!printer.BeginPrint(name)) return;
  printer.SetFont(QString::fromLatin1(kPrintFont), kPrintPoints);
  for (const QString& line : PrintedSystem(p_.open.AsFile())) printer.PrintLine(line);
  printer.EndPage();
  printer.EndPrint();
}

}  // namespace tamo
