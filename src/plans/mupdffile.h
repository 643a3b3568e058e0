#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "plans/mark.h"
#include "plans/mupdfcontexts.h"

namespace tamo {

// What a plan holds, read once when it is opened.
struct PlanContents {
  int error = 0;
  QString problem;  // in words, when error is not 0
  std::vector<PageSize> sizes;
  std::vector<Mark> marks;  // ours, oldest first
};

// What a save changes.
struct MarkChanges {
  std::vector<Mark> added;
  QStringList removed;  // names
  double markerSize = 13.5;
  bool Empty() const { return added.empty() && removed.empty(); }
};

// The structure of an open plan: its pages, its marks, and what a save appends. Lives on one
// thread, with that thread's context; every call catches the engine's failures.
class MuPdfFile {
 public:
  MuPdfFile(fz_context* context, std::shared_ptr<MuPdfContexts> contexts, std::shared_ptr<PlanSource> source);
  ~MuPdfFile();
  MuPdfFile(const MuPdfFile&) = delete;
  MuPdfFile& operator=(const MuPdfFile&) = delete;

  PlanContents Open(const QString& password);

  // True when the plan was damaged and only opened by repairing it: nothing can be appended to it
  // then, it has to be written anew first.
  bool NeedsRewrite() const;

  // The bytes that, appended to the file, bring the changes into it. The plan then counts as
  // having them. Returns 0 or 57.
  int Addition(const MarkChanges& changes, QByteArray& bytes, QString& problem);
  // Takes the last Addition back: it did not reach the disk.
  void ForgetAddition();

  // Writes the whole plan anew, repaired. `sink` returns 0 or an error number, which ends it.
  int Rewrite(const std::function<int(const QByteArray&)>& sink, QString& problem);

 private:
  struct Inner;
  std::unique_ptr<Inner> inner_;
};

}  // namespace tamo
