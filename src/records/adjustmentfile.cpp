#include "records/adjustmentfile.h"

#include <QStringList>

namespace tamo {

int ReadAdjustment(Files& files, const ProjectFolder& project, QString& amount) {
  QStringList fields;
  const int error = files.ReadFields(project.Adjustment(), fields);
  if (!fields.isEmpty()) amount = fields.first();
  return error;
}

int WriteAdjustment(Files& files, const ProjectFolder& project, const QString& amount) {
  return files.SaveLines(project.Adjustment(), {amount});
}

}  // namespace tamo
