#include "faults.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <random>

namespace tamo {
namespace {

std::string Value(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

long Number(const char* name) {
  return std::atol(Value(name).c_str());
}

int ErrorOf(const std::string& deed) {
  if (deed == "EACCES") return EACCES;
  if (deed == "ENOSPC") return ENOSPC;
  if (deed == "ENOENT") return ENOENT;
  return EIO;
}

struct Orders {
  std::string below = Value("PROVING_BELOW");
  std::string log = Value("PROVING_LOG");
  std::string classes = Value("PROVING_CLASSES");
  std::string deed = Value("PROVING_DO");
  bool data = !Value("PROVING_DATA").empty();
  long at = Number("PROVING_AT");
  long count = Number("PROVING_FOR");
  long delay = Number("PROVING_DELAY");
  std::minstd_rand random{static_cast<unsigned>(Number("PROVING_SEED")) + 1U};
};

// Made at the first use, never destroyed: files are still closed while the program ends.
Orders& TheOrders() {
  static auto* orders = new Orders;
  return *orders;
}

int LogFile() {
  static const int file =
      static_cast<int>(::syscall(SYS_openat, AT_FDCWD, TheOrders().log.c_str(),
                                 O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
  return file;
}

void Append(const std::string& line) {
  if (TheOrders().log.empty()) return;
  [[maybe_unused]] const long wrote = ::syscall(SYS_write, LogFile(), line.data(), line.size());
}

void AddHex(std::string& line, const void* bytes, size_t count) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto* each = static_cast<const unsigned char*>(bytes);
  for (size_t at = 0; at < count; ++at) {
    line += kDigits[each[at] >> 4U];
    line += kDigits[each[at] & 15U];
  }
}

std::atomic<long> counted{0};

}  // namespace

Operation::Operation(char kind, const char* name, const std::string& path, const std::string& other)
    : kind_(kind), name_(name), path_(path), other_(other) {
  Orders& orders = TheOrders();
  if (orders.classes.find(kind) == std::string::npos) return;
  number_ = ++counted;
  if (orders.deed == "delay") {
    if (orders.delay > 0) ::usleep(static_cast<useconds_t>(orders.random() % orders.delay));
    return;
  }
  if (orders.at == 0 || number_ < orders.at) return;
  if (orders.count != 0 && number_ >= orders.at + orders.count) return;
  if (orders.deed == "kill") {
    blow_ = Blow::Kill;
  } else if (orders.deed == "half") {
    blow_ = Blow::Half;
  } else if (orders.deed == "short") {
    blow_ = Blow::Short;
  } else {
    blow_ = Blow::Error;
    error_ = ErrorOf(orders.deed);
  }
  if (blow_ == Blow::Kill) Die("killed before");
}

void Operation::Log(const std::string& result, const void* bytes, size_t count) {
  std::string line = std::to_string(number_) + '\t' + kind_ + '\t' + name_ + '\t' + result + '\t' +
                     path_ + '\t' + other_ + '\t';
  if (TheOrders().data && bytes != nullptr) AddHex(line, bytes, count);
  Append(line + '\n');
}

void Operation::Done(long result, const void* bytes, size_t count) {
  const int kept = errno;
  Log(result < 0 ? std::string("failed ") + ::strerrorname_np(kept) : std::to_string(result), bytes,
      count);
  errno = kept;
}

void Operation::Die(const char* how, const void* bytes, size_t count) {
  Log(how, bytes, count);
  ::kill(::getpid(), SIGKILL);
  ::_exit(137);
}

bool IsBelow(const char* path) {
  const std::string& below = TheOrders().below;
  if (path == nullptr || below.empty()) return false;
  if (std::strncmp(path, below.c_str(), below.size()) != 0) return false;
  return path[below.size()] == '/' || path[below.size()] == '\0';
}

void LogSaid(const void* bytes, size_t count) {
  std::string text(static_cast<const char*>(bytes), count);
  while (!text.empty() && text.back() == '\n') text.pop_back();
  if (text.find('\n') == std::string::npos) Append("0\ts\tsaid\t0\t" + text + "\t\t\n");
}

}  // namespace tamo
