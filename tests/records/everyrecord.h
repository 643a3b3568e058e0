#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <vector>

#include "common/disk.h"
#include "common/files.h"
#include "records/datafolder.h"

namespace tamo::test {

// The real file system without its waiting for the disk: hundreds of files are written here.
class HastyDisk : public RealDisk {
 public:
  int Sync(int) override { return 0; }
  int SyncFolder(const QString&) override { return 0; }
};

// A data folder with one project, all its folders made.
struct RecordFolder {
  RecordFolder();

  QTemporaryDir dir;
  HastyDisk disk;
  Files files{disk};
  SharedFields shared;
  DataFolder data() const { return shared; }
  ProjectFolder project() const { return shared; }
};

// A record of the data folder as the list of all its texts.
struct RecordCase {
  const char* name;
  std::function<QString(RecordFolder&)> path;
  // The error number of the reading goes to `error`.
  std::function<QStringList(RecordFolder&, int& error)> read;
  std::function<int(RecordFolder&, const QStringList&)> write;
  // The notes of some records, their first text, grow by a line end with each writing.
  bool notesGrow = false;
};

const std::vector<RecordCase>& EveryRecord();

}  // namespace tamo::test
