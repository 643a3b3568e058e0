#pragma once

#include "common/files.h"
#include "common/kit.h"
#include "records/datafolder.h"
#include "support/doubles.h"
#include "support/ramdisk.h"
#include "support/randomplayer.h"
#include "takeoff/takeoffbench.h"

namespace tamo::test {

// A takeoff form on a data folder in memory, and what must hold of it after every key, whatever was
// done:
//  - the file on disk equals the lines on the screen;
//  - lines are only written to the file of the name for which they were loaded or begun;
//  - no quantity vanishes without a deletion, and none comes from nowhere;
//  - the sum of what was entered is the quantity in the line;
//  - IAmHere names the field that has the cursor;
//  - what is refused is said once.
class TakeoffGame : public Game {
 public:
  Desk& GetDesk() override { return desk; }
  std::vector<Deed> Deeds() override;
  QString Broken() override;
  QStringList SetUp() const override;

 protected:
  TakeoffGame();

  // The form's controls under one name each.
  struct Parts {
    TextField* name;
    TextField* system;
    TextField* units;
    TextField* height;
    TextField* length;
    OrderedList* lines;
    OrderedList* copied;
    MenuEntry* deleteName;
    MenuEntry* deleteLine;
    MenuEntry* paste;
    const char* nameCode;  // of IAmHere; "" when the field writes none
    const char* systemCode;
    const char* heightCode;
    const char* lengthCode;
    bool roundsLengths;    // each running total is rounded, of lengths and counts too
    bool autoRoomEmpties;  // the next room shows no lines until it is loaded again
  };
  // Once the form is made: listens to its keys and entries.
  void Listen(Form& form, const Parts& parts);

  virtual QString FileOf(const QString& name) const = 0;
  // The takeoff lines in a file's lines; what a save makes of the lines on the screen.
  virtual QStringList LinesIn(const QStringList& file) const = 0;
  virtual QStringList Stored(const QStringList& onScreen) const = 0;
  virtual QString QuantityIn(const QString& line) const = 0;
  // Lines that reach the disk with their first entry, or were not read yet.
  virtual bool MayDiffer(const QStringList& onDisk, const QStringList& onScreen) const = 0;
  // The running total before it is rounded.
  virtual double Entered(const QString& line, bool surface, double height, double length) const = 0;

  RamDisk disk;
  Files files{disk};
  ScriptedMessages messages;
  Desk desk{messages};
  FixedClock clock;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  SharedFields shared;
  Platform platform{disk, clock, messages, printer, clipboard, {}, {}, {}};
  Kit kit{desk, files, shared, platform};
  RecordingPlan plan;
  RecordingPricing pricing;
  RecordingRefresh reports;
  RecordingShell shell{desk};
  RecordingMarks marks;
  TakingBack back{kit, marks, reports};

 private:
  struct Seen {
    QStringList lines;
    int index = -1;
    QString units;
    QString height;
    QString length;
    QString job;
    QMap<QString, QStringList> records;  // by path: the quantities in them, without zeros, sorted
  };

  QStringList OnDisk(const QString& name);
  bool Agrees(const QString& name);
  void NoteEmptied();
  QStringList Quantities(const QStringList& lines) const;
  bool EntryPressed() const;  // Enter in the length, with a number and a selected line
  QString Expected() const;   // the quantity that the entry must give

  QString ScreenRule();
  QString EntryRule() const;
  QString RecordRule(const QString& path, const QStringList& now);
  QString RecordsRule();
  QString CursorRule();
  QString MessageRule() const;
  void Look();

  Form* form_ = nullptr;
  Parts parts_{};
  Seen seen_;
  QString owner_;    // the name whose lines stand on the screen
  QString emptied_;  // the name whose lines AutoRoom took off the screen, as it is meant to be
  bool enterInLength_ = false;
  bool enterInHeight_ = false;
  bool nameDeleted_ = false;  // nothing waits for a measure until another field is entered
  const Control* cursor_ = nullptr;
  bool deleted_ = false;
  bool pasted_ = false;
  bool refused_ = false;
};

}  // namespace tamo::test
