#include "reports/uncounted.h"

#include <algorithm>

#include "common/failure.h"
#include "common/files.h"
#include "common/paths.h"

namespace tamo {

void Uncounted::File(const QString& what, const QString& path, int error) {
  const QString file = path.isEmpty() ? QStringLiteral("it") : FileNameOf(path);
  const QString why =
      path.isEmpty() ? QStringLiteral("no file can have its name")
      : IsMissing(error)
          ? QStringLiteral("its file %1 is missing").arg(file)
          : QStringLiteral("its file %1 can't be read: %2").arg(file, ReadReasonText(error));
  Add(QStringLiteral("Not counted: %1; %2.").arg(what, why));
}

void Uncounted::Lines(const QString& what, const QString& path, int lines) {
  Add(QStringLiteral("Not counted: %1 of %2; no quantity can be read there (%3).")
          .arg(lines == 1 ? QStringLiteral("one line") : QStringLiteral("%1 lines").arg(lines),
               what, FileNameOf(path)));
}

void Uncounted::Add(const QString& text) {
  if (named_.contains(text)) return;
  if (named_.size() < kMostNamed) {
    named_ += text;
  } else {
    ++more_;
  }
}

QStringList Uncounted::Sentences() const {
  QStringList sentences = named_;
  if (more_ > 0) sentences += QStringLiteral("Not counted: %1 more files like these.").arg(more_);
  return sentences;
}

bool LacksQuantity(QStringView line, QStringView quantity) {
  if (line.isEmpty()) return false;
  // From the right, where the figures stand.
  return std::none_of(quantity.rbegin(), quantity.rend(), [](QChar c) { return c.isDigit(); });
}

}  // namespace tamo
