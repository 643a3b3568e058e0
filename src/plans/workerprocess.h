#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <memory>
#include <mutex>

#include "common/disk.h"

namespace tamo {

// A process that reads one plan (src/engine/main.cpp). It gets one end of a socket, the memory for
// tiles and, through the socket, the plan, opened for reading; nothing else of this program.
class WorkerProcess {
 public:
  // One without a plan. Null when it can't be started.
  static std::unique_ptr<WorkerProcess> Start(const QByteArray& program);
  // One that was begun by somebody else, who holds the other end of `socket`; the socket is taken.
  static std::unique_ptr<WorkerProcess> At(int socket);
  // Once. False when the plan can't be read, or the process is gone.
  bool Hand(const FileReader& plan, qint64 size);
  ~WorkerProcess();  // kills it and waits for its end
  WorkerProcess(const WorkerProcess&) = delete;
  WorkerProcess& operator=(const WorkerProcess&) = delete;

  int Socket() const { return socket_; }
  pid_t Id() const { return id_; }
  // Of slot 0 to kTileSlots - 1, kSlotPixels each. The process writes them; they never get smaller.
  const uint32_t* Slot(int slot) const;
  void Kill();  // comes back at once, from any thread

 private:
  WorkerProcess() = default;
  static std::unique_ptr<WorkerProcess> With(int socket, int tiles);
  bool Spawn(const QByteArray& program, int socket, int tiles);
  int socket_ = -1;
  std::mutex ending_;
  pid_t id_ = -1;
  void* tiles_ = nullptr;
};

}  // namespace tamo
