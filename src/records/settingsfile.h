#pragma once

#include <QString>

#include "common/services.h"

namespace tamo {

// What is set once per installation, as it stands in Settings.tamo. The file lies beside the
// program, since it says where the data folder is; where that folder belongs to the machine, each
// user has a file of their own in their configuration.
struct SettingsRecord {
  QString estimatorNumber;  // two digits
  QString estimatorName;
  QString companyName;
  QString telephone;
  QString dataPath;       // the data folder, with its separator
  QString lineColor;      // of a new line on a plan, nine digits
  int lineWidth = 0;      // of the same, pixels (1/96 inch)
  QString interfaceMode;  // "1" On Site Takeoff, "2" Online Plans, "" when none was ever picked
  int autoCheck = 0;      // 1: open reports follow each save
  QString scales;         // "3" U.S., "4" metric, "" when none was ever picked
  QString look;           // "Light", "Dark", "" as the desktop is
  bool wholeQuantities = false;  // the reports read the whole quantity column
  int lines = 0;  // of the ten lines above, those that the file had: the fields of the others stay
};

// Error numbers as Files has them; nothing changes when there is nothing to read. A colour of the
// wrong length is read as red.
int ReadSettings(Files& files, const Platform& platform, SettingsRecord& record);
// The same from the two folders in which the file may lie.
int ReadSettings(Files& files, const QString& programFolder, const QString& configFolder,
                 SettingsRecord& record);
// A pair of which nothing was picked has no line, and the later lines stand one higher; such a file
// is read back by position all the same.
int WriteSettings(Files& files, const Platform& platform, const SettingsRecord& record);
// Only the word for whole quantities, in the last line; all else in the file stays. False when
// there is no file to change.
bool WriteWholeQuantities(Files& files, const Platform& platform, bool on);

}  // namespace tamo
