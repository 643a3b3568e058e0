#include "plans/muworld.h"

#include <mupdf/fitz.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace tamo {
namespace {

constexpr size_t kHeader = 16;  // keeps the alignment of what follows
constexpr size_t kStore = size_t(48) << 20;
constexpr int kStreamBuffer = 16384;

std::atomic<qint64> memoryInUse = 0;
std::atomic<qint64> memoryLimit = qint64(768) << 20;

bool Take(qint64 bytes) {
  if (memoryInUse.fetch_add(bytes) + bytes <= memoryLimit) return true;
  memoryInUse.fetch_sub(bytes);
  return false;
}

size_t SizeOf(const char* block) {
  size_t size = 0;
  std::memcpy(&size, block, sizeof size);
  return size;
}

void* Stamp(void* block, size_t size) {
  if (block == nullptr) return nullptr;
  std::memcpy(block, &size, sizeof size);
  return static_cast<char*>(block) + kHeader;
}

void* TakeMemory(void* user, size_t size) {
  if (static_cast<MuWorld*>(user)->Abandoned() || size > SIZE_MAX / 4) return nullptr;
  if (!Take(static_cast<qint64>(size))) return nullptr;
  void* block = std::malloc(size + kHeader);
  if (block == nullptr) memoryInUse.fetch_sub(static_cast<qint64>(size));
  return Stamp(block, size);
}

void FreeMemory(void* /*user*/, void* memory) {
  if (memory == nullptr) return;
  char* block = static_cast<char*>(memory) - kHeader;
  memoryInUse.fetch_sub(static_cast<qint64>(SizeOf(block)));
  std::free(block);
}

void* ResizeMemory(void* user, void* memory, size_t size) {
  if (memory == nullptr) return TakeMemory(user, size);
  if (size == 0) {
    FreeMemory(user, memory);
    return nullptr;
  }
  char* block = static_cast<char*>(memory) - kHeader;
  const size_t before = SizeOf(block);
  if (size > before) {
    if (static_cast<MuWorld*>(user)->Abandoned() || size > SIZE_MAX / 4) return nullptr;
    if (!Take(static_cast<qint64>(size - before))) return nullptr;
  }
  void* moved = std::realloc(block, size + kHeader);
  if (moved == nullptr) {
    if (size > before) memoryInUse.fetch_sub(static_cast<qint64>(size - before));
    return nullptr;
  }
  if (size < before) memoryInUse.fetch_sub(static_cast<qint64>(before - size));
  return Stamp(moved, size);
}

void Lock(void* user, int lock) {
  static_cast<std::mutex*>(user)[lock].lock();
}

void Unlock(void* user, int lock) {
  static_cast<std::mutex*>(user)[lock].unlock();
}

void Quiet(void* /*user*/, const char* /*message*/) {}

struct StreamState {
  std::shared_ptr<MuWorld> world;
  std::shared_ptr<ReaderSlot> slot;
  unsigned char bytes[kStreamBuffer];
};

// How many bytes now stand in the state's buffer; -1 when the world is abandoned or the file fails.
int Fill(StreamState* state, qint64 place) {
  if (state->world->Abandoned()) return -1;
  const qint64 count = std::min<qint64>(kStreamBuffer, state->slot->Size() - place);
  if (count <= 0) return 0;
  qint64 got = 0;
  const auto reader = state->slot->Get();
  if (reader->ReadAt(place, reinterpret_cast<char*>(state->bytes), count, got) != 0) return -1;
  return static_cast<int>(got);
}

int NextBytes(fz_context* context, fz_stream* stream, size_t /*max*/) {
  auto* state = static_cast<StreamState*>(stream->state);
  const int got = Fill(state, stream->pos);
  if (got < 0) fz_throw(context, FZ_ERROR_GENERIC, "the plan can't be read");
  stream->rp = state->bytes;
  stream->wp = state->bytes + got;
  stream->pos += got;
  return got == 0 ? EOF : *stream->rp++;
}

void SeekBytes(fz_context* /*context*/, fz_stream* stream, int64_t offset, int whence) {
  auto* state = static_cast<StreamState*>(stream->state);
  int64_t place = offset;
  if (whence == SEEK_END) place += state->slot->Size();
  if (whence == SEEK_CUR) place += stream->pos - (stream->wp - stream->rp);
  stream->pos = std::clamp<int64_t>(place, 0, state->slot->Size());
  stream->rp = state->bytes;
  stream->wp = state->bytes;
}

void DropBytes(fz_context* /*context*/, void* state) {
  delete static_cast<StreamState*>(state);
}

}  // namespace

struct MuWorld::Inner {
  std::mutex locks[FZ_LOCK_MAX];
  fz_alloc_context alloc{};
  fz_locks_context lockCalls{};
  fz_context* base = nullptr;
  std::mutex cloning;
};

MuWorld::MuWorld() : inner_(std::make_unique<Inner>()) {}

std::shared_ptr<MuWorld> MuWorld::Make() {
  std::shared_ptr<MuWorld> world(new MuWorld);
  Inner& inner = *world->inner_;
  inner.alloc = {world.get(), TakeMemory, ResizeMemory, FreeMemory};
  inner.lockCalls = {inner.locks, Lock, Unlock};
  inner.base = fz_new_context(&inner.alloc, &inner.lockCalls, kStore);
  if (inner.base == nullptr) return nullptr;
  fz_set_error_callback(inner.base, Quiet, nullptr);
  fz_set_warning_callback(inner.base, Quiet, nullptr);
  return world;
}

MuWorld::~MuWorld() {
  if (inner_->base != nullptr) fz_drop_context(inner_->base);
}

fz_context* MuWorld::NewContext() {
  const std::lock_guard<std::mutex> guard(inner_->cloning);
  return fz_clone_context(inner_->base);
}

void MuWorld::WithSpare(const std::function<void(fz_context*)>& work) {
  const std::lock_guard<std::mutex> guard(inner_->cloning);
  work(inner_->base);
}

void MuWorld::DropContext(fz_context* context) {
  if (context != nullptr) fz_drop_context(context);
}

qint64 MuWorld::MemoryInUse() {
  return memoryInUse;
}

void MuWorld::SetMemoryLimit(qint64 bytes) {
  memoryLimit = bytes;
}

void ReaderSlot::Set(std::shared_ptr<FileReader> reader) {
  const std::lock_guard<std::mutex> guard(mutex_);
  reader_ = std::move(reader);
}

std::shared_ptr<FileReader> ReaderSlot::Get() const {
  const std::lock_guard<std::mutex> guard(mutex_);
  return reader_;
}

fz_stream* NewPlanStream(fz_context* context, std::shared_ptr<MuWorld> world,
                         std::shared_ptr<ReaderSlot> slot) {
  auto* state = new StreamState{std::move(world), std::move(slot), {}};
  fz_stream* stream = fz_new_stream(context, state, NextBytes, DropBytes);
  stream->seek = SeekBytes;
  return stream;
}

// --- JobThread

struct JobThread::State {
  std::shared_ptr<MuWorld> world;
  std::mutex mutex;
  std::condition_variable wake;
  std::condition_variable ended;
  std::deque<Job> jobs;
  bool stop = false;
  bool done = false;
};

JobThread::JobThread(std::shared_ptr<MuWorld> world) : state_(std::make_shared<State>()) {
  state_->world = std::move(world);
  thread_ = std::thread([state = state_] { Loop(state); });
}

void JobThread::Loop(const std::shared_ptr<State>& state) {
  fz_context* context = state->world->NewContext();
  std::unique_lock<std::mutex> lock(state->mutex);
  for (;;) {
    state->wake.wait(lock, [&] { return state->stop || !state->jobs.empty(); });
    if (state->jobs.empty()) break;
    Job job = std::move(state->jobs.front());
    state->jobs.pop_front();
    lock.unlock();
    if (context != nullptr) job(context);
    job = nullptr;
    lock.lock();
  }
  lock.unlock();
  MuWorld::DropContext(context);
  lock.lock();
  state->done = true;
  state->ended.notify_all();
}

JobThread::~JobThread() {
  std::unique_lock<std::mutex> lock(state_->mutex);
  state_->stop = true;
  state_->wake.notify_all();
  const bool ended =
      state_->ended.wait_for(lock, std::chrono::milliseconds(20), [this] { return state_->done; });
  lock.unlock();
  if (ended) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void JobThread::Post(Job job) {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->jobs.push_back(std::move(job));
  state_->wake.notify_all();
}

bool JobThread::Run(Job job, int milliseconds) {
  struct Wait {
    std::mutex mutex;
    std::condition_variable done;
    bool finished = false;
  };
  const auto wait = std::make_shared<Wait>();
  Post([wait, job = std::move(job)](fz_context* context) {
    job(context);
    const std::lock_guard<std::mutex> guard(wait->mutex);
    wait->finished = true;
    wait->done.notify_all();
  });
  std::unique_lock<std::mutex> lock(wait->mutex);
  return wait->done.wait_for(lock, std::chrono::milliseconds(milliseconds),
                             [&] { return wait->finished; });
}

}  // namespace tamo
