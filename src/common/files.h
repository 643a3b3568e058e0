#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "common/disk.h"
#include "common/filememory.h"
#include "common/filewitness.h"
#include "common/foldernames.h"
#include "common/merge.h"
#include "common/readbook.h"

namespace tamo {

// The file statements of the program. Error numbers as in Disk, and those below; nothing here
// throws or shows a message.
//
// A name finds its file whatever its case: the exact spelling first, then a name that differs only
// in case; saving under another case replaces that file.
//
// A save that fails becomes a pending save: the text is kept, reading the file gives the kept text,
// and it is tried again at every later save and by TryAgain, until it is on the disk. The old file
// stays whole meanwhile.
//
// Missing is not unreadable, and gone is not empty. A file that was never there (53, 76) is empty
// or has its defaults. Any other failure (75 access, 57 device, 14 far too large, 62 ended short,
// 321 no text, 68 gone though it was read before or a list names it) stands in Notice until the
// file can be read again, and
// - the read gives the number together with the text that the program last had of the file, so that
//   a list filled from it stays as it stood (empty when nothing was ever read);
// - a save of that file is not written: it is held as a pending save. When the file can be read
//   again, what was entered is merged with what it holds (FileKind says how), and the whole is
//   written. What can't be merged is held until the estimator chooses (BeginAnew).
// Readers therefore need no guards of their own: read, show, save.
class Files {
 public:
  explicit Files(Disk& disk) : disk_(disk) {}
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  Disk& GetDisk() { return disk_; }

  int ReadText(const QString& path, QString& text);
  // The same for a report, which counts only what is there now: no earlier text comes back.
  // `missing`: ReadStored has just found no file of exactly that name.
  int ReadForReport(const QString& path, QString& text, bool missing = false);
  // From any thread, of what is on the disk under exactly that name: no pending save, no memory.
  int ReadStored(const QString& path, QString& text);
  int ReadLines(const QString& path, QStringList& lines);
  int ReadFields(const QString& path, QStringList& fields);  // the delimited read

  // Replaces the file by `text`, atomically and durably: a new file in the same folder, synced,
  // renamed over the old one, the folder synced. On failure the text becomes pending and the number
  // is returned.
  // What another program stored there since this one read or stored it is looked at first: lists
  // are merged, of other files the estimator chooses (keepMine). `base`: the text from which this
  // one was made, when it is an earlier one than the program last read; null: the last one read.
  int SaveText(const QString& path, const QString& text, FileKind kind = FileKind::Record,
               const QString& base = {});
  // CR LF behind each line.
  int SaveLines(const QString& path, const QStringList& lines, FileKind kind = FileKind::Record,
                const QString& base = {});

  // The same for bytes as they are. A failure is only told: nothing waits, nothing is tried again.
  int ReplaceFile(const QString& path, const QByteArray& bytes);

  bool Exists(const QString& path);  // also true for a pending file
  int Remove(const QString& path);   // a pending text of that file is dropped, too
  // The program removed the folder with all in it: it may be missing, and made anew.
  void ForgetFolder(const QString& folder);
  // A list names this file or folder: when it is missing, it is gone.
  void Expect(const QString& path) { book_.Expect(path); }
  void ExpectFolder(const QString& folder) { book_.ExpectFolder(folder); }
  // The next save replaces the file, whatever was known of it.
  void Forget(const QString& path) { book_.Forget(path); }
  // A folder that can't be made is remembered and made before the pending saves are tried again.
  int MakeFolder(const QString& path);
  // Every level of `path`, outermost first; failures are passed over.
  void MakeFolders(const QString& path);

  // It, or a folder above it, was there earlier in this run, and can't be found now.
  bool IsGone(const QString& path) const;

  // The file holds more than the program last read of it, and can be read: after a reading that
  // failed, or a save that was merged. Whoever shows the file reads it again.
  bool IsBehind(const QString& path);
  qsizetype CountBehind() const { return book_.CountApart(); }  // at most

  // The path of the existing file that `path` means (last part compared without case when there is
  // no exact match), or `path` itself.
  QString Resolved(const QString& path);

  struct Pending {
    QString path;
    QString text;
    int reason = 0;
    // Set for a file that is no text (a marked plan): writes it once more.
    std::function<int()> save;
    FileKind kind = FileKind::Record;
    bool held = false;  // by what could not be read; `reason` says by what
    QString base = {};  // from which `text` was made; null: what the program last read
  };
  // A save of a file that is no text failed with `reason`: the notice names it, and `save` (which
  // returns an error number and must not call this object) is tried at every later save.
  void KeepTrying(const QString& path, int reason, std::function<int()> save);
  // It was saved after all, or there is nothing left to save.
  void StopTrying(const QString& path);
  const std::vector<Pending>& PendingSaves() const { return pending_; }
  const std::vector<ReadFailure>& ReadFailures() const { return book_.Failures(); }
  // Reads what could not be read and tries every pending save once more. True when no save is left.
  bool TryAgain();
  // What the estimator is asked when saves are still held after TryAgain; "" when none is.
  QString BeginAnewQuestion() const;
  // The answer was yes: what is held is written as it stands, over whatever is there.
  void BeginAnew();
  // One sentence or two for the strip at the foot of every window, "" when all is read and saved.
  QString Notice() const;
  std::function<void()> onPendingChanged;  // set by whoever shows the notice

  FileWitness* witness = nullptr;  // of each file that is replaced or removed; outlives this

  // While one stands, a folder is listed once however many missing names are looked for in it. For
  // reports and walks, which change nothing; a save ends what was listed.
  class Look {
   public:
    explicit Look(Files& files) : files_(files) { files_.names_.Begin(); }
    ~Look() { files_.names_.End(); }
    Look(const Look&) = delete;
    Look& operator=(const Look&) = delete;

   private:
    Files& files_;
  };

  // Asked before a file is saved or removed, or a folder made. False: another program has it in
  // hand; nothing is done, the answer is 75, and nothing waits.
  std::function<bool(const QString& path)> mayWrite;

  // Asked when a file that is about to be saved was changed by another program since it was read or
  // saved here, and the two texts can't be merged. True keeps `mine`; false gives the save up
  // (kTheirsTaken), and the file counts as behind. Not set, or in a save that waited: it is held.
  std::function<bool(const QString& path, const QString& mine, const QString& theirs)> keepMine;

  // Removes what a crash left of half-made saves directly in `folder`.
  void Sweep(const QString& folder);

 private:
  // What is to be written, and what the file is taken to hold then; null: nothing is known of it.
  struct Text {
    QString text;
    QString expected;
    QString displaced;   // what it held instead; null when that was right, or can't be told
    QByteArray bytes{};  // in place of `text` where they are no text; null otherwise
    void Expect(const QString& held) { expected = held.isNull() ? QLatin1String("") : held; }
  };
  bool IsOlder(const Pending& save) const;
  int ReadAnyCase(const QString& path, QString& text, bool missing = false);
  int GoneOrMissing(const QString& path, int error) const;
  int Noted(const QString& path, int error);
  int Store(Pending& save, bool mayAsk);
  bool MustLook(const Pending& save) const;
  int TakeIn(Pending& save, int reason, Text& made);
  int TextToStore(const Pending& save, bool mayAsk, Text& made);
  int Chosen(const Pending& save, const QString& theirs);
  int Replace(const QString& path, Text& made);
  int ReplaceOnce(const QString& target, Text& made);
  int Witnessed(int error, const QString& target, std::shared_ptr<FileReader> former) const;
  int ReplaceInItsFolder(const QString& path, Text& made);
  int MakeMissingFolders();
  void MakeLasting(const QString& folder);
  void RetryPending(const QString& except);
  void RetryReads();
  Pending* FindPending(const QString& path);
  Pending* FindPendingText(const QString& path);
  void Told() const {
    if (onPendingChanged) onPendingChanged();
  }

  Disk& disk_;
  FileMemory memory_;
  ReadBook book_;
  FolderNames names_;
  std::vector<Pending> pending_;
  QStringList missingFolders_;
};

// What an error number of a save means, in words: "the disk is full".
QString ReasonText(int number);
// And that of a read: "access to it is denied".
QString ReadReasonText(int number);

}  // namespace tamo
