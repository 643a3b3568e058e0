#pragma once

#include <QMap>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include "common/desk.h"
#include "common/form.h"

namespace tamo::test {

// Somebody's elbow on the keyboard: keys, words, clicks, menus and pastes at random into one form,
// and after each of them a look at what must hold whatever was done. What breaks is shrunk to the
// fewest steps that still break it and told as a scenario.

// Something that is done outside the form (its menu entry in the shell, a measure that arrives).
struct Deed {
  QString step;  // as a scenario says it
  std::function<void()> run;
};

// A form with all that it stands on. Made anew for each game of some hundred keys, so it should be
// made in well under a millisecond; two games given the same steps must go the same way.
class Game {
 public:
  virtual ~Game() = default;
  virtual Desk& GetDesk() = 0;
  virtual Form& Played() = 0;
  // How the form is brought up: one of these at the start, and whenever it is not in front.
  virtual std::vector<Deed> Doors() = 0;
  // Done now and then while it is in front; may be none.
  virtual std::vector<Deed> Deeds() { return {}; }
  // Called after each key and each click: what does not hold, "" while all does. The text before
  // the first colon names the rule, the rest may differ from time to time.
  virtual QString Broken() = 0;
  // The steps of a scenario that lead up to the first door.
  virtual QStringList SetUp() const = 0;
};

// What the player knows to type. Words are typed whole, with Enter behind them.
struct Vocabulary {
  QStringList words;
  // What makes sense in a field, by its name: typed there two times of three, so that games get
  // far.
  QMap<QString, QStringList> wordsOf;
  QStringList pastes;
  QString characters = QStringLiteral("0123456789.-,ab /\\\"'Z");
  QStringList leftOut;  // controls and menu entries that are never touched
};

struct Finding {
  QString broken;
  QStringList scenario;
  QString Text() const;  // all of it, for a test's message
};

class RandomPlayer {
 public:
  using NewGame = std::function<std::unique_ptr<Game>()>;
  RandomPlayer(NewGame newGame, Vocabulary vocabulary);

  // Plays until `keys` keys and clicks are done, or something broke.
  std::optional<Finding> Play(int keys, unsigned seed);

  // How many keys the environment asks for (TAMO_RANDOM_KEYS), else `otherwise`; its seed
  // (TAMO_RANDOM_SEED), else 1.
  static int KeysAsked(int otherwise);
  static unsigned SeedAsked();

  // One thing done: what a scenario's step says.
  struct Step {
    enum class Kind {
      Door,
      Deed,
      Key,
      Type,
      Enter,
      Paste,
      Focus,
      Click,
      DoubleClick,
      RightClick,
      Select,
      RightSelect,
      Menu
    };
    Kind kind = Kind::Key;
    QString name;    // the control or entry, without its form
    QString text;    // the key's name, or what is typed
    int number = 0;  // the row, the door, the deed
  };

 private:
  using Steps = std::vector<Step>;
  Step Next(Game& game);
  Step NextInField(Game& game);
  QString Word(const Control& field);
  Step NextClick(Game& game);
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Touches(const QString& name) const { return !words_.leftOut.contains(name); }

  // Does them in a game of its own; what broke, and how many steps it took.
  QString Replay(const Steps& steps, size_t& taken) const;
  Steps Shrunk(Steps steps, const QString& rule) const;
  bool LeaveOut(Steps& steps, size_t at, size_t piece, const QString& rule) const;
  Finding Told(const Steps& steps, const QString& broken) const;

  NewGame newGame_;
  Vocabulary words_;
  std::mt19937 random_;
  int keysDone_ = 0;
};

}  // namespace tamo::test
