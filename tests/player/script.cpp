#include "player/script.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "common/textlines.h"
#include "player/parser.h"

namespace tamo::player {
namespace {

// One scenario while its files are read.
class Script {
 public:
  explicit Script(const QString& scenario) : folder_(ScenarioFolder(scenario)) {}

  std::vector<Step> steps;

  void Append(const QString& file, const QStringList& lines, const Step& use) {
    open_ += QFileInfo(file).canonicalFilePath();
    for (Step& step : ParseScenario(lines)) {
      step.file = file;
      step.usedBy = use.usedBy;
      step.second = step.second || use.second;
      if (step.error.isEmpty() && step.act == Act::Use) {
        step.error = Use(step);
        if (step.error.isEmpty()) continue;
      }
      steps.push_back(std::move(step));
    }
    open_.removeLast();
  }

 private:
  // What is wrong with it, "" when the steps of the file stand where it stood.
  QString Use(const Step& step) {
    const QString file = Sought(step);
    QStringList lines;
    if (QFileInfo(file).isDir() || !ReadScenarioLines(file, lines))
      return QStringLiteral("the file %1 can't be read").arg(file);
    if (open_.contains(QFileInfo(file).canonicalFilePath()))
      return QStringLiteral("a circle: %1 is being played already").arg(file);
    Step use = step;
    use.usedBy = QStringLiteral("%1:%2").arg(step.file).arg(step.line);
    if (!step.usedBy.isEmpty()) use.usedBy += QStringLiteral(", used by ") + step.usedBy;
    Append(file, lines, use);
    return {};
  }

  QString Sought(const Step& step) const {
    const QString near = Joined(ScenarioFolder(step.file), step.text);
    const QString far = Joined(folder_, step.text);
    return !QFileInfo::exists(near) && QFileInfo::exists(far) ? far : near;
  }

  static QString Joined(const QString& folder, const QString& file) {
    if (QDir::isAbsolutePath(file)) return QDir::cleanPath(file);
    return QDir::cleanPath(folder + QLatin1Char('/') + file);
  }

  QString folder_;
  QStringList open_;  // the files whose steps are being read, outermost first
};

}  // namespace

bool ReadScenarioLines(const QString& name, QStringList& lines) {
  QFile file(name);
  const bool open = name == QStringLiteral("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                : file.open(QIODevice::ReadOnly);
  if (open) lines = WholeLines(DecodedText(file.readAll()));
  return open;
}

QString ScenarioFolder(const QString& file) {
  return file == QStringLiteral("-") ? QStringLiteral(".") : QFileInfo(file).path();
}

std::vector<Step> StepsOf(const QString& file, const QStringList& lines) {
  Script script(file);
  script.Append(file, lines, Step());
  return std::move(script.steps);
}

}  // namespace tamo::player
