#include "engine/mupdfcontenttext.h"

#include <cmath>

namespace tamo {
namespace {

constexpr double kApart = 0.5;  // of the font's size: from here on the next letter begins a piece

// What a font tells of all its letters, in parts of its size.
struct FontMeasures {
  double ascender = 0.8;
  double descender = -0.2;
};

FontMeasures MeasuresOf(fz_context* context, fz_font* font) {
  const FontMeasures usual;
  FontMeasures measures = {static_cast<double>(fz_font_ascender(context, font)),
                           static_cast<double>(fz_font_descender(context, font))};
  if (!(measures.ascender > 0.1 && measures.ascender < 3)) measures.ascender = usual.ascender;
  if (!(measures.descender < 0 && measures.descender > -3)) measures.descender = usual.descender;
  return measures;
}

// How far a letter moves on, in parts of the font's size.
double AdvanceOf(fz_context* context, fz_font* font, int glyph, int wmode) {
  float advance = 0;
  fz_var(advance);
  fz_try(context) advance = fz_advance_glyph(context, font, glyph, wmode);
  fz_catch(context) advance = 0;
  return std::isfinite(advance) ? static_cast<double>(advance) : 0;
}

// From one glyph, `count` letters: its items are [first, first + count).
struct Glyph {
  int first = 0;
  int count = 1;
  fz_matrix place;  // from the font's em square to the page
  double advance = 0;
};

QString LettersOf(const fz_text_item& item) {
  const int code = item.ucs;
  const bool none = code <= 0 || code > 0x10ffff || (code >= 0xd800 && code < 0xe000);
  const auto letter = static_cast<char32_t>(none ? 0xfffd : code);
  return QString::fromUcs4(&letter, 1);
}

class PieceMaker {
 public:
  PieceMaker(fz_context* context, const fz_text_span& span, const TextPiece& like)
      : span_(span), measures_(MeasuresOf(context, span.font)), like_(like) {
    QString name = QString::fromUtf8(fz_font_name(context, span.font));
    if (name.size() > 7 && name[6] == QLatin1Char('+')) name.remove(0, 7);
    like_.font = name;
    like_.bold = fz_font_is_bold(context, span.font) != 0;
    like_.italic = fz_font_is_italic(context, span.font) != 0;
    like_.fixedPitch = fz_font_is_monospaced(context, span.font) != 0;
    like_.vertical = span.wmode != 0;
  }

  void Take(const Glyph& glyph) {
    const PagePoint start = {glyph.place.e, glyph.place.f};
    const PagePoint way = WayOf(glyph);
    if (pieces_.empty() || Apart(start)) Begin(glyph.place);
    TextPiece& piece = pieces_.back();
    QString letters;
    for (int i = 0; i < glyph.count; ++i) letters += LettersOf(span_.items[glyph.first + i]);
    const auto parts = static_cast<int>(letters.size());
    for (int i = 0; i < parts; ++i) {
      piece.places.push_back(PlaceOf(glyph, way, double(i) / parts, double(i + 1) / parts));
      piece.box.Take({piece.places.back().box.left, piece.places.back().box.top});
      piece.box.Take({piece.places.back().box.right, piece.places.back().box.bottom});
    }
    piece.text += letters;
    end_ = {start.x + way.x, start.y + way.y};
  }

  std::vector<TextPiece> Pieces() { return std::move(pieces_); }

 private:
  // From where the letter begins to where the next would.
  PagePoint WayOf(const Glyph& glyph) const {
    const fz_matrix& m = glyph.place;
    if (span_.wmode != 0) return {-m.c * glyph.advance, -m.d * glyph.advance};
    return {m.a * glyph.advance, m.b * glyph.advance};
  }

  bool Apart(PagePoint start) const { return Distance(end_, start) > kApart * pieces_.back().size; }

  void Begin(const fz_matrix& place) {
    TextPiece piece = like_;
    piece.box = NoBox();
    const double along = std::hypot(place.a, place.b);
    const double down = std::hypot(place.c, place.d);
    const double area = std::abs(double(place.a) * place.d - double(place.b) * place.c);
    piece.size = along > 0 ? area / along : down;
    if (span_.wmode != 0 && down > 0) {
      piece.dx = -place.c / down;
      piece.dy = -place.d / down;
    } else if (along > 0) {
      piece.dx = place.a / along;
      piece.dy = place.b / along;
    }
    pieces_.push_back(std::move(piece));
  }

  TextPlace PlaceOf(const Glyph& glyph, PagePoint way, double from, double to) const {
    const fz_matrix& m = glyph.place;
    TextPlace place;
    place.start = {m.e + way.x * from, m.f + way.y * from};
    place.end = {m.e + way.x * to, m.f + way.y * to};
    place.box = NoBox();
    const bool down = span_.wmode != 0;
    const double low = down ? -0.5 : measures_.descender;
    const double high = down ? 0.5 : measures_.ascender;
    // Across the base line: the font's own upward direction, of a vertical font its rightward one.
    const PagePoint across = down ? PagePoint{m.a, m.b} : PagePoint{m.c, m.d};
    for (const PagePoint at : {place.start, place.end}) {
      place.box.Take({at.x + across.x * low, at.y + across.y * low});
      place.box.Take({at.x + across.x * high, at.y + across.y * high});
    }
    return place;
  }

  const fz_text_span& span_;
  FontMeasures measures_;
  TextPiece like_;
  std::vector<TextPiece> pieces_;
  PagePoint end_;  // of the letter before
};

}  // namespace

std::vector<TextPiece> PiecesOf(fz_context* context, const fz_text_span& span, fz_matrix place,
                                const TextPiece& like) {
  PieceMaker maker(context, span, like);
  for (int i = 0; i < span.len;) {
    Glyph glyph;
    glyph.first = i;
    // A ligature's further letters follow it and have no glyph of their own.
    while (i + glyph.count < span.len && span.items[i + glyph.count].gid < 0) ++glyph.count;
    fz_matrix letter = span.trm;
    letter.e = span.items[i].x;
    letter.f = span.items[i].y;
    glyph.place = fz_concat(letter, place);
    if (span.items[i].gid >= 0) {
      glyph.advance = AdvanceOf(context, span.font, span.items[i].gid, span.wmode);
    }
    maker.Take(glyph);
    i += glyph.count;
  }
  return maker.Pieces();
}

}  // namespace tamo
