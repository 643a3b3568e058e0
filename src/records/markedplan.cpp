#include "records/markedplan.h"

#include "common/paths.h"

namespace tamo {
namespace {

bool DropEnding(QString& name, const QString& ending, Qt::CaseSensitivity sensitivity) {
  if (!name.endsWith(ending, sensitivity)) return false;
  name.chop(ending.size());
  return true;
}

}  // namespace

QString PlainPlanName(const QString& planLocation) {
  QString name = FileNameOf(planLocation);
  const QString pdf = QStringLiteral(".PDF");
  while (DropEnding(name, pdf, Qt::CaseInsensitive)) {
  }
  while (DropEnding(name, QStringLiteral("-Marked"), Qt::CaseSensitive)) {
  }
  while (DropEnding(name, pdf, Qt::CaseInsensitive)) {
  }
  return name;
}

QString MarkedPlanName(const QString& plainName) {
  return plainName + QStringLiteral("-Marked.pdf");
}

QString MarkedPlanPath(const QString& planLocation, const ProjectFolder& project) {
  return project.Plans() + MarkedPlanName(PlainPlanName(planLocation));
}

}  // namespace tamo
