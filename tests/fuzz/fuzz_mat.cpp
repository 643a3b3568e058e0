// Whatever bytes a material's file holds: reading it ends, a whole one is written as it was read,
// and the prompts that its tags make tell a direction again.

#include <cstdint>
#include <cstdlib>

#include "common/textlines.h"
#include "pricing/directions.h"
#include "records/materialfile.h"

namespace {

void Must(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tamo;
  const QString text =
      DecodedText(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  const MaterialFile file = ReadMaterialFile(text);
  Must(file.reached >= 0 && file.reached <= 9);
  const MaterialBlock& block = file.block;
  const MaterialFile again = ReadMaterialFile(MaterialFileText(block));
  Must(again.reached == 9 && again.block.Rows() == block.Rows());

  const PromptNames names = {block.wageRate, block.orderUnits, block.material, block.material};
  Prompts prompts;
  prompts.AfterUnits(names);
  prompts.AfterFileRatioTag(names, block.upoTag);
  prompts.AfterFileLaborTag(names, block.mnhrTag);
  prompts.SetUpoUpm(names, block.upoTag, block.mnhrTag);
  prompts.AtPrice(names);
  // Whatever stands in the file, one direction of each pair is stored, and it can be turned.
  Directions directions;
  for (const std::optional<QString>& standing : {std::optional<QString>(), {block.upoTag}}) {
    Must(IsRatioTag(directions.RatioToStore(prompts, names, standing, false)));
    Must(IsLaborTag(directions.LaborToStore(prompts, names, standing)));
  }
  directions.TakeBlock(block);
  directions.TurnRatio(prompts, names);
  directions.TurnLabor(prompts, names, block.mnhrTag);
  Must(IsRatioTag(directions.Ratio()) && IsLaborTag(directions.Labor()));
  return 0;
}
