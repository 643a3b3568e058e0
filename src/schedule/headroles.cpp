#include "schedule/headroles.h"

#include <algorithm>
#include <map>

#include "schedule/headwords.h"

namespace tamo {
namespace {

// Which of the four sides a head names, one bit each.
unsigned SidesOf(unsigned meaning) {
  return meaning & kSideWords;
}

ColumnRole SideRole(unsigned sides) {
  switch (sides) {
    case kNorthWord:
      return ColumnRole::North;
    case kEastWord:
      return ColumnRole::East;
    case kSouthWord:
      return ColumnRole::South;
    case kWestWord:
      return ColumnRole::West;
    case kNorthWord | kSouthWord:
      return ColumnRole::NorthSouth;
    case kEastWord | kWestWord:
      return ColumnRole::EastWest;
    default:
      return ColumnRole::Walls;
  }
}

// "NO SO EA WE" under WALLS.
unsigned ShortSide(const QString& token) {
  if (token == QLatin1String("NO")) return kNorthWord;
  if (token == QLatin1String("EA")) return kEastWord;
  if (token == QLatin1String("SO")) return kSouthWord;
  if (token == QLatin1String("WE")) return kWestWord;
  return kNoMeaning;
}

// Walls that the plan letters or numbers instead of naming their sides.
unsigned LetteredSide(const QString& token) {
  if (token == QLatin1String("A") || token == QLatin1String("1")) return kNorthWord;
  if (token == QLatin1String("B") || token == QLatin1String("2")) return kEastWord;
  if (token == QLatin1String("C") || token == QLatin1String("3")) return kSouthWord;
  if (token == QLatin1String("D") || token == QLatin1String("4")) return kWestWord;
  return kNoMeaning;
}

struct Company {
  int sides = 0;  // columns with a head that is no more than a side
};

// The levels of one head from its own up to the top one.
class HeadReader {
 public:
  HeadReader(const HeadTexts& texts, const Company& company) : company_(company) {
    for (qsizetype i = texts.size() - 1; i >= 0; --i) {
      levels_.push_back(MeaningOfText(texts[i]));
      tokens_.push_back(HeadTokens(texts[i]));
      all_ |= levels_.back();
    }
  }

  HeadRole Read() const {
    HeadRole role;
    role.known = (all_ & ~unsigned(kFillerWord)) != kNoMeaning;
    if (levels_.empty()) return role;
    unsigned below = kNoMeaning;
    for (size_t i = 0; i < levels_.size(); ++i) {
      below |= levels_[i];
      if (Decide(below, tokens_[i], i, role)) return role;
    }
    return role;
  }

 private:
  bool WallAbove(size_t level) const {
    for (size_t i = level + 1; i < levels_.size(); ++i) {
      if ((levels_[i] & kWallWord) != 0) return true;
    }
    return false;
  }

  static bool Set(HeadRole& role, ColumnRole what, bool guessed = false) {
    role.role = what;
    role.guessed = guessed;
    role.known = true;
    return true;
  }

  bool Decide(unsigned m, const QStringList& tokens, size_t level, HeadRole& role) const {
    if (level == 0 && tokens.size() == 1 && WallAbove(0)) {
      const unsigned side = ShortSide(tokens.front());
      if (side != kNoMeaning) return Set(role, SideRole(side));
      const unsigned lettered = LetteredSide(tokens.front());
      if (lettered != kNoMeaning) return Set(role, SideRole(lettered), true);
    }
    if ((m & kRemarkWord) != 0) return Set(role, ColumnRole::Remarks);
    if ((m & (kColourWord | kDoorWord | kWindowWord | kMakerWord | kOtherWord)) != 0) {
      return Set(role, ColumnRole::Other);
    }
    if ((m & kHeightWord) != 0) return Height(level, role);
    if ((m & kSizeWord) != 0) return Set(role, ColumnRole::Other);
    return Finish(m, level, role) || Room(m, level, role);
  }

  // A height is the ceiling's unless its heads name something else.
  bool Height(size_t level, HeadRole& role) const {
    for (size_t i = 0; i < levels_.size(); ++i) {
      if ((levels_[i] & kCeilingWord) != 0) return Set(role, ColumnRole::Height);
      if ((levels_[i] & (kBaseWord | kWallWord | kSideWords | kFloorWord | kOtherWord)) != 0) {
        return Set(role, ColumnRole::Other);
      }
    }
    return level + 1 >= levels_.size() || true ? Set(role, ColumnRole::Height) : false;
  }

  bool Finish(unsigned m, size_t level, HeadRole& role) const {
    if ((m & kCeilingWord) != 0) return Set(role, ColumnRole::Ceiling);
    const bool sided =
        SidesOf(m) != 0 && ((m & kWallWord) != 0 || WallAbove(level) || company_.sides >= 2);
    if (sided) return Set(role, SideRole(SidesOf(m)));
    if ((m & kBaseWord) != 0) return Set(role, ColumnRole::Base);
    if ((m & kWallWord) != 0) return Set(role, ColumnRole::Walls);
    if ((m & kFloorWord) == 0) return false;
    const bool storey = (m & (kNumberWord | kNameWord)) != 0;
    return Set(role, storey ? ColumnRole::Other : ColumnRole::Floor);
  }

  bool Room(unsigned m, size_t level, HeadRole& role) const {
    if ((m & kNumberWord) != 0 && (m & kNameWord) != 0 && level == 0) {
      return Set(role, ColumnRole::NumberAndName);
    }
    if ((m & kNumberWord) != 0) return Set(role, ColumnRole::Number);
    if ((m & (kNameWord | kDescriptionWord)) != 0) return Set(role, ColumnRole::Name);
    if ((m & kCodeWord) != 0) return Set(role, ColumnRole::Other);
    return false;
  }

  const Company& company_;
  std::vector<unsigned> levels_;
  std::vector<QStringList> tokens_;
  unsigned all_ = kNoMeaning;
};

bool NamesSide(const HeadTexts& texts) {
  return std::any_of(texts.begin(), texts.end(), [](const QString& text) {
    const QStringList tokens = HeadTokens(text);
    return tokens.size() == 1 && SidesOf(MeaningOf(tokens.front())) != 0;
  });
}

bool OnlyRoom(const HeadTexts& texts) {
  const QStringList tokens = HeadTokens(texts.join(u' '));
  return !tokens.isEmpty() && std::all_of(tokens.begin(), tokens.end(), [](const QString& token) {
    return MeaningOf(token) == kRoomWord;
  });
}

bool Has(const std::vector<HeadRole>& roles, ColumnRole role) {
  return std::any_of(roles.begin(), roles.end(),
                     [role](const HeadRole& one) { return one.role == role; });
}

// "ROOM" alone, "RM" alone: the number or the name, whichever is not there yet.
void SettleRooms(const std::vector<HeadTexts>& heads, std::vector<HeadRole>& roles) {
  for (size_t i = 0; i < heads.size(); ++i) {
    if (!OnlyRoom(heads[i]) || roles[i].role != ColumnRole::Other) continue;
    const bool number = Has(roles, ColumnRole::Number);
    const bool name = Has(roles, ColumnRole::Name);
    if (number && name) continue;
    roles[i].role = !number && name ? ColumnRole::Number
                    : number        ? ColumnRole::Name
                                    : ColumnRole::NumberAndName;
    roles[i].known = true;
  }
}

// MARK, ID, SYMBOL: the room's number where no column is called so.
void SettleNumber(const std::vector<HeadTexts>& heads, std::vector<HeadRole>& roles) {
  if (Has(roles, ColumnRole::Number) || Has(roles, ColumnRole::NumberAndName)) return;
  for (size_t i = 0; i < heads.size() && i < 2; ++i) {
    if ((MeaningOfText(heads[i].join(u' ')) & kCodeWord) == 0) continue;
    roles[i].role = ColumnRole::Number;
    return;
  }
}

bool HasWalls(const std::vector<HeadRole>& roles) {
  return std::any_of(roles.begin(), roles.end(), [](const HeadRole& one) {
    return one.role >= ColumnRole::North && one.role <= ColumnRole::EastWest;
  });
}

// What a column is most likely whose head has no usual word: by the columns beside it and by what
// the table lacks. Remarks stand last. `part`: its head is no more than MATERIAL or FINISH.
ColumnRole RoleByPlace(const std::vector<HeadRole>& roles, size_t at, bool part) {
  const ColumnRole before = at > 0 ? roles[at - 1].role : ColumnRole::Other;
  if (part && before >= ColumnRole::Floor && before <= ColumnRole::Ceiling) return before;
  const ColumnRole after = at + 1 < roles.size() ? roles[at + 1].role : ColumnRole::Other;
  const auto lacks = [&roles](ColumnRole role) { return !Has(roles, role); };
  if (at == 0 && lacks(ColumnRole::NumberAndName) && lacks(ColumnRole::Number))
    return ColumnRole::Number;
  if (before == ColumnRole::Number && lacks(ColumnRole::Name)) return ColumnRole::Name;
  if (before == ColumnRole::Floor && lacks(ColumnRole::Base)) return ColumnRole::Base;
  if (after == ColumnRole::Base && lacks(ColumnRole::Floor)) return ColumnRole::Floor;
  if (before == ColumnRole::Base && !HasWalls(roles)) return ColumnRole::Walls;
  if (before == ColumnRole::Ceiling && lacks(ColumnRole::Height) && at + 1 < roles.size()) {
    return ColumnRole::Height;
  }
  if (after == ColumnRole::Height && lacks(ColumnRole::Ceiling)) return ColumnRole::Ceiling;
  if (at + 1 == roles.size() && lacks(ColumnRole::Remarks)) return ColumnRole::Remarks;
  return ColumnRole::Other;
}

// A column whose head has no usual word is never sure.
void SettleUnknown(const std::vector<HeadTexts>& heads, std::vector<HeadRole>& roles) {
  for (size_t i = 0; i < roles.size(); ++i) {
    const bool part =
        (MeaningOfText(heads[i].join(u' ')) & ~unsigned(kFillerWord)) == kMaterialWord;
    if ((roles[i].known && !part) || roles[i].role != ColumnRole::Other) continue;
    if (heads[i].isEmpty()) continue;
    roles[i].role = RoleByPlace(roles, i, part);
    roles[i].guessed = roles[i].role != ColumnRole::Other;
    if (part && i + 1 < roles.size()) roles[i + 1].guessed = true;  // perhaps a part of that one
  }
}

// MAT and FIN under one head.
bool ArePartsOfOne(const HeadTexts& a, const HeadTexts& b) {
  const unsigned parts = kMaterialWord | kHeightWord | kColourWord | kDescriptionWord;
  return !a.isEmpty() && !b.isEmpty() && a.last() != b.last() &&
         ((MeaningOfText(a.last()) | MeaningOfText(b.last())) & parts) != 0;
}

// Walls beside walls of one side, and two columns that mean the same, are no more than likely.
void DoubtTwins(const std::vector<HeadTexts>& heads, std::vector<HeadRole>& roles) {
  const bool sides = Has(roles, ColumnRole::North) || Has(roles, ColumnRole::East) ||
                     Has(roles, ColumnRole::South) || Has(roles, ColumnRole::West);
  for (size_t i = 0; i < roles.size(); ++i) {
    if (roles[i].role == ColumnRole::Walls && sides) roles[i].guessed = true;
    for (size_t k = 0; k < roles.size(); ++k) {
      if (k == i || roles[i].role == ColumnRole::Other || roles[k].role != roles[i].role) continue;
      if (!ArePartsOfOne(heads[i], heads[k])) roles[i].guessed = true;
    }
  }
}

// Sides that have columns of different number: a part of one may stand under another.
void DoubtUnevenSides(std::vector<HeadRole>& roles) {
  const auto isSide = [](const HeadRole& one) {
    return one.role >= ColumnRole::North && one.role <= ColumnRole::West;
  };
  std::map<ColumnRole, int> columns;
  for (const HeadRole& one : roles) {
    if (isSide(one)) ++columns[one.role];
  }
  const bool even = std::all_of(columns.begin(), columns.end(), [&columns](const auto& side) {
    return side.second == columns.begin()->second;
  });
  for (HeadRole& one : roles) {
    if (!even && isSide(one)) one.guessed = true;
  }
}

int Columns(const std::vector<HeadTexts>& heads, unsigned meaning) {
  return int(std::count_if(heads.begin(), heads.end(), [meaning](const HeadTexts& texts) {
    return (MeaningOfText(texts.join(u' ')) & meaning) != 0;
  }));
}

}  // namespace

std::vector<HeadRole> RolesOf(const std::vector<HeadTexts>& heads) {
  Company company;
  company.sides = int(std::count_if(heads.begin(), heads.end(), NamesSide));
  std::vector<HeadRole> roles;
  roles.reserve(heads.size());
  for (const HeadTexts& texts : heads) roles.push_back(HeadReader(texts, company).Read());
  SettleRooms(heads, roles);
  SettleNumber(heads, roles);
  SettleUnknown(heads, roles);
  DoubtTwins(heads, roles);
  DoubtUnevenSides(roles);
  return roles;
}

TableKind KindOf(const std::vector<HeadTexts>& heads, const QString& title, double& confidence) {
  const std::vector<HeadRole> roles = RolesOf(heads);
  const bool walls = Has(roles, ColumnRole::Walls) || Has(roles, ColumnRole::North) ||
                     Has(roles, ColumnRole::NorthSouth) || Has(roles, ColumnRole::South) ||
                     Has(roles, ColumnRole::East) || Has(roles, ColumnRole::West);
  const int finishes = int(Has(roles, ColumnRole::Floor)) + int(Has(roles, ColumnRole::Base)) +
                       int(walls) + int(Has(roles, ColumnRole::Ceiling));
  const bool rooms = Has(roles, ColumnRole::Number) || Has(roles, ColumnRole::Name) ||
                     Has(roles, ColumnRole::NumberAndName);
  const int doors = Columns(heads, kDoorWord);
  const int windows = Columns(heads, kWindowWord);
  const int legend = Columns(heads, kCodeWord) + Columns(heads, kDescriptionWord) +
                     Columns(heads, kMakerWord) + Columns(heads, kColourWord);
  const QStringList words = HeadTokens(title);
  const auto says = [&words](const char* word) { return words.contains(QLatin1String(word)); };
  if (finishes >= 2 && (rooms || finishes >= 3) && finishes + int(rooms) > doors) {
    confidence = std::min(
        1.0, 0.2 * finishes + (rooms ? 0.2 : 0) + (says("FINISH") || says("FINISHES") ? 0.2 : 0));
    return TableKind::Finish;
  }
  confidence = 0.5 + (says("SCHEDULE") || says("LEGEND") || says("KEY") ? 0.3 : 0);
  if (doors >= 2 || (says("DOOR") && doors >= 1)) return TableKind::Door;
  if (windows >= 1 && (windows >= 2 || says("WINDOW"))) return TableKind::Window;
  if (legend >= 2 || (legend >= 1 && (says("LEGEND") || says("KEY") || says("MATERIAL")))) {
    return TableKind::Legend;
  }
  confidence = 0;
  return TableKind::Unknown;
}

}  // namespace tamo
