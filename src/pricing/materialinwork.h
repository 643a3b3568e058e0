#pragma once

#include <optional>

#include "common/kit.h"
#include "pricing/directions.h"
#include "pricing/materialfields.h"
#include "pricing/promptlabels.h"
#include "pricing/systemblocks.h"

namespace tamo {

// The material that is being entered: its fields, its prompts, and which way its numbers read. It
// comes from the system, from the library, or from the keyboard; it goes into both.
class MaterialInWork {
 public:
  MaterialInWork(const Kit& kit, SystemControls& system, MaterialControls& controls,
                 SystemBlocks& blocks);

  void ClearSomeStuff();
  // The material of the selected row comes up; with `wording`, with prompts of its own.
  void ComeUp();
  void ShowSystem();
  // Enter in the empty UPO or MnhrPO: the number is never touched, its direction turns.
  void TurnRatio();
  void TurnLabor();
  // What is stored when the material is finished now, its tags included.
  MaterialBlock ToStore() const;
  // The material has just been stored.
  void Stored(const MaterialBlock& block) { directions.TakeBlock(block); }

  // The library's file of the name in Material. A file that is not there fills nothing.
  void LoadMaterial();
  void SaveMaterial(const MaterialBlock& block);
  bool FromLibrary() const { return library_; }

  MaterialFields fields;
  PromptLabels prompts;
  Directions directions;

 private:
  std::optional<QString> StandingTag(int tagRow) const;
  bool InSystem() const { return blocks_.Holds(blocks_.Place()); }

  const Kit kit_;
  MaterialControls& controls_;
  SystemBlocks& blocks_;
  bool library_ = false;  // the material in the fields came from the library
};

}  // namespace tamo
