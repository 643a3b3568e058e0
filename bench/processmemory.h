#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tamo::bench {

// What a process has of the machine, as the system tells it.
struct ProcessMemory {
  double now = 0;   // megabytes that are resident; with the tiles, which program and worker share
  double peak = 0;  // the most there ever was of them
  int threads = 0;
  int files = 0;  // that it has open
};

inline ProcessMemory MemoryOf(const std::string& process) {
  const std::filesystem::path folder = std::filesystem::path("/proc") / process;
  ProcessMemory memory;
  std::ifstream status(folder / "status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmRSS:" && status >> kilobytes) memory.now = kilobytes / 1e3 * 1.024;
    if (word == "VmHWM:" && status >> kilobytes) memory.peak = kilobytes / 1e3 * 1.024;
    if (word == "Threads:") status >> memory.threads;
  }
  std::error_code none;  // what a worker has open is not shown to everybody
  for (const auto& file : std::filesystem::directory_iterator(folder / "fd", none)) {
    static_cast<void>(file);
    ++memory.files;
  }
  return memory;
}

// The processes that this one has begun and that still are.
inline std::vector<std::string> ChildrenOfThis() {
  std::vector<std::string> found;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream children(task.path() / "children");
    for (std::string child; children >> child;) found.push_back(child);
  }
  return found;
}

// This program, and what reads plans for it, all together.
struct DayMemory {
  ProcessMemory program = MemoryOf("self");
  ProcessMemory workers;
  size_t count = 0;  // of workers

  DayMemory() {
    for (const std::string& child : ChildrenOfThis()) {
      const ProcessMemory worker = MemoryOf(child);
      workers.now += worker.now;
      workers.peak += worker.peak;
      workers.threads += worker.threads;
      workers.files += worker.files;
      ++count;
    }
  }
};

}  // namespace tamo::bench
