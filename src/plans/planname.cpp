#include "plans/planname.h"

#include "common/paths.h"
#include "records/markedplan.h"

namespace tamo {

QString PlanNameOf(const QString& path) {
  QString name = FileNameOf(path);
  const qsizetype point = name.lastIndexOf(QLatin1Char('.'));
  if (point >= 0) name.truncate(point);
  const QString mark = QStringLiteral("-Marked");
  if (name.endsWith(mark)) name.chop(mark.size());
  return name;
}

bool NamesAbout(const QString& path) {
  return PlanNameOf(path).compare(QLatin1String("About"), Qt::CaseInsensitive) == 0;
}

QString MarkedCopyOf(const QString& path, const ProjectFolder& project, QString& refusal) {
  const QString copy = MarkedPlanPath(PlanNameOf(path), project);
  const bool named = !PlainPlanName(PlanNameOf(path)).trimmed().isEmpty();
  refusal = NameRefusal(named ? FileNameOf(copy) : QString());
  return refusal.isEmpty() ? copy : QString();
}

QString ProgramFile(const SharedFields& shared, const char* name) {
  return InFolder(shared.zDir, QLatin1String(name));
}

QString WithoutDoubleMark(QString path) {
  while (path.endsWith(QLatin1String("-Marked-Marked.pdf"))) {
    path.chop(11);
    path += QStringLiteral(".pdf");
  }
  return path;
}

}  // namespace tamo
