#pragma once

#include <array>
#include <memory>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "pricing/nameindex.h"
#include "pricing/palette.h"
#include "pricing/projectnumberseed.h"
#include "pricing/prompts.h"
#include "pricing/reportrefresh.h"
#include "pricing/settingsreader.h"
#include "records/markupsfile.h"
#include "records/materialblock.h"
#include "records/namelists.h"
#include "records/systemfile.h"

namespace tamo {

// The price library: building systems, their materials, the estimated unit price, the markups, and
// the exchange of systems. Each field answers Enter, saves what must be saved and leads to the next
// one; an empty field steps out.
//
// What a change leaves is on the disk before the next key. A name that can't be a file's name is
// refused with a message and nothing is written.
class PricingForm : public Form {
 public:
  // All of it outlives the form.
  PricingForm(const Kit& kit, ReportRefresh& refresh, SettingsReader& settings,
              ProjectNumberSeed& seed);
  ~PricingForm() override;

  // --- what other parts of the program ask for ---
  // Reads the lists and the markups and paints the palette; once, at the start.
  void Init();
  // The entry UnitsPricing of a shell: shows the form ready for a system's name, or hides it.
  void ToggleUnitsPricing(Form* owner = nullptr);
  // The entry Pricing2 of a shell: shows or hides the form.
  void TogglePricing2(Form* owner = nullptr);
  // A system that the takeoff misses: shows the form with the name in Description and the focus
  // there.
  void ShowWithName(const QString& name, Form* owner = nullptr);
  void LoadMarkups();  // the project's, or the master's, into the twelve fields
  tamo::Markups MarkupTexts() const;
  void LoadDescriptions();

  // --- the named operations of the form ---
  void LoadUnits();
  void LoadMaterials();
  void LoadOrderUnits();
  void SaveDescriptions();  // writes nothing when the first row is empty
  void SaveUnits();         // no flow calls it: Units.tamo is kept outside the program
  void SaveMaterials();
  void SaveOrderUnits();
  void SaveWagesList();  // written, never read
  void SaveSystem();
  // True when the system has a file. False begins a new one, with the focus in Units.
  bool LoadSystem();
  void SaveMaterial();
  void LoadMaterial();
  void SaveMarkups();
  // The estimated unit price of the open system. A conversion number of 0 brings its material up,
  // puts the focus on the number and raises a RunTimeFailure that names it.
  void MakeEUP();
  double ActualProfit() const;
  void ShowSystem();
  void EndSystem();
  void ClearStuff();
  void ClearSomeStuff();
  void SetUpoUpm();

  // The open system's colour code, nine digits, "" or "NoColor".
  QString LineColor;
  // The sum of the bottom line prices as the breakdown left it; kept for the reports.
  QString TotalBL;

  MenuEntry UnitsPricing{*this, "UnitsPricing", "&Unit Pricing"};
  MenuEntry Markups{*this, "Markups", "&Markups"};
  MenuEntry CopySystem{*this, "CopySystem", "&Copy System"};
  MenuEntry PasteSystem{*this, "PasteSystem", "&Paste System"};
  MenuEntry ImportSystem{*this, "ImportSystem", "&Import System"};
  MenuEntry ExportSystem{*this, "ExportSystem", "&ExportSystem"};
  MenuEntry PrintSystem{*this, "PrintSystem", "P&rint System"};
  MenuEntry Xit{*this, "Xit", "E&xit"};
  MenuEntry SystemMenu{*this, "SystemMenu", "System", nullptr, true};
  MenuEntry SystemDelete{*this, "SystemDelete", "Delete System", &SystemMenu};
  MenuEntry SystemCancel{*this, "SystemCancel", "Cancel", &SystemMenu};
  MenuEntry MaterialMenu{*this, "MaterialMenu", "Material", nullptr, true};
  MenuEntry MaterialDelete{*this, "MaterialDelete", "Delete Material", &MaterialMenu};
  MenuEntry MaterialInsert{*this, "MaterialInsert", "Insert Material", &MaterialMenu};
  MenuEntry MaterialCancel{*this, "MaterialCancel", "Cancel", &MaterialMenu};

  // The system. Controls stand in the order in which Tab walks them.
  Label LabelDescription{*this, "LabelDescription", "System Name:"};
  TextField Description{*this, "Description"};
  OrderedList DescriptionsList{*this, "DescriptionsList"};
  Frame FramePricing{*this, "FramePricing"};
  Label LabelUnits{*this, "LabelUnits", "TakeOff Units:"};
  TextField Units{*this, "Units"};
  OrderedList UnitsList{*this, "UnitsList"};
  Label LabelUnitPrice{*this, "LabelUnitPrice", "UnitPrice:"};
  TextField UnitPrice{*this, "UnitPrice"};
  Label Label3{*this, "Label3", "Leave UnitPrice blank and press Enter to use labor and material"};
  Swatch Line1{*this, "Line1"};

  // Labor and material.
  Frame LandMFrame{*this, "LandMFrame"};
  Label LabelMaterial{*this, "LabelMaterial", "Material:"};
  TextField Material{*this, "Material"};
  OrderedList MaterialsList{*this, "MaterialsList"};
  Label Label18{*this, "Label18", "Leave blank and press Enter to finish."};
  Label LabelOrderUnits{*this, "LabelOrderUnits", "Order Units:"};
  TextField OrderUnits{*this, "OrderUnits"};
  OrderedList oUnitsList{*this, "oUnitsList"};
  Label LabelPrice{*this, "LabelPrice", "Cost per "};
  TextField Price{*this, "Price"};
  Label LabelUPO{*this, "LabelUPO"};
  TextField UPO{*this, "UPO"};
  Label Label5{*this, "Label5", "Leave blank and press Enter to use "};
  Label LabelMnhr{*this, "LabelMnhr"};
  TextField MnhrPO{*this, "MnhrPO"};
  Label Label8{*this, "Label8", "Leave blank and press Enter to use Manhours per "};
  Label Label4{*this, "Label4", "Waste %:"};
  TextField Waste{*this, "Waste"};
  Label Label7{*this, "Label7", "Wage Rate:"};
  TextField WageRate{*this, "WageRate"};
  OrderedList WagesList{*this, "WagesList"};
  OrderedList MaterialList{*this, "MaterialList"};
  Label Label9{*this, "Label9", "  Estimated Unit Price"};
  Label Label19{*this, "Label19"};
  Label EUP{*this, "EUP"};

  Button Command1{*this, "Command1", "Notes"};
  Button Command2{*this, "Command2", "Color"};
  TextField PricingNotes{*this, "PricingNotes"};

  // The palette: fifteen swatches by their names, one for no colour, and the background's number.
  Frame ColorFrame{*this, "ColorFrame"};
  std::vector<std::unique_ptr<Swatch>> Palette;
  Swatch iNoColor{*this, "iNoColor", "No Color"};
  Label Label20{*this, "Label20", "Background"};

  Frame MarkupsFrame{*this, "MarkupsFrame"};
  Label LabelMOH{*this, "LabelMOH", "Material Overhead :"};
  TextField MOH{*this, "MOH"};
  Label LabelMTX{*this, "LabelMTX", "Material Tax :"};
  TextField MTX{*this, "MTX"};
  Label LabelMMU{*this, "LabelMMU", "Material Markup:"};
  TextField MMU{*this, "MMU"};
  Label LabelLOH{*this, "LabelLOH", "Labor Overhead :"};
  TextField LOH{*this, "LOH"};
  Label LabelLTX{*this, "LabelLTX", "Laborl Tax :"};
  TextField LTX{*this, "LTX"};
  Label LabelLMU{*this, "LabelLMU", "Labor Markup:"};
  TextField LMU{*this, "LMU"};
  Label LabelBLOH{*this, "LabelBLOH", "Bottom Line Overhead :"};
  TextField BLOH{*this, "BLOH"};
  Label LabelBLTX{*this, "LabelBLTX", "Bottom Line Tax :"};
  TextField BLTX{*this, "BLTX"};
  Label LabelBLMU{*this, "LabelBLMU", "Bottom Line Markup :"};
  TextField BLMU{*this, "BLMU"};
  Label LabelMIOH{*this, "LabelMIOH", "Misc. Overhead :"};
  TextField MIOH{*this, "MIOH"};
  Label LabelMITX{*this, "LabelMITX", "Misc. Tax :"};
  TextField MITX{*this, "MITX"};
  Label LabelMIMU{*this, "LabelMIMU", "Misc. Markup:"};
  TextField MIMU{*this, "MIMU"};
  Button ExitMarkups{*this, "ExitMarkups", "Exit Markups"};

  // Import and export. The frame is in its short form while File1 is hidden.
  Frame IEFrame{*this, "IEFrame"};
  Label IELabel{*this, "IELabel"};
  FileBrowser Drive1{*this, "Drive1", FileBrowser::Kind::Drive};
  FileBrowser Dir1{*this, "Dir1", FileBrowser::Kind::Folder};
  FileBrowser File1{*this, "File1", FileBrowser::Kind::File, "*.sys"};

  // Lists that are never shown.
  OrderedList System{*this, "System"};    // the open system's blocks, twelve rows a material
  OrderedList nth{*this, "nth"};          // ordinal words
  OrderedList CopySys{*this, "CopySys"};  // the copied blocks

 private:
  enum class Keys { Any, FileName, Money, Whole };

  // The fields of a material that the library can fill.
  enum Fillable : size_t {
    kOrderUnitsField,
    kPriceField,
    kUpoField,
    kMnhrPOField,
    kWasteField,
    kWageRateField,
    kFillables
  };

  void SetUpFrames();
  void SetUpLists();
  void SetUpPalette();
  void SetUpSystemChain();
  void SetUpMaterialChain();
  void SetUpRatios();
  void SetUpMarkups();
  void SetUpExchange();
  void OnEnter(TextField& field, Keys keys, std::function<void()> enter);
  void OnGotFocus(TextField& field, std::function<void()> also = {});
  void Drops(OrderedList& list, TextField& field, std::function<void(const QString&)> chosen);
  void Toggle(Control& control) { control.SetShown(!control.Shown()); }
  void Focus(Control& control) { kit_.desk.Focus(control); }
  void Insist(Control& control);
  bool Refused(const QString& name);
  void RefuseOrGoOn(const QString& name) const;

  // Vocabulary lists.
  int LoadNames(OrderedList& list, NameList file);
  void SaveNames(const OrderedList& list, NameList file);
  void AddName(OrderedList& list, const QString& name, void (PricingForm::*save)());

  // System chain.
  void EnterDescription();
  void ChooseDescription(const QString& name);
  void BeginSystem();
  void EmptySystem();
  void HideLabor();
  void ShowLabor();
  void EnterUnits();
  void LeaveUnits();
  void EnterUnitPrice();
  void ChooseColour(const QString& code);
  void ChooseBackgroundNumber();
  void PaintLine();
  void ToggleNotes();
  void LeaveNotes();
  void DeleteSystem();
  void Leave();
  void FinishForm();
  void ToggleUnitsFrame();
  SystemFile OpenSystem() const;
  void TakeSystem(const SystemFile& file);
  void WriteSystem();
  void StoreSystem();

  // Material chain.
  void MaterialGotFocus();
  void MaterialLostFocus();
  void EnterMaterial();
  void EndOfSystem();
  void ChooseMaterial(const QString& name);
  void KeepMaterialName();
  void EnterOrderUnits();
  void EnterPrice();
  void FinishMaterial();
  void AddBlock();
  void OverwriteBlock();
  void StepOn();
  void SelectMaterial();
  void ShowMaterialHover();
  void DeleteMaterial();
  void InsertMaterial();
  void BringUp(int block, bool labor);
  void FillFrom(const MaterialBlock& block);
  void Fill(Fillable field, const QString& text);
  bool Typed(Fillable field) const;
  MaterialBlock BlockOfFields() const;
  bool Stored(int row) const;
  int PlaceOfMaterial() const;

  // Prompts.
  pricing::PromptNames Names() const;
  pricing::Prompts TakePrompts() const;
  void PutPrompts(const pricing::Prompts& prompts);
  void EnterUPO();
  void TurnUPO();
  void EnterMnhrPO();
  void LeaveMnhrPO();
  void TurnMnhrPO();

  // Markups.
  int ReadMarkups();
  void StoreMarkups();
  void ToggleMarkups();
  void LeaveMarkups();

  // Exchange.
  void Copy();
  void Paste();
  void Import();
  void Export();
  void ExportInto(const QString& folder);
  void SaveImportedMaterial();
  void Print();

  const Kit kit_;
  ReportRefresh& refresh_;
  SettingsReader& settings_;
  ProjectNumberSeed& seed_;
  NameIndex descriptions_{DescriptionsList};
  NameIndex materials_{MaterialsList};
  int position_ = 0;      // row of the current block in System
  bool library_ = false;  // the material in the fields came from the library
  // The direction in force of the two numbers, "" for a material that was typed new: what the
  // library or the block holds, or the estimator turned to.
  QString ratioTag_;
  QString laborTag_;
  // What the program put into the fillable fields; a field that holds something else was typed.
  std::array<QString, kFillables> given_;
  const std::array<TextField*, kFillables> fillable_{&OrderUnits, &Price, &UPO,
                                                     &MnhrPO,     &Waste, &WageRate};
  // In the order of the ring, and of the file.
  const std::array<TextField*, 12> markups_{&MOH,  &MTX,  &MMU,  &LOH,  &LTX,  &LMU,
                                            &BLOH, &BLTX, &BLMU, &MIOH, &MITX, &MIMU};
  QString savedNotes_;  // the notes as they came into the box
};

}  // namespace tamo
