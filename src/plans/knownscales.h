#pragma once

#include <optional>
#include <vector>

#include "common/kit.h"
#include "plans/planscale.h"
#include "records/sheetscalefile.h"

namespace tamo {

// The scales that were set or checked on sheets, in this run and the ones before. A plan is known
// by its name within its project, so that its marked copy is the same plan.
class KnownScales {
 public:
  explicit KnownScales(const Kit& kit) : kit_(kit) {}

  struct Scale {
    ScaleTexts texts;
    bool checked = false;  // against a dimension of the sheet: that goes before what is printed
  };
  // `path` is the plan's, as it is shown.
  std::optional<Scale> Of(const QString& path, int page);
  void Note(const QString& path, int page, const Scale& scale);

 private:
  KeptSheetScale Sheet(const QString& path, int page) const;
  void Read();

  const Kit kit_;
  std::vector<KeptSheetScale> scales_;  // the newest first
  bool read_ = false;
};

}  // namespace tamo
