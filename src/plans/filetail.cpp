#include "plans/filetail.h"

#include <algorithm>
#include <array>

#include "common/failure.h"

namespace tamo {
namespace {

constexpr qint64 kTailBytes = 1024;
constexpr qint64 kLargestAddition = qint64(64) << 20;
constexpr qint64 kChunk = 1 << 16;

std::array<quint32, 256> CrcTable() {
  std::array<quint32, 256> table{};
  for (quint32 i = 0; i < 256; ++i) {
    quint32 value = i;
    for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ ((value & 1) ? 0xedb88320U : 0);
    table[i] = value;
  }
  return table;
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

// True when the bytes end in "startxref", a number and "%%EOF".
bool EndsWhole(QByteArray tail) {
  while (!tail.isEmpty() && IsBlank(tail.back())) tail.chop(1);
  if (!tail.endsWith("%%EOF")) return false;
  tail.chop(5);
  while (!tail.isEmpty() && IsBlank(tail.back())) tail.chop(1);
  const qsizetype digits = tail.size();
  while (!tail.isEmpty() && tail.back() >= '0' && tail.back() <= '9') tail.chop(1);
  if (tail.size() == digits) return false;
  while (!tail.isEmpty() && IsBlank(tail.back())) tail.chop(1);
  return tail.endsWith("startxref");
}

enum class Seal { None, Good, Broken };

// Whether the last addition before `size` is ours and whole; `start` is where it begins.
Seal CheckSeal(const FileReader& file, qint64 size, const QByteArray& tail, qint64& start) {
  const qsizetype at = tail.lastIndexOf(kAdditionSum);
  if (at < 0 || tail.indexOf("startxref", at) != tail.lastIndexOf("startxref")) return Seal::None;
  const qsizetype end = tail.indexOf('\n', at);
  const QList<QByteArray> words = tail.mid(at, end - at).split(' ');
  bool startRead = false;
  bool sumRead = false;
  if (words.size() != 3) return Seal::None;
  start = words[1].toLongLong(&startRead);
  const quint32 expected = words[2].toUInt(&sumRead, 16);
  const qint64 sealed = size - tail.size() + at;
  if (!startRead || !sumRead || start < 0 || start >= sealed) return Seal::None;
  if (sealed - start > kLargestAddition) return Seal::Good;  // more than a save ever writes
  quint32 sum = 0;
  for (qint64 place = start; place < sealed; place += kChunk) {
    const QByteArray part = ReadPart(file, place, std::min(kChunk, sealed - place));
    sum = Crc32(sum, part.constData(), part.size());
  }
  return sum == expected ? Seal::Good : Seal::Broken;
}

// The last place before `size` where an addition's head begins, with the line end before it; -1
// when there is none within reach.
qint64 LastHead(const FileReader& file, qint64 size) {
  const QByteArray head = QByteArray("\n") + kAdditionHead;
  const qint64 reach = std::max(qint64(0), size - kLargestAddition);
  for (qint64 end = size; end > reach; end -= kChunk) {
    const qint64 from = std::max(reach, end - kChunk - head.size());
    const qsizetype at = ReadPart(file, from, end - from).lastIndexOf(head);
    if (at >= 0) return from + at;
  }
  return -1;
}

// Whether the addition that begins at `head` is whole and only something foreign follows it.
bool WholeBefore(const FileReader& file, qint64 head, qint64 size) {
  const QByteArray rest = ReadPart(file, head, size - head);
  const qsizetype at = rest.lastIndexOf("%%EOF");
  if (at < 0) return false;
  const qsizetype from = std::max(qsizetype(0), at + 5 - kTailBytes);
  const QByteArray tail = rest.mid(from, at + 5 - from);
  qint64 start = -1;
  return EndsWhole(tail) && CheckSeal(file, head + at + 5, tail, start) == Seal::Good;
}

// The place behind the last "%%EOF" and its line end when everything after it is the beginning of
// an addition's head or bytes that never reached the disk; -1 otherwise.
qint64 BarelyBegun(const FileReader& file, qint64 size) {
  qint64 zeros = size;
  while (zeros > 0) {
    const qint64 from = std::max(qint64(0), zeros - kChunk);
    QByteArray part = ReadPart(file, from, zeros - from);
    while (!part.isEmpty() && part.back() == '\0') part.chop(1);
    zeros = from + part.size();
    if (!part.isEmpty() || size - zeros > kLargestAddition) break;
  }
  const qint64 from = std::max(qint64(0), zeros - kTailBytes);
  const QByteArray tail = ReadPart(file, from, zeros - from);
  qsizetype at = tail.lastIndexOf("%%EOF");
  if (at < 0) return -1;
  at += 5;
  const QByteArray head = QByteArray("\n") + kAdditionHead;
  const qsizetype lineEnd = tail.mid(at, 2) == "\r\n" ? 2 : tail.mid(at, 1) == "\n" ? 1 : 0;
  for (const qsizetype ends : {lineEnd, qsizetype(0)}) {
    const QByteArray rest = tail.mid(at + ends);
    if (!head.startsWith(rest) || !EndsWhole(tail.left(at))) continue;
    // Zeros alone are padding of another program unless the state before them is one of ours.
    if (rest.size() > 1 || tail.left(at).contains(kAdditionSum)) return from + at + ends;
  }
  return -1;
}

}  // namespace

quint32 Crc32(quint32 sum, const char* bytes, qint64 count) {
  static const std::array<quint32, 256> table = CrcTable();
  sum = ~sum;
  for (qint64 i = 0; i < count; ++i) {
    sum = table[(sum ^ static_cast<unsigned char>(bytes[i])) & 0xff] ^ (sum >> 8);
  }
  return ~sum;
}

QByteArray ReadPart(const FileReader& file, qint64 offset, qint64 count) {
  if (offset < 0 || count <= 0) return {};
  QByteArray bytes(static_cast<qsizetype>(count), '\0');
  qint64 got = 0;
  if (file.ReadAt(offset, bytes.data(), count, got) != 0) return {};
  bytes.truncate(static_cast<qsizetype>(got));
  return bytes;
}

void CutTornTail(Disk& disk, const QString& path, qint64 whole) {
  int handle = -1;
  if (!disk.CanWrite(path) || disk.OpenAtEnd(path, handle) != kNoError) return;
  disk.Truncate(handle, whole);
  disk.Sync(handle);
  disk.Close(handle);
}

FileTail ReadTail(const FileReader& file) {
  const qint64 all = file.Size();
  qint64 size = all;
  while (size > 0) {
    const qint64 from = std::max(qint64(0), size - kTailBytes);
    const QByteArray tail = ReadPart(file, from, size - from);
    qint64 start = -1;
    if (EndsWhole(tail)) {
      if (CheckSeal(file, size, tail, start) != Seal::Broken) return {size, size < all};
    } else if ((start = BarelyBegun(file, size)) < 0) {
      start = LastHead(file, size);
      if (start < 0 || WholeBefore(file, start, size)) break;
    }
    if (start <= 0 || start >= size) break;
    size = start;
  }
  return {all, false};
}

void SealAddition(QByteArray& addition, qint64 start, qint64 xref) {
  const quint32 sum = Crc32(0, addition.constData(), addition.size());
  addition += kAdditionSum + QByteArray::number(start) + ' ' +
              QByteArray::number(sum, 16).rightJustified(8, '0') + '\n';
  addition += "startxref\n" + QByteArray::number(xref) + "\n%%EOF\n";
}

bool GoesOnFrom(const FileReader& file, const FileReader& plan) {
  constexpr qint64 kCompared = 65536;
  const qint64 shared = ReadTail(plan).whole;
  if (file.Size() < shared) return false;
  const auto same = [&](qint64 from, qint64 count) {
    return ReadPart(file, from, count) == ReadPart(plan, from, count);
  };
  const qint64 part = std::min(shared, kCompared);
  return same(0, part) && same(shared - part, part);
}

}  // namespace tamo
