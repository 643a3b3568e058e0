#include "openfiles.h"

#include <map>
#include <mutex>

namespace tamo {
namespace {

struct OpenFiles {
  std::mutex mutex;
  std::map<int, std::string> paths;
};

OpenFiles& TheOpenFiles() {
  static auto* files = new OpenFiles;
  return *files;
}

}  // namespace

void RememberOpen(int handle, const std::string& path) {
  OpenFiles& files = TheOpenFiles();
  const std::lock_guard lock(files.mutex);
  files.paths[handle] = path;
}

void ForgetOpen(int handle) {
  OpenFiles& files = TheOpenFiles();
  const std::lock_guard lock(files.mutex);
  files.paths.erase(handle);
}

std::string PathOfOpen(int handle) {
  OpenFiles& files = TheOpenFiles();
  const std::lock_guard lock(files.mutex);
  const auto found = files.paths.find(handle);
  return found == files.paths.end() ? std::string() : found->second;
}

void RenameOpen(const std::string& from, const std::string& to) {
  OpenFiles& files = TheOpenFiles();
  const std::lock_guard lock(files.mutex);
  for (auto& [handle, path] : files.paths) {
    if (path == from) path = to;
  }
}

}  // namespace tamo
