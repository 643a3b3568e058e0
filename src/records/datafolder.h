#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "common/files.h"
#include "common/sharedfields.h"

namespace tamo {

// The one place that knows where the files of the data folder lie and what its folders are called.
// Paths are texts; nothing is looked up on the disk. The text of a folder ends in the separator.
// Names are taken as they stand: whoever reads or stores under a typed name asks NameRefusal first.

// The folders of a project.
inline constexpr std::array<const char*, 5> kProjectSubFolders = {"Systems", "Rooms", "ATOs",
                                                                  "Plans", "PM"};
inline constexpr std::array<const char*, 3> kCopiedSubFolders = {"Systems", "Rooms", "ATOs"};

// One project.
class ProjectFolder {
 public:
  // The open project. Made wherever a record asks for it, so that it is always that of this moment.
  ProjectFolder(const SharedFields& shared);
  ProjectFolder(QString path, QString separator);  // `path` with its separator at the end

  const QString& Path() const { return path_; }
  QString SubFolder(const char* name) const;  // one of kProjectSubFolders
  QString Systems() const;
  QString Plans() const;

  QString Record() const;
  QString Lock() const;
  QString InUse() const;
  QString Markups() const;
  QString Adjustment() const;
  QString Items() const;
  QString SystemFile(const QString& system) const;
  QString RoomNames() const;
  QString RoomFile(const QString& room) const;
  QString AreaNames() const;
  QString AreaFile(const QString& area) const;
  QString PlanNotes() const;
  QString FinishKey() const;
  QString FinishSchedule() const;

 private:
  QString path_;
  QString separator_;
};

// In a project's folder as long as a program has it open: no file of the project, never copied.
inline constexpr char kInUseName[] = "InUse.lock";

// What all projects share.
class DataFolder {
 public:
  DataFolder(const SharedFields& shared) : DataFolder(shared.DataPath, shared.Separator) {}
  DataFolder(QString path, QString separator)
      : path_(std::move(path)), separator_(std::move(separator)) {}

  const QString& Path() const { return path_; }
  QString Systems() const;  // the library of systems and materials
  QString Projects() const;
  QString Plans() const;
  ProjectFolder Project(const QString& id) const;

  QString ProjectNumber() const;
  QString ProjectList() const;
  QString Markups() const;
  QString PickedPlans() const;
  QString FinishKey() const;
  QString NameFile(const char* fileName) const;
  QString SystemFile(const QString& system) const;
  QString MaterialFile(const QString& material) const;
  // The project manager's file of a report.
  QString ManagerFile(const QString& projectAndName) const;

 private:
  QString path_;
  QString separator_;
};

// The name of a system's file, wherever it lies.
QString SystemFileName(const QString& system);
// A file of this name is a project's record.
bool IsProjectRecord(const QString& fileName);

// Makes what is missing of the data folder, every level of it. Failures are remembered by Files and
// made good before the next save.
void MakeDataFolders(Files& files, const DataFolder& data);
void MakeProjectFolders(Files& files, const ProjectFolder& project);
// Removes what a crash in the middle of a save left behind, in the data folder and all projects.
void SweepDataFolders(Files& files, const DataFolder& data);

}  // namespace tamo
