#pragma once

#include <atomic>
#include <memory>

#include "common/disk.h"
#include "plans/pagecontent.h"

namespace tamo {

// Reads page `page` (from 1) of a PDF. `password` is UTF-8, empty when it has none. Once `cancel`
// is set it comes back within a moment with what it has. Any thread; several may read at once.
PageContent ReadPageContent(std::shared_ptr<FileReader> file, int page,
                            const QByteArray& password = {},
                            const std::atomic<bool>* cancel = nullptr);
// The same by the path of the file.
PageContent ReadPageContent(Disk& disk, const QString& path, int page,
                            const QByteArray& password = {},
                            const std::atomic<bool>* cancel = nullptr);

}  // namespace tamo
