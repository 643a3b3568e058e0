#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QString>

namespace tamo::bench {

// A plan that make_plans.py makes: "sheet.pdf", "clip.pdf" or "set.pdf". All are made when they are
// first asked for, and stay for the next run, in the folder TAMO_BENCH_PLANS names or a temporary
// one.
inline QString PlanPath(const char* name) {
  static const QString folder = [] {
    const QString made = qEnvironmentVariable(
        "TAMO_BENCH_PLANS", QDir::tempPath() + QStringLiteral("/tamo-bench-plans"));
    if (!QFileInfo::exists(made + QStringLiteral("/clip.pdf"))) {
      const QString script = QStringLiteral(TAMO_SOURCE_DIR "/bench/make_plans.py");
      QProcess::execute(QStringLiteral("python3"), {script, made});
    }
    return made;
  }();
  return folder + QLatin1Char('/') + QLatin1String(name);
}

}  // namespace tamo::bench
