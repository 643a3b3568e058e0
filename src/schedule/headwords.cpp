#include "schedule/headwords.h"

#include <QHash>
#include <QRegularExpression>

namespace tamo {
namespace {

struct Spelling {
  unsigned meaning;
  const char* words;
};

constexpr Spelling kSpellings[] = {
    {kRoomWord, "ROOM RM RMS ROOMS SPACE SPACES LOCATION LOCATIONS"},
    {kNumberWord, "NO NOS NUM NUMB NUMBER NUMBERS NBR NR NUMERO"},
    {kRoomWord | kNumberWord, "RMNO ROOMNO RNO"},
    {kCeilingWord | kHeightWord, "CH CLGHT"},
    {kNameWord, "NAME NAMES TITLE USE USAGE FUNCTION"},
    {kFloorWord, "FLOOR FLOORS FLR FLRS FL FLOORING FLOR FLRG FLOORCOVERING"},
    {kBaseWord, "BASE BASES BSE BS BASEBOARD SKIRTING SKIRT COVE"},
    {kWallWord, "WALL WALLS WL WLS PARTITION PARTITIONS WALLCOVERING"},
    {kNorthWord, "NORTH N NTH"},
    {kEastWord, "EAST E EST"},
    {kSouthWord, "SOUTH S STH"},
    {kWestWord, "WEST W WST"},
    {kCeilingWord, "CEILING CEILINGS CEIL CLG CLGS CLNG CLNGS CEILG CLING"},
    {kHeightWord, "HEIGHT HEIGHTS HGT HGTS HT HTS HEIGTH AFF"},
    {kRemarkWord,
     "REMARK REMARKS RMKS RMRKS REM NOTE NOTES COMMENT COMMENTS KEYNOTE KEYNOTES KEYED MISC "
     "MISCELLANEOUS OBSERVATIONS"},
    {kMaterialWord,
     "MATERIAL MATERIALS MATL MATLS MAT MATS MTL FINISH FINISHES FIN FINS FINSH FNSH FINISHED TYPE "
     "TYPES SUBSTRATE TREATMENT COVERING SURFACE CONSTRUCTION CONST CONSTR"},
    {kColourWord, "COLOR COLOUR COLORS COLOURS CLR PATTERN"},
    {kDoorWord,
     "DOOR DOORS DR FRAME FRAMES FRM HARDWARE HDWR HDW HDWE HW JAMB LEAF RATING LABEL LABELS "
     "LOUVER LOUVRE PANEL THRESHOLD KEYING"},
    {kWindowWord, "WINDOW WINDOWS GLAZING GLASS SASH MULLION WDW"},
    {kCodeWord,
     "CODE CODES MARK SYMBOL SYMBOLS SYM KEY TAG ABBR ABBREVIATION ABBREV ID ITEM DESIGNATION"},
    {kDescriptionWord, "DESCRIPTION DESCRIPTIONS DESC DESCR"},
    {kMakerWord,
     "MANUFACTURER MANUFACTURERS MANUF MFR MFG MANUFACTURE PRODUCT STYLE MODEL SERIES SUPPLIER "
     "BASIS BRAND COLLECTION"},
    {kSizeWord, "SIZE SIZES WIDTH THICKNESS THK LENGTH WD"},
    {kOtherWord,
     "AREA SF SQFT SQ FT DEPT DEPARTMENT OCCUPANCY OCC LOAD LEVEL STC TRIM CASEWORK MILLWORK CROWN "
     "CHAIR RAIL WAINSCOT WAINSCOTING COUNTER COUNTERTOP CABINET CABINETS SILL SILLS PLAN ELEV "
     "ELEVATION ELEVATIONS ACOUSTIC ACOUSTICAL PERIMETER VOLUME ACCENT FEATURE CORNER GUARD GUARDS "
     "TOILET ACCESSORIES REV REVISION DATE LIGHTING DETAIL DETAILS QTY QUANTITY SHEET DWG "
     "HEAD OTHER"},
    {kFillerWord, "SEE REF REFER REFERENCE GENERAL GEN SPECIAL ADDITIONAL AND OF THE W"},
};

QHash<QString, unsigned> Dictionary() {
  QHash<QString, unsigned> meanings;
  for (const Spelling& spelling : kSpellings) {
    const QStringList words = QString::fromLatin1(spelling.words).split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : words) meanings[word] |= spelling.meaning;
  }
  return meanings;
}

bool Apostrophe(QChar letter) {
  return letter == u'\'' || letter == u'`' || letter.unicode() == 0x2019 ||
         letter.unicode() == 0x2018 || letter.unicode() == 0x00b4;
}

// "S.F." is one word of letters with points between.
QString WithoutInitials(QString text) {
  static const QRegularExpression initials(QStringLiteral(R"(\b(\w)\.(?=\w(?:\.|\b)))"));
  return text.replace(initials, QStringLiteral("\\1"));
}

}  // namespace

QStringList HeadTokens(const QString& text) {
  QString plain;
  for (const QChar letter : WithoutInitials(text.toUpper())) {
    if (Apostrophe(letter)) continue;
    if (letter == u'#' || letter.unicode() == 0x2116) {
      plain += QStringLiteral(" NO ");
    } else if (letter.unicode() == 0x00b0 || letter.unicode() == 0x00ba) {
      plain += u'O';
    } else {
      plain += letter.isLetterOrNumber() ? letter : QChar(u' ');
    }
  }
  return plain.split(u' ', Qt::SkipEmptyParts);
}

unsigned MeaningOf(const QString& token) {
  static const QHash<QString, unsigned> meanings = Dictionary();
  return meanings.value(token, kNoMeaning);
}

unsigned MeaningOfText(const QString& text) {
  unsigned meaning = kNoMeaning;
  for (const QString& token : HeadTokens(text)) meaning |= MeaningOf(token);
  return meaning;
}

bool LooksLikeNumber(const QString& text) {
  static const QRegularExpression number(
      QStringLiteral(R"(^[A-Z]{0,4}[-. ]?\d{1,5}([-./]?[A-Z0-9]{1,4}){0,3}$)"),
      QRegularExpression::CaseInsensitiveOption);
  return text.size() <= 12 && number.match(text).hasMatch();
}

bool LooksLikeGroup(const QString& text) {
  static const QRegularExpression group(
      QStringLiteral(
          R"(\b(FLOOR|LEVEL|BASEMENT|MEZZANINE|STORY|STOREY|WING|BUILDING|BLDG|PHASE|AREA|PENTHOUSE|ROOF|ATTIC|CELLAR|TOWER|UNIT|SUITE|ZONE|BLOCK)S?\b)"),
      QRegularExpression::CaseInsensitiveOption);
  return group.match(text).hasMatch();
}

}  // namespace tamo
