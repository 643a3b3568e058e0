#include "support/sourcefile.h"

namespace tamo::test {

QString SourceFile(const QString& inside) {
  return QStringLiteral(TAMO_SOURCE_DIR "/") + inside;
}

}  // namespace tamo::test
