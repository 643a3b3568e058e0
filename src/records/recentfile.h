#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "common/files.h"

namespace tamo {

// What was opened last, the newest first: projects and plans. A file of the user's own; losing it
// loses nothing else.
struct RecentThings {
  struct Project {
    QString folder;  // the data folder
    QString id;
    QString name;
    bool Is(const Project& other) const { return folder == other.folder && id == other.id; }
  };
  static constexpr size_t kMost = 5;  // of each

  std::vector<Project> projects;
  QStringList plans;  // paths

  // To the front. False when it stood there already, unchanged.
  bool NoteProject(const Project& project);
  bool NotePlan(const QString& path);
};

// A file that can't be read gives nothing; one that can't be written is left as it is.
RecentThings ReadRecent(Files& files, const QString& configFolder, const QString& separator);
void WriteRecent(Files& files, const QString& configFolder, const QString& separator,
                 const RecentThings& recent);

}  // namespace tamo
