#include "records/datafolder.h"

#include <QStringBuilder>

namespace tamo {
namespace {

constexpr char kProjects[] = "Projects";
constexpr char kSystems[] = "Systems";
constexpr char kRooms[] = "Rooms";
constexpr char kAreas[] = "ATOs";
constexpr char kPlans[] = "Plans";
constexpr char kRecord[] = "JobNFO.tamo";
constexpr char kMarkups[] = "Markups.tamo";
constexpr char kFinishKey[] = "FinishKey.tamo";

QString Named(const QString& folder, const char* fileName) {
  return folder + QLatin1String(fileName);
}

}  // namespace

ProjectFolder::ProjectFolder(const SharedFields& shared)
    : ProjectFolder(DataFolder(shared).Project(shared.JobID)) {}

ProjectFolder::ProjectFolder(QString path, QString separator)
    : path_(std::move(path)), separator_(std::move(separator)) {}

QString ProjectFolder::SubFolder(const char* name) const {
  return path_ + QLatin1String(name) + separator_;
}

QString ProjectFolder::Systems() const {
  return SubFolder(kSystems);
}

QString ProjectFolder::Plans() const {
  return SubFolder(kPlans);
}

QString ProjectFolder::Record() const {
  return Named(path_, kRecord);
}

QString ProjectFolder::Lock() const {
  return Named(path_, "Locked.tamo");
}

QString ProjectFolder::InUse() const {
  return Named(path_, kInUseName);
}

QString ProjectFolder::Markups() const {
  return Named(path_, kMarkups);
}

QString ProjectFolder::Adjustment() const {
  return Named(path_, "Adjustment.tamo");
}

QString ProjectFolder::Items() const {
  return Named(path_, "oItems.tamo");
}

QString ProjectFolder::SystemFile(const QString& system) const {
  return Systems() + SystemFileName(system);
}

QString ProjectFolder::RoomNames() const {
  return Named(SubFolder(kRooms), "Rooms.tamo");
}

QString ProjectFolder::RoomFile(const QString& room) const {
  return path_ % QLatin1String(kRooms) % separator_ % room % QLatin1String(".rfs");
}

QString ProjectFolder::AreaNames() const {
  return Named(SubFolder(kAreas), "Areas.tamo");
}

QString ProjectFolder::AreaFile(const QString& area) const {
  return path_ % QLatin1String(kAreas) % separator_ % area % QLatin1String(".ato");
}

QString ProjectFolder::PlanNotes() const {
  return Named(Plans(), "PlanNotes.tamo");
}

QString ProjectFolder::FinishKey() const {
  return Named(path_, kFinishKey);
}

QString ProjectFolder::FinishSchedule() const {
  return Named(path_, "FinishSchedule.tamo");
}

QString DataFolder::FinishKey() const {
  return Named(path_, kFinishKey);
}

QString DataFolder::Systems() const {
  return path_ + QLatin1String(kSystems) + separator_;
}

QString DataFolder::Projects() const {
  return path_ + QLatin1String(kProjects) + separator_;
}

QString DataFolder::Plans() const {
  return path_ + QLatin1String(kPlans) + separator_;
}

ProjectFolder DataFolder::Project(const QString& id) const {
  return {Projects() + id + separator_, separator_};
}

QString DataFolder::ProjectNumber() const {
  return Named(path_, "Project.num");
}

QString DataFolder::ProjectList() const {
  return Named(path_, "Jobs.lst");
}

QString DataFolder::Markups() const {
  return Named(path_, kMarkups);
}

QString DataFolder::PickedPlans() const {
  return Named(Plans(), "Path.tam");
}

QString DataFolder::NameFile(const char* fileName) const {
  return Named(path_, fileName);
}

QString DataFolder::SystemFile(const QString& system) const {
  return Systems() + SystemFileName(system);
}

QString DataFolder::MaterialFile(const QString& material) const {
  return Systems() + material + QStringLiteral(".mat");
}

QString DataFolder::ManagerFile(const QString& projectAndName) const {
  return path_ + projectAndName + QStringLiteral(".tamo");
}

QString SystemFileName(const QString& system) {
  return system + QStringLiteral(".sys");
}

bool IsProjectRecord(const QString& fileName) {
  return fileName.compare(QLatin1String(kRecord), Qt::CaseInsensitive) == 0;
}

void MakeDataFolders(Files& files, const DataFolder& data) {
  files.MakeFolders(data.Path());
  for (const QString& folder : {data.Projects(), data.Systems(), data.Plans()})
    files.MakeFolder(folder);
}

void MakeProjectFolders(Files& files, const ProjectFolder& project) {
  files.MakeFolder(project.Path());
  for (const char* name : kProjectSubFolders) files.MakeFolder(project.SubFolder(name));
}

void SweepDataFolders(Files& files, const DataFolder& data) {
  files.Sweep(data.Path());
  files.Sweep(data.Systems());
  files.Sweep(data.Plans());
  for (const QString& id : files.GetDisk().Names(data.Projects())) {
    const ProjectFolder project = data.Project(id);
    files.Sweep(project.Path());
    for (const char* name : kProjectSubFolders) files.Sweep(project.SubFolder(name));
  }
}

}  // namespace tamo
