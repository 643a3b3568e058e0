#include "engine/mupdfcontexts.h"

#include <mupdf/fitz.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace tamo {
namespace {

constexpr size_t kHeader = 16;               // keeps the alignment of what follows
constexpr size_t kStore = size_t(16) << 20;  // what pages share, and parts of pictures
constexpr int kStreamBuffer = 16384;

std::atomic<qint64> memoryInUse = 0;
std::atomic<qint64> memoryLimit = qint64(320) << 20;

bool TakeOfAll(qint64 bytes) {
  if (memoryInUse.fetch_add(bytes) + bytes <= memoryLimit) return true;
  memoryInUse.fetch_sub(bytes);
  return false;
}

}  // namespace

// The memory of one contexts, counted for it and for all.
struct ContextsMemory {
  static bool Take(void* user, size_t size) {
    auto* contexts = static_cast<MuPdfContexts*>(user);
    const auto bytes = static_cast<qint64>(size);
    if (contexts->Abandoned() || !TakeOfAll(bytes)) return false;
    contexts->inUse_ += bytes;
    return true;
  }
  static void Give(void* user, size_t size) {
    const auto bytes = static_cast<qint64>(size);
    static_cast<MuPdfContexts*>(user)->inUse_ -= bytes;
    memoryInUse -= bytes;
  }
};

namespace {

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
  if (size > SIZE_MAX / 4 || !ContextsMemory::Take(user, size)) return nullptr;
  void* block = std::malloc(size + kHeader);
  if (block == nullptr) ContextsMemory::Give(user, size);
  return Stamp(block, size);
}

void FreeMemory(void* user, void* memory) {
  if (memory == nullptr) return;
  char* block = static_cast<char*>(memory) - kHeader;
  ContextsMemory::Give(user, SizeOf(block));
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
  if (size > SIZE_MAX / 4) return nullptr;
  if (size > before && !ContextsMemory::Take(user, size - before)) return nullptr;
  void* moved = std::realloc(block, size + kHeader);
  if (moved == nullptr) {
    if (size > before) ContextsMemory::Give(user, size - before);
    return nullptr;
  }
  if (size < before) ContextsMemory::Give(user, before - size);
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
  std::shared_ptr<MuPdfContexts> contexts;
  std::shared_ptr<PlanSource> source;
  unsigned char bytes[kStreamBuffer];
};

// How many bytes now stand in the state's buffer; -1 when the contexts is abandoned or the file
// fails.
int Fill(StreamState* state, qint64 place) {
  if (state->contexts->Abandoned()) return -1;
  const qint64 count = std::min<qint64>(kStreamBuffer, state->source->Size() - place);
  if (count <= 0) return 0;
  qint64 got = 0;
  const auto reader = state->source->Reader();
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
  if (whence == SEEK_END) place += state->source->Size();
  if (whence == SEEK_CUR) place += stream->pos - (stream->wp - stream->rp);
  stream->pos = std::clamp<int64_t>(place, 0, state->source->Size());
  stream->rp = state->bytes;
  stream->wp = state->bytes;
}

void DropBytes(fz_context* /*context*/, void* state) {
  delete static_cast<StreamState*>(state);
}

}  // namespace

struct MuPdfContexts::Inner {
  std::mutex locks[FZ_LOCK_MAX];
  fz_alloc_context alloc{};
  fz_locks_context lockCalls{};
  fz_context* base = nullptr;
  std::mutex cloning;
};

MuPdfContexts::MuPdfContexts() : inner_(std::make_unique<Inner>()) {}

std::shared_ptr<MuPdfContexts> MuPdfContexts::Make() {
  std::shared_ptr<MuPdfContexts> contexts(new MuPdfContexts);
  Inner& inner = *contexts->inner_;
  inner.alloc = {contexts.get(), TakeMemory, ResizeMemory, FreeMemory};
  inner.lockCalls = {inner.locks, Lock, Unlock};
  inner.base = fz_new_context(&inner.alloc, &inner.lockCalls, kStore);
  if (inner.base == nullptr) return nullptr;
  fz_set_error_callback(inner.base, Quiet, nullptr);
  fz_set_warning_callback(inner.base, Quiet, nullptr);
  return contexts;
}

MuPdfContexts::~MuPdfContexts() {
  if (inner_->base != nullptr) fz_drop_context(inner_->base);
}

fz_context* MuPdfContexts::NewContext() {
  const std::lock_guard<std::mutex> guard(inner_->cloning);
  return fz_clone_context(inner_->base);
}

void MuPdfContexts::WithSpare(const std::function<void(fz_context*)>& work) {
  const std::lock_guard<std::mutex> guard(inner_->cloning);
  work(inner_->base);
}

void MuPdfContexts::DropContext(fz_context* context) {
  if (context != nullptr) fz_drop_context(context);
}

qint64 MuPdfContexts::MemoryInUse() {
  return memoryInUse;
}

void MuPdfContexts::SetMemoryLimit(qint64 bytes) {
  memoryLimit = bytes;
}

bool MuPdfContexts::Reserve(double bytes) {
  return bytes < static_cast<double>(memoryLimit.load()) && TakeOfAll(static_cast<qint64>(bytes));
}

void MuPdfContexts::Release(double bytes) {
  memoryInUse.fetch_sub(static_cast<qint64>(bytes));
}

fz_stream* NewPlanStream(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
                         std::shared_ptr<PlanSource> source) {
  auto* state = new StreamState{std::move(contexts), std::move(source), {}};
  fz_stream* stream = fz_new_stream(context, state, NextBytes, DropBytes);
  stream->seek = SeekBytes;
  return stream;
}

}  // namespace tamo
