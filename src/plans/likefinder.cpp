#include "plans/likefinder.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include "plans/likeanchor.h"
#include "plans/likehull.h"

namespace tamo {
namespace {

constexpr double kSamePlace = 0.15;  // of its size: two so near are one
constexpr double kCrowded = 0.25;    // of its area that may lie over another one
constexpr int kLook = 128;           // lines held against it between two looks at the flag

// What was found, by place.
class Places {
 public:
  explicit Places(double near) : near_(near) {}

  bool Known(PagePoint at) const {
    const int64_t column = Cell(at.x);
    const int64_t row = Cell(at.y);
    for (int64_t i = 0; i < 9; ++i) {
      const auto found = cells_.equal_range(Key(column + i % 3 - 1, row + i / 3 - 1));
      for (auto place = found.first; place != found.second; ++place) {
        if (Distance(place->second, at) <= near_) return true;
      }
    }
    return false;
  }
  void Add(PagePoint at) { cells_.emplace(Key(Cell(at.x), Cell(at.y)), at); }

 private:
  int64_t Cell(double x) const { return static_cast<int64_t>(std::floor(x / near_)); }
  static int64_t Key(int64_t column, int64_t row) { return column * 0x100000 + row; }

  double near_;
  std::unordered_multimap<int64_t, PagePoint> cells_;
};

class Finder {
 public:
  Finder(const LikeSheet& sheet, const LikeShape& shape, const CancelFlag& cancel,
         std::atomic<int>& perCent)
      : sheet_(sheet),
        shape_(shape),
        cancel_(cancel),
        perCent_(perCent),
        matcher_(sheet, shape),
        places_(kSamePlace * shape.size) {}

  std::vector<Like> Look() {
    Offer({}, shape_.tolerance);
    const std::vector<LikeAnchor> anchors = AnchorsOf(sheet_, shape_);
    for (size_t i = 0; i < anchors.size() && !Ended(); ++i)
      Try(anchors[i], double(i) / double(anchors.size()), 1.0 / double(anchors.size()));
    return std::move(likes_);
  }

 private:
  bool Ended() const { return cancel_.Cancelled() || likes_.size() > kMostLikes; }

  void Try(const LikeAnchor& anchor, double from, double part) {
    const auto seeds = sheet_.strokes.OfLength(anchor.own.length, shape_.tolerance);
    for (size_t i = 0; i < seeds.size(); ++i) {
      if (i % kLook == 0) {
        perCent_ = int(100 * (from + part * double(i) / double(seeds.size())));
        if (Ended()) return;
      }
      const LikeStroke& stroke = sheet_.strokes.Strokes()[seeds[i]];
      if (stroke.curved != anchor.own.curved) continue;
      VisitPoses(sheet_, shape_, anchor, stroke,
                 [this](const LikePose& pose, double rough) { Offer(pose, rough); });
    }
  }

  void Offer(const LikePose& pose, double rough) {
    if (places_.Known(pose.Of(shape_.middle))) return;
    Like like;
    if (!matcher_.Match(pose, rough, like) || places_.Known(like.middle)) return;
    places_.Add(like.middle);
    likes_.push_back(std::move(like));
  }

  const LikeSheet& sheet_;
  const LikeShape& shape_;
  const CancelFlag& cancel_;
  std::atomic<int>& perCent_;
  LikeMatcher matcher_;
  Places places_;
  std::vector<Like> likes_;
};

// Lines of one that was found are no strange lines at the next.
void DropLinesOfOthers(std::vector<Like>& likes) {
  std::unordered_set<uint32_t> known;
  for (const Like& like : likes) known.insert(like.strokes.begin(), like.strokes.end());
  for (Like& like : likes)
    std::erase_if(like.others, [&](uint32_t stroke) { return known.contains(stroke); });
}

// Of two that lie over each other the first is one; a repeated pattern has many.
void FindCrowded(std::vector<Like>& likes, const LikeShape& shape) {
  const double most = kCrowded * HullArea(shape.hull);
  std::vector<Like*> byPlace;
  byPlace.reserve(likes.size());
  for (Like& like : likes) byPlace.push_back(&like);
  std::stable_sort(byPlace.begin(), byPlace.end(),
                   [](const Like* a, const Like* b) { return a->middle.x < b->middle.x; });
  for (size_t i = 0; i < byPlace.size(); ++i) {
    for (size_t j = i; j-- > 0 && byPlace[i]->middle.x - byPlace[j]->middle.x < shape.size;) {
      const bool near = std::abs(byPlace[i]->middle.y - byPlace[j]->middle.y) < shape.size;
      if (!near || byPlace[j]->crowded ||
          SharedArea(byPlace[i]->outline, byPlace[j]->outline) <= most)
        continue;
      // The one that was boxed stays.
      (byPlace[i] == &likes.front() ? byPlace[j] : byPlace[i])->crowded = true;
    }
  }
}

QString DoubtAbout(const Like& like, const LikeShape& shape) {
  if (!like.others.empty()) return QStringLiteral("other lines are in it or at it");
  if (like.lacking) return QStringLiteral("what is at the one in the box is not at it");
  if (like.ringed) return QStringLiteral("it stands inside another outline");
  if (like.crowded) return QStringLiteral("it lies over another one");
  if (like.letters == shape.letters) return {};
  if (like.letters.isEmpty()) return QStringLiteral("no letters are in it");
  return QStringLiteral("the letters in it are others");
}

// The first is the one in the box: it is what it is.
void Order(LikesFound& found, const LikeShape& shape) {
  for (size_t i = 1; i < found.likes.size(); ++i)
    found.likes[i].doubt = DoubtAbout(found.likes[i], shape);
  const double band = std::max(shape.size, 1.0);
  std::stable_sort(found.likes.begin(), found.likes.end(), [band](const Like& a, const Like& b) {
    if (a.doubt.isEmpty() != b.doubt.isEmpty()) return a.doubt.isEmpty();
    const double rowA = std::floor(a.middle.y / band);
    const double rowB = std::floor(b.middle.y / band);
    return rowA != rowB ? rowA < rowB : a.middle.x < b.middle.x;
  });
  found.sure =
      static_cast<size_t>(std::count_if(found.likes.begin(), found.likes.end(),
                                        [](const Like& like) { return like.doubt.isEmpty(); }));
}

}  // namespace

LikesFound FindLikes(const LikeSheet& sheet, const PageBox& box, const CancelFlag& cancel,
                     std::atomic<int>& perCent) {
  LikesFound found;
  const LikeShape shape = ShapeInBox(sheet, box);
  found.problem = shape.problem;
  found.letters = shape.letters;
  if (!found.problem.isEmpty()) return found;
  found.likes = Finder(sheet, shape, cancel, perCent).Look();
  if (found.likes.size() > kMostLikes) {
    found.likes.clear();
    found.problem =
        QStringLiteral(
            "More than %1 places look like this: it is a pattern, too much to ask about.")
            .arg(kMostLikes);
  }
  if (found.likes.empty()) return found;
  DropLinesOfOthers(found.likes);
  FindCrowded(found.likes, shape);
  Order(found, shape);
  perCent = 100;
  return found;
}

}  // namespace tamo
