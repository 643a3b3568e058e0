#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "common/disk.h"
#include "common/filememory.h"
#include "common/filewitness.h"

namespace tamo {

// The file statements of the program. Error numbers as in Disk; nothing here throws or shows a
// message.
//
// A name finds its file whatever its case: the exact spelling first, then a name that differs only
// in case; saving under another case replaces that file.
//
// A save that fails becomes a pending save: the text is kept, reading the file gives the kept text,
// and it is tried again at every later save and by TryAgain, until it is on the disk. The old file
// stays whole meanwhile.
class Files {
 public:
  explicit Files(Disk& disk) : disk_(disk) {}
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  Disk& GetDisk() { return disk_; }

  int ReadText(const QString& path, QString& text);
  // The same from any thread, of what is on the disk under exactly that name: no pending save.
  int ReadStored(const QString& path, QString& text);
  int ReadLines(const QString& path, QStringList& lines);
  int ReadFields(const QString& path, QStringList& fields);  // the delimited read

  // Replaces the file by `text`, atomically and durably: a new file in the same folder, synced,
  // renamed over the old one, the folder synced. On failure the text becomes pending and the number
  // is returned.
  int SaveText(const QString& path, const QString& text);
  int SaveLines(const QString& path, const QStringList& lines);  // CR LF behind each

  // The same for bytes as they are. A failure is only told: nothing waits, nothing is tried again.
  int ReplaceFile(const QString& path, const QByteArray& bytes);

  bool Exists(const QString& path);  // also true for a pending file
  int Remove(const QString& path);   // a pending text of that file is dropped, too
  // A folder that can't be made is remembered and made before the pending saves are tried again.
  int MakeFolder(const QString& path);
  // Every level of `path`, outermost first; failures are passed over.
  void MakeFolders(const QString& path);

  // The path of the existing file that `path` means (last part compared without case when there is
  // no exact match), or `path` itself.
  QString Resolved(const QString& path);

  struct Pending {
    QString path;
    QString text;
    int reason = 0;
    // Set for a file that is no text (a marked plan): writes it once more.
    std::function<int()> save;
  };
  // A save of a file that is no text failed with `reason`: the notice names it, and `save` (which
  // returns an error number and must not call this object) is tried at every later save.
  void KeepTrying(const QString& path, int reason, std::function<int()> save);
  // It was saved after all, or there is nothing left to save.
  void StopTrying(const QString& path);
  const std::vector<Pending>& PendingSaves() const { return pending_; }
  // Tries every pending save once more. True when nothing is left.
  bool TryAgain();
  // One sentence or two for the strip at the foot of every window, "" when nothing is pending.
  QString Notice() const;
  std::function<void()> onPendingChanged;  // set by whoever shows the notice

  FileWitness* witness = nullptr;  // of each file that is replaced or removed; outlives this

  // Asked before a file is saved or removed, or a folder made. False: another program has it in
  // hand; nothing is done, the answer is 75, and nothing waits.
  std::function<bool(const QString& path)> mayWrite;

  // Removes what a crash left of half-made saves directly in `folder`.
  void Sweep(const QString& folder);

 private:
  int Replace(const QString& path, const QByteArray& bytes);
  int ReplaceWitnessed(const QString& path, const QByteArray& bytes);
  int ReplaceInItsFolder(const QString& path, const QByteArray& bytes);
  int MakeMissingFolders();
  void MakeLasting(const QString& folder);
  void RetryPending(const QString& except);
  Pending* FindPending(const QString& path);
  Pending* FindPendingText(const QString& path);

  Disk& disk_;
  FileMemory memory_;
  std::vector<Pending> pending_;
  QStringList missingFolders_;
};

// What an error number of a save means, in words: "the disk is full".
QString ReasonText(int number);

}  // namespace tamo
