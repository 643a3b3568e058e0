#pragma once

#include <map>

#include "plans/drawingboard.h"

namespace tamo {

// A viewer without a PDF, for tests and for playing forms without an engine: it behaves as the real
// one and keeps its "files" in memory. What a test wants of it is set through the public members.
class FakePdfDraw : public DrawingBoard {
 public:
  struct File {
    std::vector<PageSize> sizes = {PageSize()};
    std::vector<Mark> marks;  // oldest first
  };

  int OpenFile(const QString& path, const QString& password) override;
  int SaveAs(const QString& path) override;
  void Print() override;

  std::map<QString, File> files;  // plans by path; a plan that is not here opens as an empty one
  int pagesOfNewFile = 1;         // pages of such a plan
  PageSize sizeOfNewFile;         // and their size
  int openResult = 0;             // what the next opens and saves return; not 0: they fail
  int saveResult = 0;
  // When set, SaveAs hands over what would be written, so that a file stands on the disk.
  std::function<int(const QString& path, const QByteArray& content)> onWriteFile;

  // What was asked of it, in order: "open PATH", "save PATH", "print".
  std::vector<QString> calls;
};

}  // namespace tamo
