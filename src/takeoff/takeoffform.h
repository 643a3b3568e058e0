#pragma once

#include "common/control.h"
#include "common/form.h"
#include "common/kit.h"
#include "takeoff/missingsystempricing.h"
#include "takeoff/plantools.h"
#include "takeoff/sheetscreen.h"
#include "takeoff/takeoffexits.h"
#include "takeoff/takeoffreportrefresh.h"
#include "takeoff/takingback.h"

namespace tamo {

// What the room schedule and the free takeoff have in common: the labels, the lists of systems and
// of entries, fetching a system with its unit and pen, and how the window comes and goes. The
// fields of the chain stand in each form, in the order in which Tab walks them.
class TakeoffForm : public Form, public SheetScreen {
 public:
  Label AreaLabel{*this, "AreaLabel", "Area:"};
  Label DescriptionLabel{*this, "DescriptionLabel", "System Name:"};
  Label DescriptionPrompt{*this, "DescriptionPrompt"};
  Label UnitsLabel{*this, "UnitsLabel", "TakeOff Units"};
  TextField Units{*this, "Units", 5};  // read-only to the user
  Label HOWLabel{*this, "HOWLabel", "Height or Width:"};
  Label LengthLabel{*this, "LengthLabel", "Length:"};
  Label LengthPrompt{*this, "LengthPrompt", "Leave blank and press Enter for new Height"};
  OrderedList DescriptionsList{*this, "DescriptionsList"};  // systems, most recent first
  OrderedList Lengths{*this, "Lengths"};  // what was entered for the line in work, for the eye only
  OrderedList System{*this, "System"};    // lines of the system fetched last; never displayed
  Label ScaleLabel{*this, "ScaleLabel", "Scale "};
  Label ScaleText{*this, "ScaleText"};    // the plan's scale in force
  Label StatusText{*this, "StatusText"};  // where the estimator stands

  // The line into which what stands in a length or height field goes, in words; "" for none.
  virtual QString TargetOf(const TextField& field) const = 0;

  virtual void Init() = 0;  // each time the window comes to the front with a project open
  void SaveDescriptions();

 protected:
  // All of it outlives the form.
  TakeoffForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
              TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps,
              const QString& name);

  void BindWindow(MenuEntry& dsw);
  // Reads the systems' names; the number of the failure.
  int ReadDescriptions();
  void LoadDescriptionsIfEmpty();
  virtual void LoadDescriptions() = 0;
  // No system is priced yet: says so and hides the form.
  void TellToPriceFirst();
  // The system's unit, pen and scale come into force, fetched from the library when the project has
  // no copy yet. The number of the last failure, 0 when the system was found.
  int FetchSystem(const QString& name);
  void ShowScale() { ScaleText.SetCaption(plan_.ScaleText()); }
  // "Room 3 of 12, line 2 of 5". `at` is -1 when the name is in no list.
  void ShowStatus(const QString& what, int at, int names, const OrderedList& lines);

  const Kit kit_;
  PlanTools& plan_;
  MissingSystemPricing& pricing_;
  TakeoffReportRefresh& reports_;
  TakeoffExits& exits_;
  TakingBack& steps_;

 private:
  void Activated();
  void TakeKey(Key& key);

  QStringList namesRead_;  // the systems when their list was last read or written
};

// "Room 101", and "Room 101" of a room that is called so itself.
QString WithKind(const QString& kind, const QString& name);

// Where an entry was made, as it is said of one that is taken back: " in "101"".
QString InSheet(const QString& name);

// A row picked from a list that keeps the most recent first: it goes into the field and to the top.
void PickToTop(OrderedList& list, TextField& field);

}  // namespace tamo
