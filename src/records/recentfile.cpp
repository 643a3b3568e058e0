#include "records/recentfile.h"

#include <algorithm>

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr char kProject[] = "project";
constexpr char kPlan[] = "plan";

QString PathIn(const QString& folder, const QString& separator) {
  return folder + separator + QStringLiteral("Recent.tamo");
}

}  // namespace

bool RecentThings::NoteProject(const Project& project) {
  const auto same = [&](const Project& other) { return other.Is(project); };
  if (!projects.empty() && same(projects.front()) && projects.front().name == project.name)
    return false;
  std::erase_if(projects, same);
  projects.insert(projects.begin(), project);
  if (projects.size() > kMost) projects.resize(kMost);
  return true;
}

bool RecentThings::NotePlan(const QString& path) {
  if (!plans.isEmpty() && plans.front() == path) return false;
  plans.removeAll(path);
  plans.prepend(path);
  plans = plans.mid(0, kMost);
  return true;
}

RecentThings ReadRecent(Files& files, const QString& configFolder, const QString& separator) {
  RecentThings recent;
  QString text;
  if (files.ReadStored(PathIn(configFolder, separator), text) != kNoError) return recent;
  for (const QString& line : WholeLines(text)) {
    const QStringList parts = line.split(QLatin1Char('\t'));
    if (parts[0] == QLatin1String(kProject) && parts.size() == 4) {
      if (recent.projects.size() < RecentThings::kMost)
        recent.projects.push_back({parts[1], parts[2], parts[3]});
    } else if (parts[0] == QLatin1String(kPlan) && parts.size() == 2) {
      if (recent.plans.size() < static_cast<qsizetype>(RecentThings::kMost))
        recent.plans += parts[1];
    }
  }
  return recent;
}

void WriteRecent(Files& files, const QString& configFolder, const QString& separator,
                 const RecentThings& recent) {
  QStringList lines;
  for (const RecentThings::Project& project : recent.projects)
    lines += QStringList{QLatin1String(kProject), project.folder, project.id, project.name}.join(
        QLatin1Char('\t'));
  for (const QString& plan : recent.plans)
    lines += QLatin1String(kPlan) + QStringLiteral("\t") + plan;
  files.ReplaceFile(PathIn(configFolder, separator), JoinedLines(lines).toUtf8());
}

}  // namespace tamo
