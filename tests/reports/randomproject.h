#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <random>

#include "common/disk.h"

namespace tamo::test {

// A disk that holds its files in memory and can only be read.
class MemoryDisk : public RealDisk {
 public:
  QHash<QString, QByteArray> contents;

  int Read(const QString& path, QByteArray& bytes) override;
  int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) override {
    return Disk::ReadStamped(path, bytes, stamp);
  }
  bool Exists(const QString& path) override { return contents.contains(path); }
  QStringList Names(const QString&) override { return {}; }
};

// A project as no estimator would leave it: missing files, zero ratios, texts wider than their
// columns, figures that are no numbers, names that are no file names. Below the folder "/p/".
// Less than `sheets` rooms and areas each, and a few systems more than a dozen for a large one.
void FillWithRandomProject(MemoryDisk& disk, std::mt19937& random, int sheets = 4);

}  // namespace tamo::test
