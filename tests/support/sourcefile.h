#pragma once

#include <QString>

namespace tamo::test {

// The path of a file or folder of the sources, given from their top: "data/Sample". Only one place knows where they lie, so that
// what was compiled of the other tests is the same for every copy of the sources.
QString SourceFile(const QString& inside);

}  // namespace tamo::test
