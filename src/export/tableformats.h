#pragma once

#include <QString>
#include <memory>

#include "export/bytesink.h"
#include "export/tablefile.h"

namespace tamo {

// The ending of a file's name in small letters, without its point; "" for none.
QString EndingOf(const QString& path);
// The file of a table by its ending: "csv" (with a byte-order mark) or "xlsx"; nullptr for others.
// `title` names the sheet.
std::unique_ptr<TableFile> NewTableFile(const QString& ending, ByteSink& sink,
                                        const QString& title);

}  // namespace tamo
