#include "plans/wire.h"

#include <cmath>

namespace tamo {
namespace {

constexpr double kLargest = 1e9;

}  // namespace

void WireWriter::Number(int64_t value) {
  auto rest = static_cast<uint64_t>(value);
  for (int i = 0; i < 8; ++i, rest >>= 8) Byte(static_cast<unsigned>(rest & 255));
}

void WireWriter::Bytes(const QByteArray& value) {
  Number(value.size());
  bytes_.append(value);
}

bool WireReader::Has(qsizetype count) {
  if (!good_ || count < 0 || count > bytes_.size() - at_) good_ = false;
  return good_;
}

unsigned WireReader::Byte() {
  if (!Has(1)) return 0;
  return static_cast<unsigned char>(bytes_[at_++]);
}

int64_t WireReader::Number() {
  if (!Has(8)) return 0;
  uint64_t value = 0;
  for (int i = 0; i < 8; ++i) value |= static_cast<uint64_t>(Byte()) << (8 * i);
  return static_cast<int64_t>(value);
}

int64_t WireReader::Number(int64_t least, int64_t most) {
  const int64_t value = Number();
  if (good_ && value >= least && value <= most) return value;
  good_ = false;
  return least;
}

double WireReader::Real() {
  const auto value = std::bit_cast<double>(Number());
  return std::isfinite(value) && std::abs(value) <= kLargest ? value : 0;
}

QByteArray WireReader::Bytes() {
  const int64_t length = Number();
  if (length > bytes_.size() || !Has(static_cast<qsizetype>(length))) {
    good_ = false;
    return {};
  }
  QByteArray value = bytes_.mid(at_, static_cast<qsizetype>(length));
  at_ += static_cast<qsizetype>(length);
  return value;
}

size_t WireReader::Count(size_t least) {
  const auto room = static_cast<int64_t>(static_cast<size_t>(bytes_.size() - at_) / least);
  return static_cast<size_t>(Number(0, room));
}

}  // namespace tamo
