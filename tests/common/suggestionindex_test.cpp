#include "common/suggestionindex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tamo {
namespace {

QStringList Matches(const QStringList& names, const QString& typed, const NameUses& uses = {},
                    int most = 100) {
  SuggestionIndex index;
  index.SetNames(names);
  return index.Matches(typed, most, uses);
}

const QStringList kNames = {QStringLiteral("GWB Partition A"), QStringLiteral("ACT Ceiling 2x4"),
                            QStringLiteral("Wall Paint Eggshell"), QStringLiteral("Paint Walls")};

TEST(SuggestionIndex, BeginningsComeBeforeInsidesAndBothBeforeMisspeltOnes) {
  EXPECT_EQ(Matches(kNames, QStringLiteral("paint")),
            QStringList({QStringLiteral("Paint Walls"), QStringLiteral("Wall Paint Eggshell")}));
  EXPECT_EQ(Matches(kNames, QStringLiteral("part")),
            QStringList({QStringLiteral("GWB Partition A")}));
  EXPECT_EQ(
      Matches({QStringLiteral("Pant"), QStringLiteral("x paint"), QStringLiteral("Paint")},
              QStringLiteral("paint")),
      QStringList({QStringLiteral("Paint"), QStringLiteral("x paint"), QStringLiteral("Pant")}));
}

TEST(SuggestionIndex, InsideAWordCountsToo) {
  EXPECT_EQ(Matches(kNames, QStringLiteral("shell")),
            QStringList({QStringLiteral("Wall Paint Eggshell")}));
}

TEST(SuggestionIndex, OneLetterMayBeWrongAtTheBeginningOfAnyWord) {
  for (const char* typed : {"ceilng", "ceilling", "cieling", "ceelin"})
    EXPECT_EQ(Matches(kNames, QLatin1String(typed)),
              QStringList({QStringLiteral("ACT Ceiling 2x4")}))
        << typed;
  EXPECT_EQ(Matches(kNames, QStringLiteral("cieleng")), QStringList());
  EXPECT_EQ(Matches(kNames, QStringLiteral("gx")), QStringList()) << "two letters say too little";
}

TEST(SuggestionIndex, TheMostUsedComeFirstThenTheOrderOfTheList) {
  const QStringList names = {QStringLiteral("Wall A"), QStringLiteral("Wall B"),
                             QStringLiteral("Wall C"), QStringLiteral("Old wall")};
  const NameUses uses = {{QStringLiteral("wall c"), 2}, {QStringLiteral("old wall"), 9}};
  EXPECT_EQ(Matches(names, QStringLiteral("wall"), uses),
            QStringList({QStringLiteral("Wall C"), QStringLiteral("Wall A"),
                         QStringLiteral("Wall B"), QStringLiteral("Old wall")}));
  EXPECT_EQ(Matches(names, QStringLiteral("wall"), uses, 2),
            QStringList({QStringLiteral("Wall C"), QStringLiteral("Wall A")}));
}

TEST(SuggestionIndex, WhatIsTypedToTheLetterIsNoSuggestionButAnotherSpellingIs) {
  EXPECT_EQ(Matches(kNames, QStringLiteral("Paint Walls")), QStringList());
  EXPECT_EQ(Matches(kNames, QStringLiteral("paint walls")),
            QStringList({QStringLiteral("Paint Walls")}));
  EXPECT_EQ(Matches(kNames, QString()), QStringList());
}

TEST(SuggestionIndex, EmptyAndRepeatedNamesAreLeftOut) {
  EXPECT_EQ(Matches({QString(), QStringLiteral("SF"), QStringLiteral("sf"), QStringLiteral("SFx")},
                    QStringLiteral("s")),
            QStringList({QStringLiteral("SF"), QStringLiteral("SFx")}));
}

// Every prefix of every word is compared with what was typed by the full table of edits.
int Distance(const QString& one, const QString& other) {
  std::vector<std::vector<int>> table(size_t(one.size() + 1),
                                      std::vector<int>(size_t(other.size() + 1)));
  for (size_t i = 0; i < table.size(); ++i) {
    for (size_t j = 0; j < table[i].size(); ++j) {
      if (i == 0 || j == 0) {
        table[i][j] = static_cast<int>(i + j);
        continue;
      }
      const bool same = one[int(i) - 1] == other[int(j) - 1];
      table[i][j] = std::min(
          {table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + (same ? 0 : 1)});
      if (i > 1 && j > 1 && one[int(i) - 1] == other[int(j) - 2] &&
          one[int(i) - 2] == other[int(j) - 1])
        table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
    }
  }
  return table.back().back();
}

int NaiveFit(const QString& name, const QString& typed) {
  const QString key = name.toCaseFolded();
  if (key.startsWith(typed)) return 0;
  if (key.contains(typed)) return 1;
  if (typed.size() < 3) return 3;
  for (int at = 0; at < key.size(); ++at) {
    const bool begins = at == 0 || (key[at].isLetterOrNumber() && !key[at - 1].isLetterOrNumber());
    for (int length = 0; begins && at + length <= key.size(); ++length) {
      if (Distance(key.mid(at, length), typed) <= 1) return 2;
    }
  }
  return 3;
}

QStringList NaiveMatches(const QStringList& names, const QString& typed, const NameUses& uses) {
  QStringList found;
  for (int fit = 0; fit < 3; ++fit) {
    QStringList these;
    for (const QString& name : names) {
      const bool twice =
          found.contains(name, Qt::CaseInsensitive) || these.contains(name, Qt::CaseInsensitive);
      if (NaiveFit(name, typed.toCaseFolded()) == fit && !twice) these += name;
    }
    std::stable_sort(these.begin(), these.end(), [&](const QString& one, const QString& other) {
      return uses.value(one.toCaseFolded()) > uses.value(other.toCaseFolded());
    });
    found += these;
  }
  found.removeAll(typed);
  return found;
}

TEST(SuggestionIndex, AgreesWithAPlainMatcher) {
  std::mt19937 random(20261122);
  const auto below = [&](int most) { return static_cast<int>(random() % unsigned(most)); };
  const auto text = [&](int most) {
    QString made;
    for (int left = below(most); left >= 0; --left) made += QStringLiteral("abcAB -1")[below(8)];
    return made;
  };
  for (int round = 0; round < 400; ++round) {
    QStringList names;
    NameUses uses;
    for (int i = below(30); i >= 0; --i) {
      const QString name = text(12);
      if (!names.contains(name, Qt::CaseInsensitive)) names += name;
      if (below(3) == 0) uses[name.toCaseFolded()] = below(4);
    }
    const QString typed = text(6);
    ASSERT_EQ(Matches(names, typed, uses), NaiveMatches(names, typed, uses))
        << round << " typed " << typed.toStdString();
  }
}

}  // namespace
}  // namespace tamo
