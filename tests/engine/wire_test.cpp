#include <gtest/gtest.h>

#include <limits>

#include "plans/wireguide.h"
#include "plans/wiresocket.h"

// What one side says the other hears; what is cut short or made up is noticed, never believed.

using namespace tamo;

namespace {

Mark ALine() {
  Mark mark;
  mark.page = 2;
  mark.points = {{1.5, -2}, {300, 4e5}};
  mark.label = QStringLiteral("10.0 feet ≈");
  mark.name = QStringLiteral("tamo-7");
  mark.width = 3;
  return mark;
}

PlanContents SomeContents() {
  PlanContents contents;
  contents.reservation = QStringLiteral("Think.");
  contents.caution = QStringLiteral("Mind.");
  contents.sizes = {{612, 792}, {3456, 2592}};
  Mark circle;
  circle.kind = Mark::Kind::Circle;
  circle.points = {{7, 8}};
  contents.marks = {ALine(), circle};
  return contents;
}

PageContent SomeContent() {
  PageContent content;
  content.whole = true;
  TextPiece text;
  text.text = QStringLiteral("A1");
  text.places.resize(2);
  text.places[1].end = {5, 6};
  text.font = QStringLiteral("Helvetica");
  text.bold = true;
  content.texts = {text};
  PathPiece path;
  path.kind = PathPiece::Kind::Stroke;
  path.steps = {{PathStep::Kind::Move, {1, 2}, {}, {}},
                {PathStep::Kind::Curve, {3, 4}, {5, 6}, {7, 8}}};
  path.colour = 0xff0000;
  content.paths = {path};
  content.pictures.resize(1);
  content.pictures[0].width = 9;
  return content;
}

PlanGuide SomeGuide() {
  PlanGuide guide;
  guide.labels = {QStringLiteral("A-101"), QStringLiteral("A-102")};
  PlanTarget inside;
  inside.kind = PlanTarget::Kind::Page;
  inside.page = 2;
  inside.placed = true;
  inside.at = {3, 4};
  guide.bookmarks = {{QStringLiteral("Floors"), 0, {}}, {QStringLiteral("Roof"), 1, inside}};
  guide.layers = {{QStringLiteral("A-WALL"), true, false}, {QStringLiteral("A-DIMS"), false, true}};
  return guide;
}

std::vector<PageLink> SomeLinks() {
  PlanTarget web;
  web.kind = PlanTarget::Kind::Web;
  web.outside = QStringLiteral("http://example.org");
  return {{{1, 2, 3, 4}, web}, {{5, 6, 7, 8}, SomeGuide().bookmarks[1].target}};
}

template <typename Said>
QByteArray Bytes(const Said& said) {
  WireWriter wire;
  Put(wire, said);
  return wire.Take();
}

// Every beginning of what was said, and every byte of it changed, is read without harm; what was
// cut is never taken for whole.
template <typename Said>
void ExpectCutsAreNoticed(const Said& said) {
  const QByteArray whole = Bytes(said);
  for (qsizetype length = 0; length <= whole.size(); ++length) {
    const QByteArray part = whole.left(length);
    WireReader wire(part);
    Said heard;
    Take(wire, heard);
    EXPECT_EQ(wire.AtEnd(), length == whole.size()) << length;
  }
  for (qsizetype at = 0; at < whole.size(); ++at) {
    QByteArray bad = whole;
    bad[at] = static_cast<char>(bad[at] ^ 0x55);
    WireReader wire(bad);
    Said heard;
    Take(wire, heard);
    // Taken or not, what is heard can be said.
    EXPECT_FALSE(Bytes(heard).isEmpty()) << at;
  }
}

}  // namespace

TEST(Wire, WhatIsSaidIsHeard) {
  const QByteArray contents = Bytes(SomeContents());
  WireReader wire(contents);
  PlanContents heard;
  Take(wire, heard);
  EXPECT_TRUE(wire.AtEnd());
  EXPECT_EQ(Bytes(heard), contents);
  EXPECT_EQ(heard.marks[0].label, ALine().label);
  EXPECT_EQ(heard.marks[0].points[1].y, 4e5);
  const QByteArray content = Bytes(SomeContent());
  WireReader second(content);
  PageContent page;
  Take(second, page);
  EXPECT_TRUE(second.AtEnd());
  EXPECT_EQ(Bytes(page), content);
  EXPECT_EQ(page.paths[0].steps[1].by2.y, 8);
}

TEST(Wire, WhatIsCutShortIsNoticed) {
  ExpectCutsAreNoticed(SomeContents());
  ExpectCutsAreNoticed(SomeContent());
  MarkChanges changes;
  changes.added = {ALine()};
  changes.removed = {QStringLiteral("tamo-1"), QString()};
  ExpectCutsAreNoticed(changes);
  ExpectCutsAreNoticed(SomeGuide());
  ExpectCutsAreNoticed(SomeLinks());
  ExpectCutsAreNoticed(std::vector<bool>{true, false, true});
  ExpectCutsAreNoticed(PlanUpdate{57, QStringLiteral("damaged"), true, "bytes"});
}

TEST(Wire, TheGuideIsHeardAsItIsSaid) {
  const QByteArray said = Bytes(SomeGuide());
  WireReader wire(said);
  PlanGuide heard;
  Take(wire, heard);
  EXPECT_TRUE(wire.AtEnd());
  EXPECT_EQ(Bytes(heard), said);
  EXPECT_EQ(heard.bookmarks[1].target.at.y, 4);
  EXPECT_TRUE(heard.layers[1].locked);
}

// Texts come to a list on the screen: one line each, and no longer than anybody reads.
TEST(Wire, TextsOfAGuideAreOneLine) {
  PlanGuide guide;
  guide.labels = {QString(5000, QLatin1Char('x')), QStringLiteral("A\n\t\x1b[2J B\u202e")};
  const QByteArray said = Bytes(guide);
  WireReader wire(said);
  PlanGuide heard;
  Take(wire, heard);
  EXPECT_TRUE(wire.AtEnd());
  EXPECT_EQ(heard.labels[0].size(), kLongestLabel);
  EXPECT_EQ(heard.labels[1], "A [2J B");
}

// A page of no number, a depth that no list shows, and more than anybody has, are lies.
TEST(Wire, TargetsAndDepthsAreBounded) {
  PlanGuide guide = SomeGuide();
  guide.bookmarks[1].target.page = 0;
  PlanGuide deep = SomeGuide();
  deep.bookmarks[1].depth = kDeepestBookmark + 1;
  PlanGuide many;
  many.layers.resize(size_t(kMostLayers) + 1);
  for (const PlanGuide& lie : {guide, deep, many}) {
    const QByteArray said = Bytes(lie);
    WireReader wire(said);
    PlanGuide heard;
    Take(wire, heard);
    EXPECT_FALSE(wire.AtEnd());
  }
}

TEST(Wire, NumbersThatNobodyMeansAreNotTaken) {
  WireWriter wire;
  wire.Real(std::numeric_limits<double>::infinity());
  wire.Real(std::numeric_limits<double>::quiet_NaN());
  wire.Real(1e300);
  wire.Number(-1);
  wire.Number(5);
  const QByteArray bytes = wire.Take();
  WireReader read(bytes);
  EXPECT_EQ(read.Real(), 0);
  EXPECT_EQ(read.Real(), 0);
  EXPECT_EQ(read.Real(), 0);
  EXPECT_TRUE(read.Bytes().isEmpty());
  EXPECT_FALSE(read.Good());
  EXPECT_EQ(read.Number(), 0);
}

// A mark on a page that there is not, and a plan of no pages, are lies.
TEST(Wire, MarksBelongToPages) {
  PlanContents contents = SomeContents();
  contents.sizes.resize(1);
  const QByteArray bytes = Bytes(contents);
  WireReader wire(bytes);
  PlanContents heard;
  Take(wire, heard);
  EXPECT_FALSE(wire.AtEnd());
}

TEST(Wire, AMarkHasAsManyPointsAsItsKindTakes) {
  const std::pair<Mark::Kind, size_t> good[] = {{Mark::Kind::Polyline, 2},
                                                {Mark::Kind::Area, 3},
                                                {Mark::Kind::Perimeter, 40},
                                                {Mark::Kind::CutOut, kMostMarkPoints}};
  const std::pair<Mark::Kind, size_t> bad[] = {{Mark::Kind::Line, 3},
                                               {Mark::Kind::Circle, 2},
                                               {Mark::Kind::Polyline, 1},
                                               {Mark::Kind::Area, 2},
                                               {Mark::Kind::CutOut, kMostMarkPoints + 1},
                                               {static_cast<Mark::Kind>(9), 2}};
  const auto heard = [](Mark::Kind kind, size_t points, Mark& mark) {
    MarkChanges changes;
    mark = ALine();
    mark.kind = kind;
    mark.points.assign(points, {1, 2});
    changes.added = {mark};
    const QByteArray bytes = Bytes(changes);
    WireReader wire(bytes);
    MarkChanges read;
    Take(wire, read);
    if (!wire.AtEnd()) return false;
    mark = read.added.at(0);
    return true;
  };
  Mark mark;
  for (const auto& [kind, points] : good) {
    EXPECT_TRUE(heard(kind, points, mark));
    EXPECT_EQ(mark.kind, kind);
    EXPECT_EQ(mark.points.size(), points);
  }
  for (const auto& [kind, points] : bad) EXPECT_FALSE(heard(kind, points, mark)) << points;
}

TEST(Wire, HeadsOfMessagesAreChecked) {
  const QByteArray head = HeadOf({WireKind::Paint, 77, "12345"});
  WireMessage message;
  uint32_t length = 0;
  ASSERT_EQ(head.size(), kWireHead);
  EXPECT_TRUE(TakeHead(head.constData(), message, length));
  EXPECT_EQ(message.call, 77U);
  EXPECT_EQ(length, 5U);
  QByteArray bad = head;
  bad[0] = 0;
  EXPECT_FALSE(TakeHead(bad.constData(), message, length));
  bad[0] = 100;
  EXPECT_FALSE(TakeHead(bad.constData(), message, length));
  bad = head;
  bad[8] = char(0x7f);
  EXPECT_FALSE(TakeHead(bad.constData(), message, length));
}
