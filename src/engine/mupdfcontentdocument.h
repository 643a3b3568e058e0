#pragma once

#include <atomic>
#include <memory>
#include <vector>

#include "common/disk.h"
#include "plans/pagecontent.h"

namespace tamo {

// A plan opened to read the contents of its pages, one after the other: it is opened by the first
// reading and kept. One thread at a time.
class MuPdfContentDocument {
 public:
  MuPdfContentDocument(std::shared_ptr<FileReader> file, qint64 size, const QByteArray& password);
  ~MuPdfContentDocument();
  MuPdfContentDocument(const MuPdfContentDocument&) = delete;
  MuPdfContentDocument& operator=(const MuPdfContentDocument&) = delete;

  // As ReadPageContent. A reading that was cancelled leaves nothing behind.
  PageContent Read(int page, const std::atomic<bool>* cancel);
  // The same without paths and pictures.
  PageContent ReadTexts(int page, const std::atomic<bool>* cancel);
  // Of each layer whether what stands on it is read from then on.
  bool ShowLayers(const std::vector<bool>& shown);

 private:
  PageContent Read(int page, bool textsOnly, const std::atomic<bool>* cancel);
  struct Inner;
  std::unique_ptr<Inner> inner_;
};

}  // namespace tamo
