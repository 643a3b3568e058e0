#pragma once

#include <vector>

#include "plans/likeshape.h"

namespace tamo {

// A place of the sheet where all lines of the symbol are drawn.
struct Like {
  LikePose pose;
  PagePoint middle;
  std::vector<PagePoint> outline;  // around it
  std::vector<uint32_t> strokes;   // of the sheet, that are its lines
  std::vector<uint32_t> others;    // strokes in it or at it that the symbol in the box has not
  bool lacking = false;            // what is at the symbol in the box is not at it
  bool ringed = false;             // it stands inside another outline, the symbol in the box not
  bool crowded = false;            // it lies over another one
  QString letters;                 // in it, in the order of the alphabet
  QString doubt;                   // why it may be another symbol, in words; "" when it is sure
};

// Tells whether the symbol is drawn in a pose. Asks the sheet only, so one may be used per thread.
class LikeMatcher {
 public:
  // Both outlive it.
  LikeMatcher(const LikeSheet& sheet, const LikeShape& shape);

  // The pose may be `rough` points off; what is found has the exact one.
  bool Match(LikePose pose, double rough, Like& like) const;

 private:
  struct Fit {
    std::vector<PointPair> pairs;
    std::vector<uint32_t> strokes;
    std::vector<size_t> missing;  // strokes of the symbol
  };
  bool Agree(const LikePose& pose, double off, Fit& fit) const;
  bool FindStroke(const LikeStroke& own, const LikePose& pose, double off, Fit& fit) const;
  bool Covered(const ShapeStroke& own, const LikePose& pose) const;
  bool LineCovered(const PageLine& line, const ShapeStroke& own, const LikePose& pose) const;
  bool Stands(PagePoint at, const PageLine& along, const ShapeStroke& own,
              const PageLine& reach) const;
  void LookAround(Like& like) const;
  bool Inside(const PageLine& line, const Like& like) const;
  bool Attached(const LikeStroke& stroke, const Like& like) const;
  bool OnInk(PagePoint at, const LikePose& pose, double off) const;
  bool Ringed(const Like& like, const std::vector<uint32_t>& lines) const;

  const LikeSheet& sheet_;
  const LikeShape& shape_;
  std::vector<size_t> order_;   // of the strokes: the rarest first
  double radius_ = 0;           // of the symbol about its middle
  std::vector<PageLine> ink_;   // the symbol's lines and the short ones at it
  std::vector<PageLine> atIt_;  // these short ones alone
  bool ringed_ = false;         // it stands inside another outline
};

}  // namespace tamo
