#include <gtest/gtest.h>

#include "pricing/pricinggame.h"

// Somebody's elbow on the price library: whatever is done, the file on the disk is what stands on
// the screen, the price is the sum of the materials, each name stands by its own rows, each prompt
// asks for what is stored, a material file reads back as it was written, and nothing goes without a
// deletion.
//
// TAMO_RANDOM_KEYS: how many keys (4000); TAMO_RANDOM_SEED: the player's seed (1).

namespace tamo::test {
namespace {

Vocabulary PriceWords() {
  Vocabulary words;
  words.words = {"Wall", "Ceiling", "Base",    "Caulk", "Inn",      "wall",     "New Wall", "SF",
                 "M",    "ea",      "EACH",    "EA",    "SHT",      "LF",       "BX",       "",
                 "",     "Stud",    "Drywall", "tape",  "Compound", "Main Tee", "12.5",     "0",
                 "16",   ".05",     "5",       "46.50", "-",        "60"};
  words.pastes = {"a/b", "CON", "1,500.0", "Wall", "caulk", "SF", "a\r\nb"};
  words.characters = QStringLiteral("0123456789.-, abMS");
  return words;
}

void PlayPricing(bool withProject) {
  RandomPlayer player([withProject] { return std::make_unique<PricingGame>(withProject); },
                      PriceWords());
  const auto finding = player.Play(RandomPlayer::KeysAsked(4000) / 2, RandomPlayer::SeedAsked());
  EXPECT_FALSE(finding) << finding->Text().toStdString();
}

TEST(RandomKeys, PricingTheLibraryAlone) {
  PlayPricing(false);
}

TEST(RandomKeys, PricingWithAProjectOpen) {
  PlayPricing(true);
}

}  // namespace
}  // namespace tamo::test
