#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// What a word in the head of a table can mean. A head is several of them.
enum HeadMeaning : unsigned {
  kNoMeaning = 0,
  kRoomWord = 1u << 0,
  kNumberWord = 1u << 1,
  kNameWord = 1u << 2,
  kFloorWord = 1u << 3,
  kBaseWord = 1u << 4,
  kWallWord = 1u << 5,
  kNorthWord = 1u << 6,
  kEastWord = 1u << 7,
  kSouthWord = 1u << 8,
  kWestWord = 1u << 9,
  kCeilingWord = 1u << 10,
  kHeightWord = 1u << 11,
  kRemarkWord = 1u << 12,
  kMaterialWord = 1u << 13,  // material, finish, type
  kColourWord = 1u << 14,
  kDoorWord = 1u << 15,
  kWindowWord = 1u << 16,
  kCodeWord = 1u << 17,
  kDescriptionWord = 1u << 18,
  kMakerWord = 1u << 19,   // manufacturer, product, style
  kSizeWord = 1u << 20,    // width, thickness, area ...
  kOtherWord = 1u << 21,   // known, and none of a room's finishes
  kFillerWord = 1u << 22,  // says nothing by itself: SEE, GENERAL
  kSideWords = kNorthWord | kEastWord | kSouthWord | kWestWord,
  kFinishWords = kFloorWord | kBaseWord | kWallWord | kSideWords | kCeilingWord,
};

// The words of a head, without points and dashes, in capitals: "CLG. MAT'L" is CLG, MATL.
QStringList HeadTokens(const QString& text);

// The meaning of one such word, kNoMeaning when it is in no usual head.
unsigned MeaningOf(const QString& token);
// Of all words of a text together.
unsigned MeaningOfText(const QString& text);

// Room numbers: 101, 101A, B-12, 1.01, C101-2.
bool LooksLikeNumber(const QString& text);
// FIRST FLOOR, LEVEL 2, BASEMENT, WING A ...
bool LooksLikeGroup(const QString& text);

}  // namespace tamo
