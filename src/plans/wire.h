#pragma once

#include <QByteArray>
#include <QString>
#include <bit>
#include <cstdint>

namespace tamo {

// The language in which the program and the process that reads plans talk: numbers of fixed width,
// the lowest byte first; texts and byte strings behind their length. Nothing that is read is
// believed: a reader never reads past its end, and what does not fit makes it Bad for good.

class WireWriter {
 public:
  void Byte(unsigned value) { bytes_.append(static_cast<char>(value)); }
  void Flag(bool value) { Byte(value ? 1 : 0); }
  void Number(int64_t value);
  void Real(double value) { Number(std::bit_cast<int64_t>(value)); }
  void Bytes(const QByteArray& value);
  void Text(const QString& value) { Bytes(value.toUtf8()); }
  QByteArray Take() { return std::move(bytes_); }

 private:
  QByteArray bytes_;
};

class WireReader {
 public:
  // Outlived by `bytes`.
  explicit WireReader(const QByteArray& bytes) : bytes_(bytes) {}

  unsigned Byte();
  bool Flag() { return Byte() != 0; }
  int64_t Number();
  // A number from `least` to `most`; any other makes it bad and gives `least`.
  int64_t Number(int64_t least, int64_t most);
  // A finite number of at most nine digits before the point; any other is 0.
  double Real();
  QByteArray Bytes();
  QString Text() { return QString::fromUtf8(Bytes()); }
  // How many parts follow, each of at least `least` bytes: never more than there is room for.
  size_t Count(size_t least);

  bool Good() const { return good_; }
  bool AtEnd() const { return good_ && at_ == bytes_.size(); }
  void Spoil() { good_ = false; }

 private:
  bool Has(qsizetype count);
  const QByteArray& bytes_;
  qsizetype at_ = 0;
  bool good_ = true;
};

}  // namespace tamo
