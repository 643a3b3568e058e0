#include "plans/workerprocess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include "common/filedescriptor.h"
#include "plans/wiresocket.h"

namespace tamo {
namespace {

constexpr size_t kTileBytes = sizeof(uint32_t) * size_t(kTileSlots) * size_t(kSlotPixels);
constexpr qint64 kCopyChunk = qint64(1) << 20;
constexpr int kSendPatience = 20;  // seconds
constexpr int kFirstFree = 10;     // above the numbers that the worker gets

// A number that is closed; one above those that the worker gets, so that placing them there
// overwrites none.
class Handle {
 public:
  explicit Handle(int number) {
    if (number < 0) return;
    number_ = ::fcntl(number, F_DUPFD_CLOEXEC, kFirstFree);
    ::close(number);
  }
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  int Get() const { return number_; }
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_ = -1;
};

// Memory that nobody can make smaller: the program may read it whatever the worker does.
int NewTiles() {
  const int tiles = ::memfd_create("tamo tiles", MFD_CLOEXEC | MFD_ALLOW_SEALING);
  if (tiles < 0) return -1;
  if (::ftruncate(tiles, kTileBytes) == 0 &&
      ::fcntl(tiles, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0) {
    return tiles;
  }
  ::close(tiles);
  return -1;
}

// A plan that is no file of the system, as one.
int CopyOf(const FileReader& plan, qint64 size) {
  const int copy = ::memfd_create("tamo plan", MFD_CLOEXEC);
  QByteArray part(kCopyChunk, '\0');
  for (qint64 place = 0; copy >= 0 && place < size;) {
    qint64 got = 0;
    const int error = plan.ReadAt(place, part.data(), std::min(kCopyChunk, size - place), got);
    if (error != 0 || got <= 0 || ::pwrite(copy, part.constData(), size_t(got), place) != got)
      break;
    place += got;
  }
  return copy;
}

int HandleOf(const FileReader& plan, qint64 size) {
  const int own = DescriptorOf(plan);
  return own >= 0 ? ::fcntl(own, F_DUPFD_CLOEXEC, kFirstFree) : CopyOf(plan, size);
}

}  // namespace

std::unique_ptr<WorkerProcess> WorkerProcess::Start(const QByteArray& program) {
  int ends[2] = {-1, -1};
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return nullptr;
  Handle ours(ends[0]);
  const Handle theirs(ends[1]);
  const Handle tiles(NewTiles());
  if (ours.Get() < 0 || theirs.Get() < 0 || tiles.Get() < 0) return nullptr;
  std::unique_ptr<WorkerProcess> made = With(ours.Release(), tiles.Get());
  if (made == nullptr || !made->Spawn(program, theirs.Get(), tiles.Get())) return nullptr;
  return made;
}

std::unique_ptr<WorkerProcess> WorkerProcess::At(int socket) {
  const Handle tiles(NewTiles());
  return With(socket, tiles.Get());
}

std::unique_ptr<WorkerProcess> WorkerProcess::With(int socket, int tiles) {
  std::unique_ptr<WorkerProcess> made(new WorkerProcess);
  made->socket_ = socket;
  void* memory = ::mmap(nullptr, kTileBytes, PROT_READ, MAP_SHARED, tiles, 0);
  if (memory == MAP_FAILED) return nullptr;
  made->tiles_ = memory;
  // A worker that reads nothing any more holds nobody for good.
  const timeval patience{kSendPatience, 0};
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  return made;
}

bool WorkerProcess::Hand(const FileReader& plan, qint64 size) {
  const Handle file(HandleOf(plan, size));
  return file.Get() >= 0 && SendFile(socket_, file.Get());
}

bool WorkerProcess::Spawn(const QByteArray& program, int socket, int tiles) {
  posix_spawn_file_actions_t actions;
  if (::posix_spawn_file_actions_init(&actions) != 0) return false;
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&actions, number, "/dev/null", O_RDWR, 0);
  }
  ::posix_spawn_file_actions_adddup2(&actions, socket, kWorkerSocket);
  ::posix_spawn_file_actions_adddup2(&actions, tiles, kWorkerTiles);
  char name[] = "tamo-engine";
  char* arguments[] = {name, nullptr};
  char* environment[] = {nullptr};
  const int error =
      ::posix_spawn(&id_, program.constData(), &actions, nullptr, arguments, environment);
  ::posix_spawn_file_actions_destroy(&actions);
  if (error != 0) id_ = -1;
  return error == 0;
}

const uint32_t* WorkerProcess::Slot(int slot) const {
  return static_cast<const uint32_t*>(tiles_) + size_t(slot) * size_t(kSlotPixels);
}

void WorkerProcess::Kill() {
  const std::lock_guard<std::mutex> guard(ending_);
  if (id_ > 0) ::kill(id_, SIGKILL);
  ::shutdown(socket_, SHUT_RDWR);
}

WorkerProcess::~WorkerProcess() {
  Kill();
  {
    const std::lock_guard<std::mutex> guard(ending_);
    while (id_ > 0 && ::waitpid(id_, nullptr, 0) < 0 && errno == EINTR) continue;
    id_ = -1;
  }
  if (tiles_ != nullptr) ::munmap(tiles_, kTileBytes);
  if (socket_ >= 0) ::close(socket_);
}

}  // namespace tamo
