#include "records/materialfile.h"

#include "common/textlines.h"

namespace tamo {

MaterialFile ReadMaterialFile(const QString& text) {
  MaterialFile file;
  LineReader lines(WholeLines(text));
  MaterialBlock& block = file.block;
  for (QString* line : {&block.material, &block.orderUnits, &block.price, &block.upo, &block.upoTag,
                        &block.mnhrPO, &block.mnhrTag, &block.waste, &block.wageRate}) {
    if (lines.Read(*line)) ++file.reached;
  }
  return file;
}

QString MaterialFileText(const MaterialBlock& block) {
  return JoinedLines({block.material, block.orderUnits, block.price, block.upo, block.upoTag,
                      block.mnhrPO, block.mnhrTag, block.waste, block.wageRate});
}

QString MaterialPath(const SharedFields& shared, const QString& name) {
  return DataFolder(shared).MaterialFile(name);
}

}  // namespace tamo
