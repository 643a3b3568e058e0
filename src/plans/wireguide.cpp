#include "plans/wireguide.h"

#include "plans/wireplan.h"

namespace tamo {
namespace {

constexpr int64_t kMostPages = 100000;
constexpr size_t kLeastTarget = 34;  // bytes on the wire, at least
constexpr size_t kLeastText = 8;

void Put(WireWriter& wire, const PlanTarget& target) {
  wire.Byte(static_cast<unsigned>(target.kind));
  wire.Number(target.page);
  wire.Flag(target.placed);
  wire.Real(target.at.x);
  wire.Real(target.at.y);
  wire.Text(target.outside);
}

void Take(WireReader& wire, PlanTarget& target) {
  const unsigned kind = wire.Byte();
  if (kind > static_cast<unsigned>(PlanTarget::Kind::Other)) wire.Spoil();
  target.kind = wire.Good() ? static_cast<PlanTarget::Kind>(kind) : PlanTarget::Kind::None;
  const bool inside = target.kind == PlanTarget::Kind::Page;
  target.page = static_cast<int>(wire.Number(inside ? 1 : 0, inside ? kMostPages : 0));
  target.placed = wire.Flag();
  target.at.x = wire.Real();
  target.at.y = wire.Real();
  target.outside = OneLine(wire.Text(), kLongestAddress);
}

// How many follow; more than there may be makes it bad.
size_t Count(WireReader& wire, size_t least, int64_t most) {
  const size_t count = wire.Count(least);
  if (static_cast<int64_t>(count) > most) wire.Spoil();
  return wire.Good() ? count : 0;
}

void PutBookmarks(WireWriter& wire, const std::vector<PlanBookmark>& bookmarks) {
  wire.Number(static_cast<int64_t>(bookmarks.size()));
  for (const PlanBookmark& bookmark : bookmarks) {
    wire.Text(bookmark.title);
    wire.Number(bookmark.depth);
    Put(wire, bookmark.target);
  }
}

void TakeBookmarks(WireReader& wire, std::vector<PlanBookmark>& bookmarks) {
  const size_t count = Count(wire, kLeastText + 8 + kLeastTarget, kMostBookmarks);
  for (size_t i = 0; i < count && wire.Good(); ++i) {
    PlanBookmark bookmark;
    bookmark.title = OneLine(wire.Text(), kLongestEntryTitle);
    bookmark.depth = static_cast<int>(wire.Number(0, kDeepestBookmark));
    Take(wire, bookmark.target);
    bookmarks.push_back(std::move(bookmark));
  }
}

}  // namespace

QString OneLine(const QString& text, int most) {
  QString line = text.left(most);
  for (QChar& letter : line) {
    const bool odd = letter.category() == QChar::Other_Control ||
                     letter.category() == QChar::Other_Format || letter == QChar::LineSeparator ||
                     letter == QChar::ParagraphSeparator;
    if (odd) letter = QLatin1Char(' ');
  }
  return line.simplified();
}

void Put(WireWriter& wire, const PlanGuide& guide) {
  PutOutcome(wire, guide.error, guide.problem);
  wire.Number(guide.labels.size());
  for (const QString& label : guide.labels) wire.Text(label);
  PutBookmarks(wire, guide.bookmarks);
  wire.Number(static_cast<int64_t>(guide.layers.size()));
  for (const PlanLayer& layer : guide.layers) {
    wire.Text(layer.name);
    wire.Flag(layer.shown);
    wire.Flag(layer.locked);
  }
}

void Take(WireReader& wire, PlanGuide& guide) {
  TakeOutcome(wire, guide.error, guide.problem);
  const size_t labels = Count(wire, kLeastText, kMostPages);
  for (size_t i = 0; i < labels && wire.Good(); ++i)
    guide.labels += OneLine(wire.Text(), kLongestLabel);
  TakeBookmarks(wire, guide.bookmarks);
  const size_t layers = Count(wire, kLeastText + 2, kMostLayers);
  for (size_t i = 0; i < layers && wire.Good(); ++i) {
    PlanLayer layer;
    layer.name = OneLine(wire.Text(), kLongestEntryTitle);
    layer.shown = wire.Flag();
    layer.locked = wire.Flag();
    guide.layers.push_back(std::move(layer));
  }
}

void Put(WireWriter& wire, const std::vector<PageLink>& links) {
  wire.Number(static_cast<int64_t>(links.size()));
  for (const PageLink& link : links) {
    for (const double edge : {link.box.left, link.box.top, link.box.right, link.box.bottom})
      wire.Real(edge);
    Put(wire, link.target);
  }
}

void Take(WireReader& wire, std::vector<PageLink>& links) {
  const size_t count = Count(wire, 32 + kLeastTarget, kMostLinks);
  for (size_t i = 0; i < count && wire.Good(); ++i) {
    PageLink link;
    for (double* edge : {&link.box.left, &link.box.top, &link.box.right, &link.box.bottom})
      *edge = wire.Real();
    Take(wire, link.target);
    links.push_back(std::move(link));
  }
}

void Put(WireWriter& wire, const std::vector<bool>& layers) {
  wire.Number(static_cast<int64_t>(layers.size()));
  for (const bool shown : layers) wire.Flag(shown);
}

void Take(WireReader& wire, std::vector<bool>& layers) {
  const size_t count = Count(wire, 1, kMostLayers);
  for (size_t i = 0; i < count && wire.Good(); ++i) layers.push_back(wire.Flag());
}

}  // namespace tamo
