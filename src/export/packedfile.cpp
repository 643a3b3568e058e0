#include "export/packedfile.h"

#include <zlib.h>

#include <algorithm>

namespace tamo {
namespace {

constexpr quint32 kEnd = 0x06054b50;
constexpr quint32 kDirectory = 0x02014b50;
constexpr quint32 kLocal = 0x04034b50;
constexpr qint64 kEndSize = 22;
constexpr qint64 kDirectorySize = 46;
constexpr qint64 kLocalSize = 30;
constexpr qint64 kLongestComment = 0xFFFF;

// Raw deflated bytes; false when they are damaged or not `size` long.
bool Inflate(const char* from, quint32 packed, quint32 size, QByteArray& content) {
  content.resize(static_cast<qsizetype>(size));
  z_stream stream{};
  if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return false;
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(from));
  stream.avail_in = packed;
  stream.next_out = reinterpret_cast<Bytef*>(content.data());
  stream.avail_out = size;
  const int ended = inflate(&stream, Z_FINISH);
  const bool whole = ended == Z_STREAM_END && stream.total_out == size;
  inflateEnd(&stream);
  return whole;
}

}  // namespace

PackedFile::PackedFile(const QByteArray& bytes) : bytes_(bytes) {
  whole_ = ReadDirectory();
}

// A little-endian number; 0 beyond the end.
quint32 PackedFile::At(qint64 place, int bytes) const {
  if (place < 0 || place + bytes > bytes_.size()) return 0;
  quint32 number = 0;
  for (int i = bytes - 1; i >= 0; --i)
    number = number << 8 | static_cast<unsigned char>(bytes_[static_cast<qsizetype>(place + i)]);
  return number;
}

bool PackedFile::ReadDirectory() {
  const qint64 first = std::max<qint64>(0, bytes_.size() - kEndSize - kLongestComment);
  qint64 end = bytes_.size() - kEndSize;
  while (end >= first && At(end, 4) != kEnd) --end;
  if (end < first) return false;
  const quint32 count = At(end + 10, 2);
  qint64 at = At(end + 16, 4);
  for (quint32 i = 0; i < count; ++i) {
    if (At(at, 4) != kDirectory) return false;
    const quint32 name = At(at + 28, 2);
    if (at + kDirectorySize + name > bytes_.size()) return false;
    Entry entry{static_cast<int>(At(at + 10, 2)), At(at + 20, 4), At(at + 24, 4), At(at + 16, 4),
                At(at + 42, 4)};
    entries_.insert(bytes_.mid(static_cast<qsizetype>(at + kDirectorySize), name), entry);
    at += kDirectorySize + name + At(at + 30, 2) + At(at + 32, 2);
  }
  return true;
}

bool PackedFile::Read(const QByteArray& name, qint64 most, QByteArray& content) const {
  const auto found = entries_.constFind(name);
  if (found == entries_.constEnd() || found->size > most) return false;
  if (At(found->place, 4) != kLocal) return false;
  const qint64 begin =
      found->place + kLocalSize + At(found->place + 26, 2) + At(found->place + 28, 2);
  if (begin + found->packed > bytes_.size()) return false;
  if (found->method == 0) {
    content = bytes_.mid(static_cast<qsizetype>(begin), found->packed);
    if (found->packed != found->size) return false;
  } else if (found->method != 8 ||
             !Inflate(bytes_.constData() + begin, found->packed, found->size, content)) {
    return false;
  }
  const auto* data = reinterpret_cast<const Bytef*>(content.constData());
  return crc32(0, data, static_cast<uInt>(content.size())) == found->check;
}

}  // namespace tamo
