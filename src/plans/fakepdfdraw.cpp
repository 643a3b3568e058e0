#include "plans/fakepdfdraw.h"

#include <utility>

namespace tamo {

int FakePdfDraw::OpenFile(const QString& path, const QString& /*password*/) {
  calls.push_back(QStringLiteral("open ") + path);
  if (openResult != 0) {
    SetProblem(QStringLiteral("The plan can't be opened: ") + path);
    ShowPlan(QString(), {}, {});
    return openResult;
  }
  SetProblem(QString());
  if (const auto file = files.find(path); file != files.end()) {
    ShowPlan(path, file->second.sizes, file->second.marks);
  } else {
    const auto pages = static_cast<size_t>(pagesOfNewFile < 1 ? 1 : pagesOfNewFile);
    ShowPlan(path, std::vector<PageSize>(pages, sizeOfNewFile), {});
  }
  return 0;
}

int FakePdfDraw::SaveAs(const QString& path) {
  calls.push_back(QStringLiteral("save ") + path);
  if (ShownPath().isEmpty()) {
    SetProblem(QStringLiteral("No plan is shown, so there is nothing to save."));
    return 53;
  }
  if (saveResult != 0) {
    SetProblem(QStringLiteral("The plan can't be saved: ") + path);
    return saveResult;
  }
  if (path == ShownPath() && !HasUnsavedMarks()) return 0;
  if (onWriteFile) {
    const QByteArray content = "%PDF-1.4\n%" + QByteArray::number(BoardMarks().size()) + " marks\n";
    if (const int error = onWriteFile(path, content)) return error;
  }
  File file;
  file.sizes.clear();
  for (int page = 1; page <= PageCount(); ++page) file.sizes.push_back(SizeOfPage(page));
  file.marks = BoardMarks();
  files[path] = std::move(file);
  MarkSaved(path);
  return 0;
}

void FakePdfDraw::Print() {
  calls.push_back(QStringLiteral("print"));
  DrawingBoard::Print();
}

}  // namespace tamo
