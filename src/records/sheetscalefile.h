#pragma once

#include <QString>
#include <vector>

#include "common/files.h"

namespace tamo {

// The scale that was last used on a sheet, kept over runs in a file of the user's own. Losing it
// loses an offer, nothing else.
struct KeptSheetScale {
  QString project;  // its id, or the plan's folder where no project was open
  QString plan;     // its plain name
  int page = 1;
  QString scale1;
  QString scale2;
  QString text5;
  bool checked = false;  // against a dimension of the sheet

  bool SameSheet(const KeptSheetScale& other) const {
    return project == other.project && plan == other.plan && page == other.page;
  }
};

inline constexpr size_t kMostSheetScales = 500;

// The newest first, each sheet once, at most kMostSheetScales. What is no such line is passed over;
// a file that can't be read gives nothing.
std::vector<KeptSheetScale> ReadSheetScales(Files& files, const QString& configFolder,
                                            const QString& separator);
// One that can't be written is left as it is.
void WriteSheetScales(Files& files, const QString& configFolder, const QString& separator,
                      const std::vector<KeptSheetScale>& scales);

}  // namespace tamo
