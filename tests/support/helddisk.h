#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "common/disk.h"

namespace tamo::test {

// A device on which every other thread waits for its bytes until they are let through.
class HeldDisk : public RealDisk {
 public:
  std::shared_ptr<std::atomic<bool>> held = std::make_shared<std::atomic<bool>>(true);

  int OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) override {
    const int error = RealDisk::OpenToRead(path, reader);
    if (error == 0) reader = std::make_shared<Held>(reader, held);
    return error;
  }

 private:
  struct Held : FileReader {
    Held(std::shared_ptr<FileReader> of, std::shared_ptr<std::atomic<bool>> until)
        : reader(std::move(of)), held(std::move(until)) {}
    qint64 Size() const override { return reader->Size(); }
    int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
      while (*held && std::this_thread::get_id() != opener)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      return reader->ReadAt(offset, into, count, got);
    }
    std::shared_ptr<FileReader> reader;
    std::shared_ptr<std::atomic<bool>> held;
    std::thread::id opener = std::this_thread::get_id();
  };
};

}  // namespace tamo::test
