#include "plans/painterstate.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tamo {
namespace {

constexpr size_t kMostLists = 3;
constexpr size_t kMostTilePixels = size_t(20) << 20;  // four bytes each
constexpr size_t kMostSmallLists = 3;

}  // namespace

PixelRect PixelRect::Cut(const PixelRect& other) const {
  return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
          std::min(bottom, other.bottom)};
}

int ScaleKey(double pixelsPerPoint) {
  return static_cast<int>(std::lround(pixelsPerPoint * 10000));
}

PixelRect WholePage(PageSize size, double pixelsPerPoint, int turn) {
  const bool upright = turn == 0 || turn == 180;
  const double width = (upright ? size.width : size.height) * pixelsPerPoint;
  const double height = (upright ? size.height : size.width) * pixelsPerPoint;
  const auto whole = [](double pixels) {
    return static_cast<int>(std::clamp(std::ceil(pixels - 1e-3), 1.0, 2e9));
  };
  return {0, 0, whole(width), whole(height)};
}

PaintPart WholePart(PageSize size, int side) {
  PaintPart part;
  part.coarse = true;
  part.pixelsPerPoint = side / std::max(size.width, size.height);
  const PixelRect whole = WholePage(size, part.pixelsPerPoint, 0);
  part.width = std::min(whole.right, side);
  part.height = std::min(whole.bottom, side);
  return part;
}

PaintPart HalfPart(PageSize size, int side, int half) {
  PaintPart part = WholePart(size, side);
  const int upper = (part.height + 1) / 2;
  part.top = half == 0 ? 0 : upper;
  part.height = half == 0 ? upper : part.height - upper;
  return part;
}

PlanView Sane(PlanView view) {
  if (!std::isfinite(view.pixelsPerPoint)) view.pixelsPerPoint = 1;
  view.pixelsPerPoint = std::clamp(view.pixelsPerPoint, 0.001, 200.0);
  view.turn = ((view.turn % 360 + 360 + 45) % 360) / 90 * 90;
  view.width = std::clamp(view.width, 0, 16384);
  view.height = std::clamp(view.height, 0, 16384);
  view.left = std::clamp(view.left, -16384, 2000000000);
  view.top = std::clamp(view.top, -16384, 2000000000);
  return view;
}

PageSize PlanPainter::State::SizeOf(int page) const {
  if (page < 1 || static_cast<size_t>(page) > sizes.size()) return PageSize();
  return sizes[static_cast<size_t>(page) - 1];
}

PixelRect PlanPainter::State::Visible(const PlanView& of) const {
  const PixelRect seen = {of.left, of.top, of.left + of.width, of.top + of.height};
  return seen.Cut(WholePage(SizeOf(of.page), of.pixelsPerPoint, of.turn));
}

std::vector<TileKey> PlanPainter::State::VisibleTiles(const PlanView& of) const {
  std::vector<TileKey> keys;
  const PixelRect seen = Visible(of);
  if (seen.Empty()) return keys;
  for (int row = seen.top / kTileSide; row <= (seen.bottom - 1) / kTileSide; ++row) {
    for (int column = seen.left / kTileSide; column <= (seen.right - 1) / kTileSide; ++column) {
      keys.push_back({of.page, ScaleKey(of.pixelsPerPoint), of.turn, column, row});
    }
  }
  // From the middle of the view outwards.
  const double x = (seen.left + seen.right) / 2.0 / kTileSide - 0.5;
  const double y = (seen.top + seen.bottom) / 2.0 / kTileSide - 0.5;
  const auto away = [&](const TileKey& key) { return std::hypot(key.column - x, key.row - y); };
  std::sort(keys.begin(), keys.end(),
            [&](const TileKey& a, const TileKey& b) { return away(a) < away(b); });
  return keys;
}

PixelRect PlanPainter::State::WantedOf(const TileKey& key, const PlanView& of) const {
  const PixelRect tile = {key.column * kTileSide, key.row * kTileSide, (key.column + 1) * kTileSide,
                          (key.row + 1) * kTileSide};
  return tile.Cut(Visible(of));
}

std::shared_ptr<LoadedPage> PlanPainter::State::ListOf(int page) {
  const auto found = std::find_if(lists.begin(), lists.end(),
                                  [&](const auto& entry) { return entry.first == page; });
  if (found == lists.end()) return nullptr;
  lists.splice(lists.begin(), lists, found);
  return lists.front().second;
}

bool PlanPainter::State::Working(PaintJob::Kind kind, int page) const {
  return std::any_of(working.begin(), working.end(),
                     [&](const PaintJob* job) { return job->kind == kind && job->page == page; });
}

bool PlanPainter::State::WantsSmall(int page) const {
  return std::any_of(wantedThumbnails.begin(), wantedThumbnails.end(),
                     [page](const SmallKey& key) { return key.page == page; });
}

bool PlanPainter::State::WorkingOn(const TileKey& key) const {
  return std::any_of(working.begin(), working.end(), [&](const PaintJob* job) {
    return job->kind == PaintJob::Kind::Sharp && job->tile == key;
  });
}

bool PlanPainter::State::NextCoarse(PaintJob& job) {
  job.kind = PaintJob::Kind::Coarse;
  for (int half = 0; half < 2; ++half) {
    if (coarse.Has(job.page, half)) continue;
    const bool working = std::any_of(this->working.begin(), this->working.end(), [&](auto* other) {
      return other->kind == job.kind && other->page == job.page && other->half == half;
    });
    if (working) continue;
    job.half = half;
    job.part = HalfPart(job.list->Size(), kCoarseSide, half);
    return true;
  }
  return false;
}

bool PlanPainter::State::NextSharp(PaintJob& job) {
  for (const TileKey& key : VisibleTiles(view)) {
    PixelRect wanted = WantedOf(key, view);
    const auto there = tiles.find(key);
    if (there != tiles.end() && there->second.covered.Holds(wanted)) continue;
    if (WorkingOn(key)) continue;
    // A part of the tile is there already, so the user has moved: the whole tile will be wanted.
    if (there != tiles.end()) {
      const PixelRect tile = {key.column * kTileSide, key.row * kTileSide,
                              (key.column + 1) * kTileSide, (key.row + 1) * kTileSide};
      wanted = tile.Cut(WholePage(SizeOf(view.page), view.pixelsPerPoint, view.turn));
    }
    job.kind = PaintJob::Kind::Sharp;
    job.tile = key;
    job.part = {
        view.pixelsPerPoint,        view.turn, wanted.left, wanted.top, wanted.right - wanted.left,
        wanted.bottom - wanted.top, false};
    return true;
  }
  return false;
}

bool PlanPainter::State::NextVisible(bool reads, PaintJob& job) {
  if (!looking || failed.count(view.page) != 0) return false;
  job.page = view.page;
  job.list = ListOf(view.page);
  if (job.list == nullptr) {
    job.kind = PaintJob::Kind::Read;
    return reads && !Working(PaintJob::Kind::Read, view.page);
  }
  return NextCoarse(job) || NextSharp(job);
}

bool PlanPainter::State::NextPrint(bool reads, PaintJob& job) {
  for (const auto& print : prints) {
    if (print->taken) continue;
    job.page = print->part.page;
    job.list = ListOf(job.page);
    if (job.list == nullptr) {
      job.kind = PaintJob::Kind::Read;
      if (reads && !Working(PaintJob::Kind::Read, job.page)) return true;
      continue;
    }
    const PlanView& part = print->part;
    job.kind = PaintJob::Kind::Print;
    job.print = print;
    job.part = {part.pixelsPerPoint, part.turn,   part.left, part.top,
                part.width,          part.height, false};
    print->taken = true;
    return true;
  }
  return false;
}

// One thread reads ahead while the other paints.
bool PlanPainter::State::NextThumbnail(bool reads, PaintJob& job) {
  for (const auto& [page, side] : wantedThumbnails) {
    if (Working(PaintJob::Kind::Thumbnail, page) || Working(PaintJob::Kind::ReadSmall, page))
      continue;
    const auto small = smallLists.find(page);
    job.page = page;
    job.side = side;
    job.list = small != smallLists.end() ? small->second : ListOf(page);
    job.kind = job.list == nullptr ? PaintJob::Kind::ReadSmall : PaintJob::Kind::Thumbnail;
    if (job.list == nullptr && !reads) continue;
    if (job.list != nullptr && reads && smallLists.size() < kMostSmallLists &&
        wantedThumbnails.size() > 1) {
      continue;  // the other thread paints it
    }
    if (job.list == nullptr && smallLists.size() >= kMostSmallLists) continue;
    job.part = WholePart(SizeOf(page), side);
    return true;
  }
  return false;
}

PaintJob PlanPainter::State::Next(bool reads) {
  for (const auto find : {&State::NextVisible, &State::NextPrint, &State::NextThumbnail}) {
    PaintJob job;
    if (!(this->*find)(reads, job)) continue;
    job.cancel = std::make_shared<CancelFlag>();
    job.began = std::chrono::steady_clock::now();
    job.era = era;
    return job;
  }
  return {};
}

void PlanPainter::State::Fail(int page) {
  if (failed.insert(page).second) failedNews.push_back(page);
  std::erase_if(wantedThumbnails, [page](const SmallKey& key) { return key.page == page; });
  smallLists.erase(page);
  for (const auto& print : prints) {
    if (print->part.page == page) print->done = print->taken = true;
  }
}

void PlanPainter::State::KeepTile(const TileKey& key, Tile tile) {
  tiles[key] = std::move(tile);
  size_t pixels = 0;
  for (const auto& [other, there] : tiles) pixels += there.picture->pixels.size();
  while (pixels > kMostTilePixels && tiles.size() > 1) {
    const auto oldest = std::min_element(
        tiles.begin(), tiles.end(), [](auto& a, auto& b) { return a.second.used < b.second.used; });
    if (oldest->second.used == clock) break;  // all of them are being looked at
    pixels -= oldest->second.picture->pixels.size();
    tiles.erase(oldest);
  }
}

PlacedPicture PlanPainter::State::PlacedCoarse(const PlanView& of, int half) {
  const std::shared_ptr<const Picture> plain = coarse.Find(of.page, half);
  if (plain == nullptr) return {};
  const PaintPart part = HalfPart(SizeOf(of.page), kCoarseSide, half);
  const double stretch = of.pixelsPerPoint / part.pixelsPerPoint;
  const double top = part.top * stretch;
  const double width = part.width * stretch;
  const double height = part.height * stretch;
  if (of.turn == 0) return {0, top, width, height, plain};
  TurnedCoarse& turned = turnedCoarse[half];
  if (turned.of != plain || turned.turn != of.turn) {
    turned = {plain, of.turn, std::make_shared<const Picture>(Turned(*plain, of.turn))};
  }
  const PageSize page = SizeOf(of.page);
  const double below = page.height * of.pixelsPerPoint - top - height;
  if (of.turn == 90) return {below, 0, height, width, turned.picture};
  if (of.turn == 180)
    return {page.width * of.pixelsPerPoint - width, below, width, height, turned.picture};
  return {top, page.width * of.pixelsPerPoint - width, height, width, turned.picture};
}

void PlanPainter::State::Done(const PaintJob& job, std::shared_ptr<LoadedPage> list,
                              const std::shared_ptr<const Picture>& picture) {
  using Kind = PaintJob::Kind;
  if (job.era != era && job.kind != Kind::Print) return;
  const bool good = picture != nullptr || list != nullptr;
  const bool overdue = std::chrono::steady_clock::now() - job.began >= kLongestPaint;
  const bool fails = !good && (!job.cancel->Cancelled() || overdue);
  const bool again = fails && !overdue && job.kind != Kind::Print && DropOtherLists(job.page);
  if (fails && !again) Fail(job.page);
  if (job.kind == Kind::Print) {
    job.print->picture = picture;
    job.print->done = true;
  }
  if (!good) return;
  NoteGaps(job.page, list != nullptr ? list->Gaps() : job.list->Gaps());
  if (job.kind == Kind::Read) {
    lists.emplace_front(job.page, std::move(list));
    while (lists.size() > kMostLists) lists.pop_back();
  } else if (job.kind == Kind::ReadSmall) {
    // What was scrolled away meanwhile would keep its place for ever.
    if (WantsSmall(job.page)) smallLists[job.page] = std::move(list);
  } else if (job.kind == Kind::Coarse) {
    coarse.Keep(job.page, job.half, picture);
  } else if (job.kind == Kind::Sharp) {
    const PaintPart& part = job.part;
    KeepTile(
        job.tile,
        {{part.left, part.top, part.left + part.width, part.top + part.height}, picture, clock});
  } else if (job.kind == Kind::Thumbnail) {
    std::erase(wantedThumbnails, SmallKey{job.page, job.side});
    if (!WantsSmall(job.page)) smallLists.erase(job.page);
    thumbnails.Keep({job.page, job.side}, picture);
  }
}

// Stops what the view in force does not want. A page that is being read for a print goes on.
void PlanPainter::State::StopStale() {
  const std::vector<TileKey> wanted = VisibleTiles(view);
  for (PaintJob* job : working) {
    bool stale = false;
    if (job->kind == PaintJob::Kind::Read) {
      stale = job->page != view.page &&
              std::none_of(prints.begin(), prints.end(),
                           [&](auto& print) { return print->part.page == job->page; });
    } else if (job->kind == PaintJob::Kind::Coarse) {
      stale = job->page != view.page;
    } else if (job->kind == PaintJob::Kind::Sharp) {
      stale = std::find(wanted.begin(), wanted.end(), job->tile) == wanted.end();
    } else if (job->kind == PaintJob::Kind::Thumbnail || job->kind == PaintJob::Kind::ReadSmall) {
      stale = ListOf(view.page) == nullptr;  // the visible page has to be read first
    }
    if (stale) job->cancel->Cancel();
  }
}

bool PlanPainter::State::Sharp() {
  if (!wantedThumbnails.empty()) return false;
  if (!looking || failed.count(view.page) != 0) return true;
  if (!coarse.Whole(view.page)) return false;
  for (const TileKey& key : VisibleTiles(view)) {
    const auto there = tiles.find(key);
    if (there == tiles.end() || !there->second.covered.Holds(WantedOf(key, view))) return false;
  }
  return true;
}

}  // namespace tamo
