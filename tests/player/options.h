#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace tamo::player {

// The command line: --program DIR --home DIR [--windows] [--tell] [--clock YYYY-MM-DD] FILE...
struct Options {
  QString program;
  QString home;
  // Folder whose content a new, temporary program folder is made from; with an empty home beside
  // it. In the place of --program and --home, for tests that begin at nothing.
  QString fresh;
  bool windows = false;
  bool tell = false;  // each step says its line on standard output before it is played
  QDate clock = QDate(2021, 12, 14);
  QStringList files;
};

// What is wrong with the command line, "" when nothing is.
QString ReadOptions(const QStringList& arguments, Options& options);

}  // namespace tamo::player
