#include "schedule/librarysystems.h"

#include "common/numbers.h"
#include "common/paths.h"
#include "records/namelists.h"
#include "records/systemfile.h"

namespace tamo {
namespace {

constexpr int kSystemWidth = 20;

QString NameProblem(const QString& name) {
  QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) return refusal;
  if (name.size() > kSystemWidth || name.contains(u',') || name.contains(u'"')) {
    return QStringLiteral(
               "%1 can't be a system's name: at most %2 characters, without comma and "
               "quotation mark.")
        .arg(name)
        .arg(kSystemWidth);
  }
  return {};
}

}  // namespace

QString InLibrary(const QStringList& systems, const QString& name) {
  for (const QString& system : systems) {
    if (system.compare(name, Qt::CaseInsensitive) == 0) return system;
  }
  return {};
}

QString MakeEmptySystem(Files& files, const SharedFields& shared, const QString& name,
                        const QString& units) {
  QString problem = NameProblem(name);
  if (!problem.isEmpty()) return problem;
  QStringList systems;
  ReadNames(files, shared, NameList::Systems, systems);
  const QString path = MasterSystemPath(shared, name);
  if (!InLibrary(systems, name).isEmpty() || files.Exists(path)) {
    return QStringLiteral("The library has a system %1 already.").arg(name);
  }
  SystemFile system;
  system.description = name;
  system.units = units;
  system.unitPrice = QStringLiteral("0.00");
  files.SaveText(path, SystemFileText(system));
  systems.prepend(name);
  WriteNames(files, shared, NameList::Systems, systems);
  return {};
}

QStringList Unpriced(Files& files, const SharedFields& shared, const QStringList& systems) {
  QStringList unpriced;
  for (const QString& name : systems) {
    SystemFile system;
    const QString inProject = shared.JobID.isEmpty() ? QString() : ProjectSystemPath(shared, name);
    const bool own = !inProject.isEmpty() && files.Exists(inProject);
    ReadSystemFile(files, own ? inProject : MasterSystemPath(shared, name), system);
    if (Value(system.unitPrice) == 0 && system.blocks.isEmpty()) unpriced.append(name);
  }
  return unpriced;
}

}  // namespace tamo
