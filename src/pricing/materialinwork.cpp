#include "pricing/materialinwork.h"

#include "common/failure.h"
#include "pricing/steps.h"

namespace tamo {

MaterialInWork::MaterialInWork(const Kit& kit, SystemControls& system, MaterialControls& controls,
                               SystemBlocks& blocks)
    : fields(controls),
      prompts(system, controls),
      kit_(kit),
      controls_(controls),
      blocks_(blocks) {}

void MaterialInWork::ClearSomeStuff() {
  fields.Clear();
  library_ = false;
  directions.Forget();
}

void MaterialInWork::ComeUp() {
  const MaterialBlock block = blocks_.At(blocks_.Place());
  fields.Take(block);
  library_ = false;
  directions.TakeBlock(block);
}

void MaterialInWork::ShowSystem() {
  ComeUp();
  const MaterialBlock block = blocks_.At(blocks_.Place());
  Prompts shown = prompts.Now();
  shown.ShowRatio(prompts.Names(), block.upoTag);
  shown.ShowLabor(prompts.Names(), block.mnhrTag);
  prompts.Put(shown);
  prompts.SetUpoUpm(directions);
}

// --- directions ---

std::optional<QString> MaterialInWork::StandingTag(int tagRow) const {
  const int place = blocks_.Place();
  if (place >= blocks_.Count()) return std::nullopt;
  const MaterialBlock block = blocks_.At(place);
  return tagRow == kUpoTagRow ? block.upoTag : block.mnhrTag;
}

void MaterialInWork::TurnRatio() {
  controls_.UPO.SetHover(QString());
  fields.ForgetGiven(MaterialFields::kUpo);
  directions.TurnRatio(prompts.Now(), prompts.Names());
  if (InSystem()) {
    blocks_.SetTag(blocks_.Place(), kUpoTagRow, directions.Ratio());
    prompts.SetUpoUpm(directions);
    return;
  }
  Prompts turned = prompts.Now();
  turned.TurnRatio(prompts.Names(), directions.Ratio());
  prompts.Put(turned);
}

void MaterialInWork::TurnLabor() {
  fields.ForgetGiven(MaterialFields::kMnhrPO);
  directions.TurnLabor(prompts.Now(), prompts.Names(), StandingTag(kMnhrTagRow));
  if (InSystem()) {
    blocks_.SetTag(blocks_.Place(), kMnhrTagRow, directions.Labor());
    return;
  }
  Prompts turned = prompts.Now();
  turned.TurnLabor(prompts.Names(), directions.Labor());
  prompts.Put(turned);
}

MaterialBlock MaterialInWork::ToStore() const {
  MaterialBlock block = fields.Block();
  block.upoTag = directions.RatioToStore(prompts.Now(), prompts.Names(), StandingTag(kUpoTagRow),
                                         fields.Typed(MaterialFields::kUpo));
  block.mnhrTag = directions.LaborToStore(prompts.Now(), prompts.Names(), StandingTag(kMnhrTagRow));
  return block;
}

// --- the library ---

void MaterialInWork::LoadMaterial() {
  library_ = true;
  RequireFileName(controls_.Material.Text());
  QString text;
  if (kit_.files.ReadText(MaterialPath(kit_.shared, controls_.Material.Text()), text) != kNoError)
    return;
  const MaterialFile file = ReadMaterialFile(text);
  const MaterialBlock& block = file.block;
  if (file.reached >= 1) controls_.Material.SetText(block.material);
  fields.FillFrom(file, 2, MaterialFields::kOrderUnits, block.orderUnits);
  fields.FillFrom(file, 3, MaterialFields::kPrice, block.price);
  Prompts asked = prompts.Now();
  if (fields.FillFrom(file, 4, MaterialFields::kUpo, block.upo) && IsRatioTag(block.upoTag)) {
    directions.TakeRatio(block.upoTag, block.orderUnits);
    asked.AfterFileRatioTag(prompts.Names(), block.upoTag);
  }
  if (fields.FillFrom(file, 6, MaterialFields::kMnhrPO, block.mnhrPO) &&
      IsLaborTag(block.mnhrTag)) {
    directions.TakeLabor(block.mnhrTag);
    asked.AfterFileLaborTag(prompts.Names(), block.mnhrTag);
  }
  prompts.Put(asked);
  fields.FillFrom(file, 8, MaterialFields::kWaste, block.waste);
  fields.FillFrom(file, 9, MaterialFields::kWageRate, block.wageRate);
}

void MaterialInWork::SaveMaterial(const MaterialBlock& block) {
  RequireFileName(block.material);
  kit_.files.SaveText(MaterialPath(kit_.shared, block.material), MaterialFileText(block));
}

}  // namespace tamo
