#pragma once

#include <QString>
#include <vector>

#include "command/commands.h"

namespace tamo {

struct Finding {
  QString of;    // the project, or the data folder
  QString what;  // "can't be read", "unpriced", "not counted"
  QString text;
};

// Walks through a data folder: what can't be read, what is unpriced, what no report counts.
class DataCheck {
 public:
  explicit DataCheck(const CommandRun& run) : run_(run) {}

  void All();  // every project, and what all projects share
  void Project(const QString& id);

  const std::vector<Finding>& Findings() const { return findings_; }
  int Projects() const { return projects_; }

 private:
  void Add(const QString& what, const QString& text) { findings_.push_back({of_, what, text}); }
  bool Reads(const QString& path);
  void ReadFolder(const QString& folder);
  void ProjectList();
  void OpenedProject();
  void Recap();
  void Unlisted(const char* folder, const QStringList& names, const char* ending);
  void ProjectFiles();

  const CommandRun& run_;
  QString of_;
  std::vector<Finding> findings_;
  int projects_ = 0;
};

}  // namespace tamo
