#pragma once

#include <cmath>
#include <vector>

#include "plans/mark.h"

// Symbols as drawings have them, each with others that are nearly alike.
namespace tamo::test {

// A straight line, or a curve by its two control points. In points about the symbol's middle.
struct SymbolLine {
  PagePoint from, to;
  bool curved = false;
  PagePoint by1, by2;
};
using Symbol = std::vector<SymbolLine>;

inline void AddLine(Symbol& symbol, PagePoint from, PagePoint to) {
  symbol.push_back({from, to, false, {}, {}});
}

inline void AddLoop(Symbol& symbol, const std::vector<PagePoint>& corners) {
  for (size_t i = 0; i < corners.size(); ++i)
    AddLine(symbol, corners[i], corners[(i + 1) % corners.size()]);
}

// A part of a circle as one curve; angles in radians, at most a quarter.
inline void AddArc(Symbol& symbol, PagePoint middle, double radius, double from, double to) {
  const double k = 4.0 / 3 * std::tan((to - from) / 4) * radius;
  const auto at = [&](double angle, double along) {
    return PagePoint{middle.x + radius * std::cos(angle) - along * std::sin(angle),
                     middle.y + radius * std::sin(angle) + along * std::cos(angle)};
  };
  symbol.push_back({at(from, 0), at(to, 0), true, at(from, k), at(to, -k)});
}

inline void AddCircle(Symbol& symbol, PagePoint middle, double radius) {
  constexpr double kQuarter = 1.5707963267948966;
  for (int i = 0; i < 4; ++i) AddArc(symbol, middle, radius, i * kQuarter, (i + 1) * kQuarter);
}

inline void AddManySides(Symbol& symbol, double radius, int sides) {
  std::vector<PagePoint> corners;
  for (int i = 0; i < sides; ++i) {
    const double angle = 6.283185307179586 * i / sides;
    corners.push_back({radius * std::cos(angle), radius * std::sin(angle)});
  }
  AddLoop(symbol, corners);
}

// A symbol and those that it could be taken for.
struct SymbolFamily {
  const char* name;
  Symbol symbol;
  std::vector<Symbol> nearlyAlike;
};

inline SymbolFamily Receptacle() {
  SymbolFamily family{"circle with two bars", {}, {}};
  AddCircle(family.symbol, {0, 0}, 6);
  Symbol one = family.symbol;
  Symbol close = family.symbol;
  const Symbol bare = family.symbol;
  for (const double x : {-2.0, 2.0}) AddLine(family.symbol, {x, -5.6}, {x, 5.6});
  AddLine(one, {-2, -5.6}, {-2, 5.6});
  for (const double x : {-1.0, 1.0}) AddLine(close, {x, -5.6}, {x, 5.6});
  Symbol three = family.symbol;
  AddLine(three, {0, -5.6}, {0, 5.6});
  Symbol ringed = family.symbol;
  AddCircle(ringed, {0, 0}, 8);
  Symbol ticked = family.symbol;
  AddLine(ticked, {6, 0}, {10, 0});
  family.nearlyAlike = {one, close, bare, three, ringed, ticked};
  return family;
}

inline SymbolFamily Diffuser() {
  SymbolFamily family{"square with a diagonal", {}, {}};
  AddLoop(family.symbol, {{-6, -6}, {6, -6}, {6, 6}, {-6, 6}});
  const Symbol bare = family.symbol;
  Symbol shorter = bare;
  AddLine(shorter, {-6, -6}, {2, 2});
  AddLine(family.symbol, {-6, -6}, {6, 6});
  Symbol both = family.symbol;
  AddLine(both, {-6, 6}, {6, -6});
  family.nearlyAlike = {bare, shorter, both};
  return family;
}

inline SymbolFamily Door() {
  SymbolFamily family{"door with its swing", {}, {}};
  constexpr double kQuarter = 1.5707963267948966;
  AddLoop(family.symbol, {{0, 0}, {28, 0}, {28, 1.5}, {0, 1.5}});
  AddLine(family.symbol, {0, 28}, {-3, 28});
  Symbol half = family.symbol;
  AddArc(half, {0, 0}, 28, 0, kQuarter / 2);
  Symbol plain;
  AddLine(plain, {0, 0}, {28, 0});
  AddArc(plain, {0, 0}, 28, 0, kQuarter);
  AddArc(family.symbol, {0, 0}, 28, 0, kQuarter);
  Symbol glazed = family.symbol;
  AddLine(glazed, {5, 5}, {14, 14});
  family.nearlyAlike = {half, plain, glazed};
  return family;
}

inline SymbolFamily Sprinkler() {
  SymbolFamily family{"circle of short lines with a cross", {}, {}};
  AddManySides(family.symbol, 7, 24);
  const Symbol bare = family.symbol;
  const auto cross = [](Symbol& symbol, double arm) {
    AddLine(symbol, {-arm, 0}, {arm, 0});
    AddLine(symbol, {0, -arm}, {0, arm});
  };
  Symbol small = bare;
  cross(family.symbol, 4);
  cross(small, 3);
  Symbol fewer;
  AddManySides(fewer, 7, 8);
  cross(fewer, 4);
  Symbol dotted = family.symbol;
  AddLine(dotted, {2, 2}, {3.5, 3.5});
  family.nearlyAlike = {bare, small, fewer, dotted};
  return family;
}

inline SymbolFamily Luminaire() {
  SymbolFamily family{"fixture with its cross", {}, {}};
  AddLoop(family.symbol, {{-12, -6}, {12, -6}, {12, 6}, {-12, 6}});
  const Symbol bare = family.symbol;
  AddLine(family.symbol, {-12, -6}, {12, 6});
  AddLine(family.symbol, {-12, 6}, {12, -6});
  Symbol lined = family.symbol;
  AddLine(lined, {-12, 0}, {12, 0});
  Symbol narrow;
  AddLoop(narrow, {{-12, -5}, {12, -5}, {12, 5}, {-12, 5}});
  AddLine(narrow, {-12, -5}, {12, 5});
  AddLine(narrow, {-12, 5}, {12, -5});
  family.nearlyAlike = {bare, lined, narrow};
  return family;
}

// It has no axis: mirrored it is another drawing of the same.
inline SymbolFamily Flag() {
  SymbolFamily family{"flag", {}, {}};
  AddLine(family.symbol, {-4, -9}, {-4, 9});
  AddLoop(family.symbol, {{-4, 9}, {7, 5}, {-4, 1}});
  Symbol lower = family.symbol;
  AddCircle(family.symbol, {-4, -9}, 2);
  AddCircle(lower, {-4, -7}, 2);
  Symbol bare(family.symbol.begin(), family.symbol.begin() + 4);
  Symbol striped = family.symbol;
  AddLine(striped, {-4, 5}, {7, 5});
  family.nearlyAlike = {lower, bare, striped};
  return family;
}

inline std::vector<SymbolFamily> SymbolFamilies() {
  return {Receptacle(), Diffuser(), Door(), Sprinkler(), Luminaire(), Flag()};
}

}  // namespace tamo::test
