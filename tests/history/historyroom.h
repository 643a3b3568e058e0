#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "common/files.h"
#include "common/replacement.h"
#include "history/history.h"
#include "support/doubles.h"
#include "support/faultdisk.h"

namespace tamo::test {

// A data folder with one bid in it, on the real file system.
class HistoryRoom {
 public:
  HistoryRoom() {
    disk.quick = true;
    journalDisk.quick = true;
    shared.DataPath = place_.path() + QStringLiteral("/Tamo/");
    shared.Separator = QStringLiteral("/");
    shared.JobID = QStringLiteral("12-2611001");
    shared.JobName = QStringLiteral("Larkspur");
    MakeDataFolders(files, shared);
    MakeProjectFolders(files, ProjectFolder(shared));
  }

  QString Data(const QString& path) const { return shared.DataPath + path; }
  QString Bid(const QString& path) const { return ProjectFolder(shared).Path() + path; }

  static QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }
  // The state of the bid by other means than those under test.
  QMap<QString, QByteArray> Everything() const {
    QMap<QString, QByteArray> all;
    for (const QString sub : {"", "Rooms/", "ATOs/", "Systems/", "Plans/", "PM/"}) {
      for (const QString& name : QDir(Bid(sub)).entryList(QDir::Files | QDir::Hidden)) {
        if (name.endsWith(QLatin1String(kUnfinishedEnding))) continue;
        all[sub + name] = Content(Bid(sub + name));
      }
    }
    return all;
  }

  // A save as an estimator's entry makes it, or a file that goes.
  void Edit(std::mt19937& random) {
    const char* const names[] = {"Rooms/Office.rfs", "Rooms/Hall.rfs",    "Rooms/Rooms.tamo",
                                 "ATOs/Doors.ato",   "oItems.tamo",       "Markups.tamo",
                                 "JobNFO.tamo",      "Systems/Paint.sys", "Adjustment.tamo"};
    const QString path = Bid(QLatin1String(names[random() % std::size(names)]));
    if (random() % 12 == 0) {
      files.Remove(path);
      return;
    }
    QString text = QString::fromUtf8(Content(path));
    if (text == QLatin1String("(none)")) text.clear();
    const QString line = QStringLiteral("Drywall            WALLS  %1 SF\r\n").arg(random() % 9999);
    const auto at = random() % static_cast<unsigned>(text.size() + 1);
    const qsizetype end = text.indexOf(QLatin1Char('\n'), at);
    if (random() % 3 == 0 && end > 0) text.remove(0, end + 1);
    text.insert(end < 0 || end > text.size() ? 0 : text.lastIndexOf(QLatin1Char('\n')) + 1, line);
    files.SaveText(path, text);
  }

 private:
  QTemporaryDir place_;

 public:
  FaultDisk disk;
  FaultDisk journalDisk;
  FixedClock clock;
  ScriptedMessages messages;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  Platform platform{disk, clock, messages, printer, clipboard, {}, {}, {}, &journalDisk};
  SharedFields shared;
  Files files{disk};
};

}  // namespace tamo::test
