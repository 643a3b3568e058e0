#pragma once

#include "pricing/materialcontrols.h"
#include "pricing/systemcontrols.h"
#include "pricing/vocabularylist.h"

namespace tamo {

// The five lists of names of the library.
struct Vocabulary {
  Vocabulary(const Kit& kit, SystemControls& system, MaterialControls& material)
      : systems(kit, system.DescriptionsList, NameList::Systems),
        units(kit, system.UnitsList, NameList::Units),
        materials(kit, material.MaterialsList, NameList::Materials),
        orderUnits(kit, material.oUnitsList, NameList::OrderUnits),
        wages(kit, material.WagesList, NameList::Wages) {}

  // Each load gives its error number; a file that is not there leaves the list empty.
  int LoadDescriptions() { return systems.Load(); }
  int LoadUnits() { return units.Load(); }
  int LoadMaterials() { return materials.Load(); }
  int LoadOrderUnits() { return orderUnits.Load(); }
  void ReadAgain() {
    for (VocabularyList* list : {&systems, &units, &materials, &orderUnits}) list->LoadIfBehind();
  }
  void SaveDescriptions() { systems.Save(); }
  void SaveUnits() { units.Save(); }
  void SaveMaterials() { materials.Save(); }
  void SaveOrderUnits() { orderUnits.Save(); }
  void SaveWagesList() { wages.Save(); }

  VocabularyList systems;
  VocabularyList units;  // kept outside the program: nothing is added to it
  VocabularyList materials;
  VocabularyList orderUnits;
  VocabularyList wages;  // written, never read
};

}  // namespace tamo
