#pragma once

#include <QByteArray>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include "common/disk.h"

struct fz_context;
struct fz_stream;

namespace tamo {

// What all threads that work on one plan share of the PDF engine: its memory, its locks, its
// caches. The memory of all plans together is limited; a plan that asks for more fails as a damaged
// one does. An abandoned world gets no memory any more and reads no file, so that whatever still
// runs in it ends soon.
class MuWorld : public std::enable_shared_from_this<MuWorld> {
 public:
  static std::shared_ptr<MuWorld> Make();  // null when there is no memory
  ~MuWorld();
  MuWorld(const MuWorld&) = delete;
  MuWorld& operator=(const MuWorld&) = delete;

  // A context for one thread; give it back with DropContext before the world ends.
  fz_context* NewContext();
  static void DropContext(fz_context* context);

  // Does something short with the world's own context, whatever thread it is on.
  void WithSpare(const std::function<void(fz_context*)>& work);

  void Abandon() { abandoned_ = true; }
  bool Abandoned() const { return abandoned_; }

  static qint64 MemoryInUse();
  static void SetMemoryLimit(qint64 bytes);  // 768 MB when not set

 private:
  MuWorld();
  struct Inner;
  std::unique_ptr<Inner> inner_;
  std::atomic<bool> abandoned_ = false;
};

// The file that an open plan is read from. A copy with the same first bytes can take its place.
class ReaderSlot {
 public:
  ReaderSlot(std::shared_ptr<FileReader> reader, qint64 size)
      : reader_(std::move(reader)), size_(size) {}
  void Set(std::shared_ptr<FileReader> reader);
  std::shared_ptr<FileReader> Get() const;
  qint64 Size() const { return size_; }  // bytes of the whole state; what follows is not read

 private:
  mutable std::mutex mutex_;
  std::shared_ptr<FileReader> reader_;
  const qint64 size_;
};

// The plan as a stream of the engine. To be called inside a try of the engine; throws as it does.
fz_stream* NewPlanStream(fz_context* context, std::shared_ptr<MuWorld> world,
                         std::shared_ptr<ReaderSlot> slot);

// A thread with a context of its own that does one job after the other. Destroying it ends it after
// the job in work; when that takes longer than a moment the thread is left to end by itself (its
// world should be abandoned first).
class JobThread {
 public:
  using Job = std::function<void(fz_context*)>;

  explicit JobThread(std::shared_ptr<MuWorld> world);
  ~JobThread();
  JobThread(const JobThread&) = delete;
  JobThread& operator=(const JobThread&) = delete;

  void Post(Job job);
  // Does a job and waits for it; false when it is not done in time (it then still comes to its end,
  // so it must own what it works on).
  bool Run(Job job, int milliseconds);

 private:
  struct State;
  static void Loop(const std::shared_ptr<State>& state);
  std::shared_ptr<State> state_;
  std::thread thread_;
};

}  // namespace tamo
