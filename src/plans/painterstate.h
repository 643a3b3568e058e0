#pragma once

// The inside of PlanPainter: what is there, what is wanted, and which job comes next. Everything is
// guarded by the one mutex; nothing here paints.

#include <chrono>
#include <compare>
#include <condition_variable>
#include <deque>
#include <list>
#include <map>
#include <mutex>
#include <set>

#include "plans/coarsepictures.h"
#include "plans/planengine.h"
#include "plans/planpainter.h"
#include "plans/smallpictures.h"

namespace tamo {

struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool Empty() const { return left >= right || top >= bottom; }
  bool Holds(const PixelRect& other) const {
    return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
  }
  PixelRect Cut(const PixelRect& other) const;
};

struct TileKey {
  int page = 0;
  int scale = 0;  // pixels per point in ten-thousandths
  int turn = 0;
  int column = 0;
  int row = 0;
  auto operator<=>(const TileKey&) const = default;
};

struct Tile {
  PixelRect covered;
  std::shared_ptr<const Picture> picture;
  unsigned used = 0;
};

struct PrintJob {
  PlanView part;
  std::shared_ptr<const Picture> picture;
  bool taken = false;
  bool done = false;
};

struct PaintJob {
  // A page is read to be looked at (Read) or for its thumbnail alone (ReadSmall).
  enum class Kind { None, Read, ReadSmall, Coarse, Sharp, Thumbnail, Print };
  Kind kind = Kind::None;
  int page = 0;
  int half = 0;  // of the coarse picture, which is painted as two, one by each thread
  int side = 0;  // of a thumbnail
  TileKey tile;
  PaintPart part;
  std::shared_ptr<LoadedPage> list;
  std::shared_ptr<PrintJob> print;
  std::shared_ptr<CancelFlag> cancel;
  std::chrono::steady_clock::time_point began;
  unsigned era = 0;
};

struct PlanPainter::State {
  std::shared_ptr<EnginePlan> plan;
  std::vector<PageSize> sizes;
  std::function<void()> onChanged;

  std::mutex mutex;
  std::condition_variable wake;
  std::condition_variable news;
  bool end = false;
  int running = 0;

  PlanView view;
  bool looking = false;
  unsigned clock = 0;
  unsigned era = 0;  // what was begun before it is of no use
  std::list<std::pair<int, std::shared_ptr<LoadedPage>>> lists;  // latest first
  CoarsePictures coarse;
  // The coarse picture of the page in sight as it was last turned.
  struct TurnedCoarse {
    std::shared_ptr<const Picture> of;
    int turn = 0;
    std::shared_ptr<const Picture> picture;
  };
  TurnedCoarse turnedCoarse[2];
  std::map<TileKey, Tile> tiles;
  SmallPictures thumbnails;
  std::deque<SmallKey> wantedThumbnails;
  std::map<int, std::shared_ptr<LoadedPage>> smallLists;  // read for thumbnails, not yet painted
  std::deque<std::shared_ptr<PrintJob>> prints;
  std::set<int> failed;
  std::vector<int> failedNews;
  std::map<int, PageGaps> gapsTold;
  std::map<int, PageGaps> gapsNews;
  std::vector<PaintJob*> working;

  // The next job for a thread; `reads` tells whether it is the one that reads pages.
  PaintJob Next(bool reads);
  void Done(const PaintJob& job, std::shared_ptr<LoadedPage> list,
            const std::shared_ptr<const Picture>& picture);
  void StopStale();
  void StopOverdue();
  bool Sharp();

  PageSize SizeOf(int page) const;
  PixelRect Visible(const PlanView& of) const;
  std::vector<TileKey> VisibleTiles(const PlanView& of) const;
  PixelRect WantedOf(const TileKey& key, const PlanView& of) const;
  std::shared_ptr<LoadedPage> ListOf(int page);
  // Turned and stretched for the view; no picture when it is not there yet.
  PlacedPicture PlacedCoarse(const PlanView& of, int half);
  void KeepTile(const TileKey& key, Tile tile);
  void Fail(int page);
  bool DropOtherLists(int page);  // and than that in sight; true when there were any
  void Forget();
  void NoteGaps(int page, PageGaps gaps);

 private:
  bool Working(PaintJob::Kind kind, int page) const;
  bool WantsSmall(int page) const;
  bool WorkingOn(const TileKey& key) const;
  bool NextVisible(bool reads, PaintJob& job);
  bool NextCoarse(PaintJob& job);
  bool NextSharp(PaintJob& job);
  bool NextPrint(bool reads, PaintJob& job);
  bool NextThumbnail(bool reads, PaintJob& job);
};

inline constexpr int kTileSide = 1024;
inline constexpr int kCoarseSide = 1280;
inline constexpr auto kLongestPaint = std::chrono::seconds(20);  // a page or a part of one

int ScaleKey(double pixelsPerPoint);
// The size of the whole page in pixels.
PixelRect WholePage(PageSize size, double pixelsPerPoint, int turn);
// The part that shows the whole page with its longer side `side` pixels long.
PaintPart WholePart(PageSize size, int side);
// The upper (0) or lower (1) half of that.
PaintPart HalfPart(PageSize size, int side, int half);
PlanView Sane(PlanView view);

}  // namespace tamo
