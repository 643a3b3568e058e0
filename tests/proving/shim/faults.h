#pragma once

#include <sys/types.h>
#include <string>

// What the proving ground does to the file operations of a program, as its environment says:
//   PROVING_BELOW    the folder that is looked after with all in it; nothing else is touched
//   PROVING_LOG      a file that gets one line an operation; its fields have tabs between them
//   PROVING_DATA     set: the log holds what was written, too (hexadecimal)
//   PROVING_CLASSES  which operations are counted: r (reading), w (writing), l (looking: stat,
//   access) PROVING_AT       the first operation that is struck, from 1; 0 or nothing: none
//   PROVING_FOR      how many are struck from there on; 0: all to the end
//   PROVING_DO       kill, half (a part of the operation is done, then the program is killed),
//   short
//                    (fewer bytes than asked for), delay (with PROVING_SEED: at random, each up to
//                    PROVING_DELAY microseconds), or an error: EACCES, EIO, ENOSPC, ENOENT
namespace tamo {

enum class Blow { None, Kill, Half, Short, Error };

// One operation, from its count to its line in the log. Nothing here throws.
class Operation {
 public:
  // `kind` is r, w or l; the paths are whole. `error()` is set when the blow is Error.
  Operation(char kind, const char* name, const std::string& path, const std::string& other = {});
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;

  Blow blow() const { return blow_; }
  int error() const { return error_; }
  // Writes the line, keeps errno; `bytes` are those that were written.
  void Done(long result, const void* bytes = nullptr, size_t count = 0);
  // The same for an operation that its program does not survive.
  [[noreturn]] void Die(const char* how, const void* bytes = nullptr, size_t count = 0);

 private:
  void Log(const std::string& result, const void* bytes, size_t count);

  char kind_;
  const char* name_;
  std::string path_;
  std::string other_;
  long number_ = 0;
  Blow blow_ = Blow::None;
  int error_ = 0;
};

// Whether the whole path is the folder that is looked after or lies in it.
bool IsBelow(const char* path);
// A line of the program's own standard output, so that the log tells what came before what.
void LogSaid(const void* bytes, size_t count);

}  // namespace tamo
