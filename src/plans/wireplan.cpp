#include "plans/wireplan.h"

#include "common/failure.h"

namespace tamo {
namespace {

constexpr int64_t kMostPages = 100000;
constexpr int64_t kLargestPlace = 2000000000;
constexpr qsizetype kLongestWords = 2000;
constexpr size_t kLeastMark = 40;  // bytes of one on the wire, at least
constexpr int kLargestSide = 16384;

// A sentence for a person.
QString Words(WireReader& wire) {
  return wire.Text().left(kLongestWords);
}

void Put(WireWriter& wire, const Mark& mark) {
  wire.Byte(static_cast<unsigned>(mark.kind));
  wire.Number(mark.page);
  wire.Number(static_cast<int64_t>(mark.points.size()));
  for (const PagePoint& point : mark.points) {
    wire.Real(point.x);
    wire.Real(point.y);
  }
  wire.Text(mark.colour);
  wire.Real(mark.width);
  wire.Text(mark.label);
  wire.Text(mark.group);
  wire.Text(mark.name);
  wire.Text(mark.title);
  wire.Text(mark.kept);
}

void Take(WireReader& wire, Mark& mark) {
  const unsigned kind = wire.Byte();
  if (kind > static_cast<unsigned>(Mark::Kind::Total)) wire.Spoil();
  mark.kind = wire.Good() ? static_cast<Mark::Kind>(kind) : Mark::Kind::Line;
  mark.page = static_cast<int>(wire.Number(1, kMostPages));
  const size_t points = wire.Count(16);
  if (!FitsKind(mark.kind, points)) return wire.Spoil();
  for (size_t i = 0; i < points; ++i) {
    const double x = wire.Real();
    mark.points.push_back({x, wire.Real()});
  }
  mark.colour = wire.Text();
  if (!IsColourCode(mark.colour)) mark.colour = Mark().colour;
  mark.width = wire.Real();
  mark.label = wire.Text();
  mark.group = wire.Text();
  mark.name = wire.Text();
  mark.title = wire.Text();
  mark.kept = wire.Text();
  BringToBounds(mark);
}

void Put(WireWriter& wire, const std::vector<Mark>& marks) {
  wire.Number(static_cast<int64_t>(marks.size()));
  for (const Mark& mark : marks) Put(wire, mark);
}

void Take(WireReader& wire, std::vector<Mark>& marks) {
  const size_t count = wire.Count(kLeastMark);
  for (size_t i = 0; i < count && wire.Good(); ++i) {
    Mark mark;
    Take(wire, mark);
    marks.push_back(std::move(mark));
  }
}

}  // namespace

void Put(WireWriter& wire, PageSize size) {
  wire.Real(size.width);
  wire.Real(size.height);
}

void Take(WireReader& wire, PageSize& size) {
  const double width = wire.Real();
  const double height = wire.Real();
  // What is no size a sheet can have is a letter sheet.
  if (width >= 1 && height >= 1 && width < 1e7 && height < 1e7) size = {width, height};
}

void Put(WireWriter& wire, const PageGaps& gaps) {
  wire.Byte((gaps.pictures ? 1 : 0) | (gaps.patterns ? 2 : 0) | (gaps.contents ? 4 : 0));
}

void Take(WireReader& wire, PageGaps& gaps) {
  const unsigned bits = wire.Byte();
  gaps = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
}

void Put(WireWriter& wire, const PaintPart& part) {
  wire.Real(part.pixelsPerPoint);
  for (const int number : {part.turn, part.left, part.top, part.width, part.height})
    wire.Number(number);
  wire.Flag(part.coarse);
}

void Take(WireReader& wire, PaintPart& part) {
  part.pixelsPerPoint = wire.Real();
  part.turn = static_cast<int>(wire.Number(0, 270));
  part.left = static_cast<int>(wire.Number(-kLargestPlace, kLargestPlace));
  part.top = static_cast<int>(wire.Number(-kLargestPlace, kLargestPlace));
  part.width = static_cast<int>(wire.Number(1, kLargestSide));
  part.height = static_cast<int>(wire.Number(1, kLargestSide));
  part.coarse = wire.Flag();
}

void PutOutcome(WireWriter& wire, int error, const QString& problem) {
  wire.Flag(error != kNoError);
  wire.Text(problem);
}

void TakeOutcome(WireReader& wire, int& error, QString& problem) {
  error = wire.Flag() ? kFileOther : kNoError;
  problem = Words(wire);
}

void Put(WireWriter& wire, const PlanContents& contents) {
  PutOutcome(wire, contents.error, contents.problem);
  wire.Flag(contents.wantsPassword);
  wire.Text(contents.reservation);
  wire.Text(contents.caution);
  wire.Number(static_cast<int64_t>(contents.sizes.size()));
  for (const PageSize& size : contents.sizes) Put(wire, size);
  Put(wire, contents.marks);
}

void Take(WireReader& wire, PlanContents& contents) {
  TakeOutcome(wire, contents.error, contents.problem);
  contents.wantsPassword = wire.Flag();
  contents.reservation = Words(wire);
  contents.caution = Words(wire);
  const size_t pages = wire.Count(16);
  if (pages > static_cast<size_t>(kMostPages)) wire.Spoil();
  if (pages == 0 && contents.error == kNoError) wire.Spoil();
  for (size_t i = 0; i < pages && wire.Good(); ++i) {
    contents.sizes.emplace_back();
    Take(wire, contents.sizes.back());
  }
  Take(wire, contents.marks);
  for (const Mark& mark : contents.marks) {
    if (static_cast<size_t>(mark.page) > pages) wire.Spoil();
  }
}

void Put(WireWriter& wire, const MarkChanges& changes) {
  Put(wire, changes.added);
  wire.Number(changes.removed.size());
  for (const QString& name : changes.removed) wire.Text(name);
  wire.Real(changes.markerSize);
}

void Take(WireReader& wire, MarkChanges& changes) {
  Take(wire, changes.added);
  const size_t count = wire.Count(8);
  for (size_t i = 0; i < count && wire.Good(); ++i) changes.removed.push_back(wire.Text());
  changes.markerSize = wire.Real();
}

void Put(WireWriter& wire, const PlanUpdate& update) {
  PutOutcome(wire, update.error, update.problem);
  wire.Flag(update.needsRewrite);
  wire.Bytes(update.bytes);
}

void Take(WireReader& wire, PlanUpdate& update) {
  TakeOutcome(wire, update.error, update.problem);
  update.needsRewrite = wire.Flag();
  update.bytes = wire.Bytes();
}

}  // namespace tamo
