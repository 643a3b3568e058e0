#pragma once

#include <QString>

namespace tamo {

// The texts that several forms read. Comparisons are exact; "True" and "False" are texts. Owned by
// the program, outlives every form. The comment names the form that a text counts as part of.
struct SharedFields {
  QString zDir;  // Form11: the program folder, no separator at its end
  QString
      GUIText;  // Form11: "1" On Site Takeoff, "2" Online Plans, "" before settings were ever saved
  QString OPN;  // Form11: "1" creating, "2" Open Project, "3" deleting, "7" Open Project from OST
  QString LineColor = QStringLiteral("255000000");  // Form11: colour code of new plan lines
  QString IAmHere;  // Form11: the takeoff field that waits for a measure: RR RD RH RL EL EH
  QString DTText;   // Form11: "True" when the Detailed Recap was chosen

  QString JobID;                             // Tamo: the open project's id, "" when none is open
  QString JobName;                           // Tamo: mirrors the field JobName of the project panel
  QString Locked = QStringLiteral("False");  // Tamo
  // Not written down anywhere: whether the open project may only be read, because another program
  // has it open. A sentence or two for the estimator; "" when it may be written.
  QString ReadOnly;
  QString TitleNote;    // what the titles of the main windows say about that, "" for nothing
  QString DriveBy;      // Tamo: "True" makes Init return at once
  QString TopOfReport;  // Tamo: the scroll position kept across a refresh
  QString CopyJobID;    // Tamo: the project marked for copying

  QString LoadingJobNFO = QStringLiteral("False");  // OST: "True" while a record is read

  QString DataPath;  // Settings: the data folder with its separator; mirrors the field of the
                     // Settings form
  QString SettingsLineColor = QStringLiteral("255000000");  // Settings: LineColor
  int LineWidth = 3;  // Settings: width of the sample line, pixels (1/96 inch)
  int AutoCheck = 0;  // Settings: 1 when open reports follow each save

  // Folders that every part of the program builds its paths on.
  QString Separator;  // the platform's
};

}  // namespace tamo
