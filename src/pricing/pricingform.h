#pragma once

#include "pricing/markupchain.h"
#include "pricing/materialchain.h"
#include "pricing/projectnumberseed.h"
#include "pricing/ratiochain.h"
#include "pricing/settingsreader.h"
#include "pricing/systemchain.h"
#include "pricing/systemexchange.h"
#include "pricing/systemlook.h"

namespace tamo {

// The price library: building systems, their materials, the estimated unit price, the markups, and
// the exchange of systems. Each field answers Enter, saves what must be saved and leads to the next
// one; an empty field steps out.
//
// What a change leaves is on the disk before the next key. A name that can't be a file's name is
// refused with a message and nothing is written.
//
// The form is its controls, group by group in the order in which Tab walks them, and the chains
// that lead through them.
class PricingForm : public Form,
                    public PricingMenus,
                    public SystemControls,
                    public MaterialControls,
                    public LookControls,
                    public MarkupControls,
                    public ExchangeControls {
 public:
  // All of it outlives the form.
  PricingForm(const Kit& kit, ReportRefresh& refresh, SettingsReader& settings,
              ProjectNumberSeed& seed);
  ~PricingForm() override;

  // Reads the lists and the markups and paints the palette; once, at the start.
  void Init();
  // The entry UnitsPricing of a shell: shows the form ready for a system's name, or hides it.
  void ToggleUnitsPricing(Form* owner = nullptr);
  // The entry Pricing2 of a shell: shows or hides the form.
  void TogglePricing2(Form* owner = nullptr);
  // A system that the takeoff misses: shows the form with the name in Description and the focus
  // there.
  void ShowWithName(const QString& name, Form* owner = nullptr);
  void LoadMarkups() { markups_.LoadMarkups(); }  // the project's, or the master's
  // What is behind its file is read again.
  void ReadAgain();
  void LoadDescriptions() { vocabulary.LoadDescriptions(); }

  // The open system's colour code, nine digits, "" or "NoColor".
  QString LineColor;
  // The sum of the bottom line prices as the breakdown left it; kept for the reports.
  QString TotalBL;

  // Lists that are never shown.
  OrderedList System{*this, "System"};  // the open system's blocks, twelve rows a material
  OrderedList nth{*this, "nth"};        // ordinal words

  Vocabulary vocabulary;
  SystemBlocks blocks{System, MaterialList};
  MaterialInWork inWork;  // the material in the fields

 private:
  void BindWindow();
  void ToggleUnitsFrame();
  void Leave();

  const Kit kit_;
  SettingsReader& settings_;
  ProjectNumberSeed& seed_;

  LaborPrice price_{kit_.desk, *this, *this, *this, blocks};
  OpenSystem open_{kit_, *this, *this, blocks, inWork, price_, LineColor};
  const PricingParts parts_;
  SystemChain systemChain_;
  MaterialChain materialChain_;
  RatioChain ratioChain_{kit_, *this, inWork, System};
  SystemLook look_;
  MarkupChain markups_;
  SystemExchange exchange_;
};

}  // namespace tamo
