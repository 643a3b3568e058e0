#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "plans/pagecontent.h"

// What a plan says of itself to find one's way in it: how its pages are called, its bookmarks, its
// layers, and the links on its pages. All of it comes from the file and is bounded where it comes
// in (wireguide.cpp); texts have no control characters.
namespace tamo {

// Where a link or a bookmark leads.
struct PlanTarget {
  enum class Kind {
    None,     // nowhere: damaged, or to a page there is not
    Page,     // inside the plan
    Web,      // outside of it: never followed, only said
    File,     // another file
    Program,  // something that would be run
    Script,
    Other
  };
  Kind kind = Kind::None;
  int page = 0;         // from 1
  bool placed = false;  // `at` says where on it
  PagePoint at;         // points of the page as it is looked at
  QString outside;      // the address or the file's name
  bool operator==(const PlanTarget& other) const {
    return kind == other.kind && page == other.page && outside == other.outside;
  }
};

struct PlanBookmark {
  QString title;
  int depth = 0;  // 0 to 31
  PlanTarget target;
};

struct PageLink {
  PageBox box;
  PlanTarget target;
};

struct PlanLayer {
  QString name;
  bool shown = true;
  bool locked = false;  // the plan's maker wants it to stay as it is
};

struct PlanGuide {
  int error = 0;       // 0, or 57: not read, `problem` says why
  QString problem;     // in words; also when not all of it is here
  QStringList labels;  // of the pages, from the first on; empty when the plan names none
  std::vector<PlanBookmark> bookmarks;
  std::vector<PlanLayer> layers;
};

// More than any set of plans has; what is beyond is left out and said.
inline constexpr int kMostBookmarks = 20000;
inline constexpr int kMostLayers = 20000;
inline constexpr int kMostLinks = 20000;  // of a page
inline constexpr int kDeepestBookmark = 31;
inline constexpr int kLongestLabel = 100;       // letters
inline constexpr int kLongestEntryTitle = 300;  // of a bookmark and a layer
inline constexpr int kLongestAddress = 500;

}  // namespace tamo
