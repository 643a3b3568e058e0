#include "common/failure.h"
#include "plans/wireplan.h"

// The content of a page on the wire.

namespace tamo {
namespace {

constexpr size_t kLeastText = 100;  // bytes on the wire, at least
constexpr size_t kLeastPlace = 64;
constexpr size_t kLeastStep = 17;
constexpr size_t kLeastPath = 100;
constexpr size_t kLeastPicture = 49;

void Put(WireWriter& wire, PagePoint point) {
  wire.Real(point.x);
  wire.Real(point.y);
}

void Take(WireReader& wire, PagePoint& point) {
  point.x = wire.Real();
  point.y = wire.Real();
}

void Put(WireWriter& wire, const PageBox& box) {
  for (const double edge : {box.left, box.top, box.right, box.bottom}) wire.Real(edge);
}

void Take(WireReader& wire, PageBox& box) {
  for (double* edge : {&box.left, &box.top, &box.right, &box.bottom}) *edge = wire.Real();
}

void Put(WireWriter& wire, const TextPiece& piece) {
  wire.Text(piece.text);
  wire.Number(static_cast<int64_t>(piece.places.size()));
  for (const TextPlace& place : piece.places) {
    Put(wire, place.start);
    Put(wire, place.end);
    Put(wire, place.box);
  }
  Put(wire, piece.box);
  for (const double number : {piece.dx, piece.dy, piece.size}) wire.Real(number);
  wire.Text(piece.font);
  for (const bool flag :
       {piece.bold, piece.italic, piece.fixedPitch, piece.vertical, piece.hidden, piece.clipped}) {
    wire.Flag(flag);
  }
  wire.Number(piece.colour);
}

void Take(WireReader& wire, TextPiece& piece) {
  piece.text = wire.Text();
  piece.places.resize(wire.Count(kLeastPlace));
  if (piece.places.size() != static_cast<size_t>(piece.text.size())) wire.Spoil();
  for (TextPlace& place : piece.places) {
    Take(wire, place.start);
    Take(wire, place.end);
    Take(wire, place.box);
  }
  Take(wire, piece.box);
  for (double* number : {&piece.dx, &piece.dy, &piece.size}) *number = wire.Real();
  piece.font = wire.Text();
  for (bool* flag : {&piece.bold, &piece.italic, &piece.fixedPitch, &piece.vertical, &piece.hidden,
                     &piece.clipped}) {
    *flag = wire.Flag();
  }
  piece.colour = static_cast<unsigned>(wire.Number(0, 0xffffff));
}

void Put(WireWriter& wire, const PathStep& step) {
  wire.Byte(static_cast<unsigned>(step.kind));
  Put(wire, step.at);
  if (step.kind != PathStep::Kind::Curve) return;
  Put(wire, step.by1);
  Put(wire, step.by2);
}

void Take(WireReader& wire, PathStep& step) {
  const unsigned kind = wire.Byte();
  if (kind > static_cast<unsigned>(PathStep::Kind::Close)) wire.Spoil();
  step.kind = static_cast<PathStep::Kind>(kind & 3);
  Take(wire, step.at);
  if (step.kind != PathStep::Kind::Curve) return;
  Take(wire, step.by1);
  Take(wire, step.by2);
}

void Put(WireWriter& wire, const PathPiece& piece) {
  wire.Flag(piece.kind == PathPiece::Kind::Stroke);
  wire.Number(static_cast<int64_t>(piece.steps.size()));
  for (const PathStep& step : piece.steps) Put(wire, step);
  Put(wire, piece.box);
  Put(wire, piece.clip);
  wire.Real(piece.width);
  wire.Flag(piece.dashed);
  wire.Flag(piece.evenOdd);
  wire.Number(piece.colour);
  wire.Real(piece.alpha);
}

void Take(WireReader& wire, PathPiece& piece) {
  piece.kind = wire.Flag() ? PathPiece::Kind::Stroke : PathPiece::Kind::Fill;
  piece.steps.resize(wire.Count(kLeastStep));
  for (PathStep& step : piece.steps) Take(wire, step);
  Take(wire, piece.box);
  Take(wire, piece.clip);
  piece.width = wire.Real();
  piece.dashed = wire.Flag();
  piece.evenOdd = wire.Flag();
  piece.colour = static_cast<unsigned>(wire.Number(0, 0xffffff));
  piece.alpha = wire.Real();
}

void Put(WireWriter& wire, const PicturePiece& piece) {
  wire.Byte(static_cast<unsigned>(piece.kind));
  Put(wire, piece.box);
  wire.Number(piece.width);
  wire.Number(piece.height);
}

void Take(WireReader& wire, PicturePiece& piece) {
  const unsigned kind = wire.Byte();
  if (kind > static_cast<unsigned>(PicturePiece::Kind::Pattern)) wire.Spoil();
  piece.kind = static_cast<PicturePiece::Kind>(kind & 3);
  Take(wire, piece.box);
  piece.width = static_cast<int>(wire.Number(0, 1 << 30));
  piece.height = static_cast<int>(wire.Number(0, 1 << 30));
}

template <typename Piece>
void PutAll(WireWriter& wire, const std::vector<Piece>& pieces) {
  wire.Number(static_cast<int64_t>(pieces.size()));
  for (const Piece& piece : pieces) Put(wire, piece);
}

template <typename Piece>
void TakeAll(WireReader& wire, std::vector<Piece>& pieces, size_t least) {
  const size_t count = wire.Count(least);
  for (size_t i = 0; i < count && wire.Good(); ++i) {
    pieces.emplace_back();
    Take(wire, pieces.back());
  }
}

}  // namespace

void Put(WireWriter& wire, const PageContent& content) {
  PutOutcome(wire, content.error, content.problem);
  wire.Flag(content.whole);
  Put(wire, content.size);
  PutAll(wire, content.texts);
  PutAll(wire, content.paths);
  PutAll(wire, content.pictures);
}

void Take(WireReader& wire, PageContent& content) {
  TakeOutcome(wire, content.error, content.problem);
  content.whole = wire.Flag();
  Take(wire, content.size);
  TakeAll(wire, content.texts, kLeastText);
  TakeAll(wire, content.paths, kLeastPath);
  TakeAll(wire, content.pictures, kLeastPicture);
}

}  // namespace tamo
