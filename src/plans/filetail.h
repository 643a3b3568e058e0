#pragma once

#include <QByteArray>

#include "common/disk.h"

namespace tamo {

// A marked plan grows at its end: each save appends one addition, from kAdditionHead to the end of
// the file. A crash in the middle leaves a torn addition. These functions tell how far a plan is
// whole.

// The first bytes of an addition (behind a line end) and the comment line near its end, which holds
// where it begins and a sum over its bytes up to that comment.
inline constexpr char kAdditionHead[] = "%TamoMarks\n";
inline constexpr char kAdditionSum[] = "%TamoSum ";

struct FileTail {
  qint64 whole = 0;   // bytes of the last whole state; the file's size when nothing is torn
  bool torn = false;  // what follows `whole` is a torn addition of ours
};

// Reads the end of a plan. A file that is damaged in another way counts as whole: it is not ours to
// cut.
FileTail ReadTail(const FileReader& file);

// Cuts a torn addition off the file at `path`, as far as it may be written. What fails is tried
// again when the plan is next opened.
void CutTornTail(Disk& disk, const QString& path, qint64 whole);

// Ends an addition: the sum comment, the startxref lines. `addition` is everything from the line
// end before kAdditionHead, `start` its place in the file, `xref` the place of its cross-reference
// part.
void SealAddition(QByteArray& addition, qint64 start, qint64 xref);

quint32 Crc32(quint32 sum, const char* bytes, qint64 count);

// `count` bytes from `offset`; fewer at the file's end, none on a failure.
QByteArray ReadPart(const FileReader& file, qint64 offset, qint64 count);

// The first bytes of `file` are those of `plan`, all of them: it is a copy with additions, or the
// same. Only the begin and the end of what they share are looked at.
bool GoesOnFrom(const FileReader& file, const FileReader& plan);

}  // namespace tamo
