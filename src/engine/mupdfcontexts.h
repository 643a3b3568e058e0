#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include "plans/plansource.h"

struct fz_context;
struct fz_stream;

namespace tamo {

// What all threads that work on one plan share of the PDF engine: its memory, its locks, its
// caches. The memory of all plans together is limited; a plan that asks for more fails as a damaged
// one does. An abandoned contexts gets no memory any more and reads no file, so that whatever still
// runs in it ends soon.
class MuPdfContexts : public std::enable_shared_from_this<MuPdfContexts> {
 public:
  static std::shared_ptr<MuPdfContexts> Make();  // null when there is no memory
  ~MuPdfContexts();
  MuPdfContexts(const MuPdfContexts&) = delete;
  MuPdfContexts& operator=(const MuPdfContexts&) = delete;

  // A context for one thread; give it back with DropContext before the contexts ends.
  fz_context* NewContext();
  static void DropContext(fz_context* context);

  // Does something short with the contexts's own context, whatever thread it is on.
  void WithSpare(const std::function<void(fz_context*)>& work);

  void Abandon() { abandoned_ = true; }
  bool Abandoned() const { return abandoned_; }

  qint64 InUse() const { return inUse_; }  // bytes of what shares this contexts
  // The engine keeps each object of a document that it has ever read. Beyond so many bytes in use a
  // document forgets those of the pages that were read before; they are read again when they are
  // wanted.
  static constexpr qint64 kMostWithObjects = qint64(96) << 20;
  bool ForgetsObjects() const { return inUse_ > kMostWithObjects; }
  static qint64 MemoryInUse();               // of all of them
  static void SetMemoryLimit(qint64 bytes);  // 320 MB when not set
  // Counts memory that a decoder will take past the engine; false when there is not so much. A
  // whole number of bytes.
  static bool Reserve(double bytes);
  static void Release(double bytes);

 private:
  MuPdfContexts();
  struct Inner;
  std::unique_ptr<Inner> inner_;
  std::atomic<bool> abandoned_ = false;
  std::atomic<qint64> inUse_ = 0;
  friend struct ContextsMemory;
};

// The plan as a stream of the engine. To be called inside a try of the engine; throws as it does.
fz_stream* NewPlanStream(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
                         std::shared_ptr<PlanSource> source);

}  // namespace tamo
