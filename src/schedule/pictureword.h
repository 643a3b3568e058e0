#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// A word that was read from a picture.
struct PictureWord {
  QString text;
  PageBox box;  // around its ink, pixels of the picture
};

// The words in the table that a recogniser of text writes: a line a word, twelve fields between
// tabs, the first the level (5 is a word), the 7th to 10th left, top, width and height in pixels,
// the 11th how sure it is (-1: not at all), the last the text. Lines that make no sense, lie
// outside the picture of `width` and `height` pixels, or hold no more than a rule, are left out.
std::vector<PictureWord> PictureWordsOf(const QByteArray& table, int width, int height);

// The words as text of the page. `corner`: where the picture's top left pixel lies on it.
std::vector<TextPiece> PiecesOf(const std::vector<PictureWord>& words, PagePoint corner,
                                double pixelsPerPoint);

}  // namespace tamo
