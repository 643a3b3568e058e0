#include "support/randomplayer.h"

#include <array>

namespace tamo::test {
namespace {

using Step = RandomPlayer::Step;
using Kind = Step::Kind;

constexpr int kStepsOfAGame = 150;

struct NamedKey {
  Key::Name name;
  const char* text;
};
constexpr std::array<NamedKey, 11> kKeys = {{{Key::Name::Enter, "Enter"},
                                             {Key::Name::Enter, "Enter"},
                                             {Key::Name::Enter, "Enter"},
                                             {Key::Name::Enter, "Enter"},
                                             {Key::Name::Tab, "Tab"},
                                             {Key::Name::BackTab, "Shift+Tab"},
                                             {Key::Name::Backspace, "Backspace"},
                                             {Key::Name::Delete, "Delete"},
                                             {Key::Name::Escape, "Escape"},
                                             {Key::Name::Up, "Up"},
                                             {Key::Name::Down, "Down"}}};

Key::Name KeyNamed(const QString& text) {
  for (const NamedKey& key : kKeys) {
    if (text == QLatin1String(key.text)) return key.name;
  }
  return Key::Name::Escape;
}

QString Rule(const QString& broken) {
  return broken.section(QLatin1Char(':'), 0, 0);
}

// Does one step and looks after each key of it. A step whose control can't be reached (since the
// steps before it were shrunk away) does nothing.
class Hands {
 public:
  explicit Hands(Game& game) : game_(game), desk_(game.GetDesk()) {}

  QString Do(const Step& step) {
    switch (step.kind) {
      case Kind::Door:
        return Deeds(game_.Doors(), step.number);
      case Kind::Deed:
        return Deeds(game_.Deeds(), step.number);
      case Kind::Key:
        return Press(Key::Named(KeyNamed(step.text)));
      case Kind::Type:
        return Type(step.text);
      case Kind::Enter:
        return Enter(step.text);
      case Kind::Paste:
        return Paste(step.text);
      case Kind::Menu:
        if (MenuEntry* entry = game_.Played().FindMenu(step.name)) desk_.ChooseMenu(*entry);
        return game_.Broken();
      case Kind::Select:
      case Kind::RightSelect:
        return Row(step);
      default:
        return Click(step);
    }
  }

 private:
  QString Deeds(const std::vector<Deed>& deeds, int number) {
    desk_.Dispatch(deeds[static_cast<size_t>(number)].run);
    return game_.Broken();
  }

  QString Press(const Key& key) {
    if (Control* control = desk_.Focused()) desk_.PressKey(*control, key);
    return game_.Broken();
  }

  QString Type(const QString& text) {
    for (const QChar c : text) {
      const QString broken = Press(Key::Typed(c));
      if (!broken.isEmpty()) return broken;
    }
    return {};
  }

  QString Enter(const QString& text) {
    auto* field = dynamic_cast<TextField*>(desk_.Focused());
    if (field == nullptr) return {};
    desk_.Dispatch([&] { field->SelectAll(); });
    QString broken = text.isEmpty() ? Press(Key::Named(Key::Name::Backspace)) : Type(text);
    if (broken.isEmpty()) broken = Press(Key::Named(Key::Name::Enter));
    return broken;
  }

  QString Paste(const QString& text) {
    if (auto* field = dynamic_cast<TextField*>(desk_.Focused())) desk_.Paste(*field, text);
    return game_.Broken();
  }

  QString Row(const Step& step) {
    auto* list = dynamic_cast<OrderedList*>(game_.Played().Find(step.name));
    if (list == nullptr || !list->Usable() || step.number >= list->Count()) return {};
    if (step.kind == Kind::Select) {
      desk_.ClickRow(*list, step.number);
    } else {
      desk_.RightClickRow(*list, step.number);
    }
    return game_.Broken();
  }

  QString Click(const Step& step) {
    Control* control = game_.Played().Find(step.name);
    if (control == nullptr || !control->Usable()) return {};
    if (step.kind == Kind::Focus && control->takesFocus) desk_.UserFocus(*control);
    if (step.kind == Kind::Click) desk_.ClickInto(*control);
    if (step.kind == Kind::DoubleClick) desk_.DoubleClick(*control);
    if (step.kind == Kind::RightClick) desk_.RightClick(*control);
    return game_.Broken();
  }

  Game& game_;
  Desk& desk_;
};

// Control characters with a caret, as a scenario writes them.
QString Carets(const QString& text) {
  QString told;
  for (const QChar c : text) {
    if (c == QLatin1Char('^')) told += QLatin1Char('^');
    if (c < QChar(32)) told += QLatin1Char('^');
    told += c < QChar(32) ? QChar(c.unicode() + 64) : c;
  }
  return told;
}

QString Told(const Step& step, const QString& form) {
  const QString name = form + QLatin1Char('.') + step.name;
  const QString row = QLatin1Char(' ') + QString::number(step.number);
  switch (step.kind) {
    case Kind::Key:
      return QStringLiteral("key ") + step.text;
    case Kind::Type:
      return QStringLiteral("type ") + Carets(step.text);
    case Kind::Enter:
      return (QStringLiteral("enter ") + Carets(step.text)).trimmed();
    case Kind::Paste:
      return QStringLiteral("paste ") + Carets(step.text);
    case Kind::Focus:
      return QStringLiteral("focus ") + name;
    case Kind::Click:
      return QStringLiteral("click ") + name;
    case Kind::DoubleClick:
      return QStringLiteral("doubleclick ") + name;
    case Kind::RightClick:
      return QStringLiteral("rightclick ") + name;
    case Kind::Select:
      return QStringLiteral("select ") + name + row;
    case Kind::RightSelect:
      return QStringLiteral("rightselect ") + name + row;
    case Kind::Menu:
      return QStringLiteral("menu ") + name;
    default:
      return {};
  }
}

int Keys(const Step& step) {
  const bool typed = step.kind == Kind::Type || step.kind == Kind::Enter;
  return typed ? static_cast<int>(step.text.size()) + 1 : 1;
}

}  // namespace

QString Finding::Text() const {
  return broken + QStringLiteral("\nAs a scenario:\n") + scenario.join(QLatin1Char('\n'));
}

RandomPlayer::RandomPlayer(NewGame newGame, Vocabulary vocabulary)
    : newGame_(std::move(newGame)), words_(std::move(vocabulary)) {}

int RandomPlayer::KeysAsked(int otherwise) {
  const int asked = qEnvironmentVariableIntValue("TAMO_RANDOM_KEYS");
  return asked > 0 ? asked : otherwise;
}

unsigned RandomPlayer::SeedAsked() {
  const int asked = qEnvironmentVariableIntValue("TAMO_RANDOM_SEED");
  return asked > 0 ? static_cast<unsigned>(asked) : 1U;
}

std::optional<Finding> RandomPlayer::Play(int keys, unsigned seed) {
  random_.seed(seed);
  for (keysDone_ = 0; keysDone_ < keys;) {
    const std::unique_ptr<Game> game = newGame_();
    Hands hands(*game);
    Steps steps;
    QString broken;
    while (broken.isEmpty() && static_cast<int>(steps.size()) < kStepsOfAGame) {
      steps.push_back(Next(*game));
      keysDone_ += Keys(steps.back());
      broken = hands.Do(steps.back());
    }
    if (!broken.isEmpty()) return Told(Shrunk(std::move(steps), Rule(broken)), broken);
  }
  return std::nullopt;
}

RandomPlayer::Step RandomPlayer::Next(Game& game) {
  Form& form = game.Played();
  if (!form.Visible() || game.GetDesk().Active() != &form)
    return {Kind::Door, {}, {}, Below(static_cast<int>(game.Doors().size()))};
  const int dice = Below(24);
  if (dice < 4) return NextClick(game);
  if (dice == 4 && !form.Menus().empty()) {
    const MenuEntry& entry =
        *form.Menus()[static_cast<size_t>(Below(static_cast<int>(form.Menus().size())))];
    if (Touches(entry.Name())) return {Kind::Menu, entry.Name(), {}, 0};
  }
  if (dice == 5) {
    const auto deeds = static_cast<int>(game.Deeds().size());
    if (deeds > 0) return {Kind::Deed, {}, {}, Below(deeds)};
  }
  return NextInField(game);
}

RandomPlayer::Step RandomPlayer::NextInField(Game& game) {
  const int dice = Below(20);
  const auto* field = dynamic_cast<TextField*>(game.GetDesk().Focused());
  const bool inField = field != nullptr;
  if (inField && dice < 9) return {Kind::Enter, {}, Word(*field), 0};
  if (inField && dice == 9 && !words_.pastes.isEmpty())
    return {Kind::Paste, {}, words_.pastes[Below(static_cast<int>(words_.pastes.size()))], 0};
  if (inField && dice < 13)
    return {Kind::Type,
            {},
            QString(words_.characters[Below(static_cast<int>(words_.characters.size()))]),
            0};
  const NamedKey& key = kKeys[static_cast<size_t>(Below(static_cast<int>(kKeys.size())))];
  return {Kind::Key, {}, QLatin1String(key.text), 0};
}

QString RandomPlayer::Word(const Control& field) {
  const auto own = words_.wordsOf.constFind(field.Name());
  const bool fitting = own != words_.wordsOf.constEnd() && Below(3) != 0;
  const QStringList& words = fitting ? *own : words_.words;
  return words[Below(static_cast<int>(words.size()))];
}

RandomPlayer::Step RandomPlayer::NextClick(Game& game) {
  std::vector<Control*> reachable;
  for (Control* control : game.Played().Controls()) {
    if (control->Usable() && Touches(control->Name()) && dynamic_cast<Label*>(control) == nullptr &&
        dynamic_cast<Frame*>(control) == nullptr)
      reachable.push_back(control);
  }
  if (reachable.empty()) return {Kind::Key, {}, QStringLiteral("Tab"), 0};
  Control* const control =
      reachable[static_cast<size_t>(Below(static_cast<int>(reachable.size())))];
  const auto* list = dynamic_cast<OrderedList*>(control);
  if (list != nullptr && !list->Empty()) {
    const Kind kind = Below(4) == 0 ? Kind::RightSelect : Kind::Select;
    return {kind, control->Name(), {}, Below(list->Count())};
  }
  static constexpr std::array kinds = {Kind::Focus, Kind::Click, Kind::DoubleClick,
                                       Kind::RightClick};
  return {kinds[static_cast<size_t>(Below(4))], control->Name(), {}, 0};
}

QString RandomPlayer::Replay(const Steps& steps, size_t& taken) const {
  const std::unique_ptr<Game> game = newGame_();
  Hands hands(*game);
  for (taken = 0; taken < steps.size();) {
    const QString broken = hands.Do(steps[taken++]);
    if (!broken.isEmpty()) return broken;
  }
  return {};
}

// Leaves out ever smaller pieces, as long as the same rule still breaks without them; small pieces
// are tried at every place, since a step may only be needed by its neighbours.
RandomPlayer::Steps RandomPlayer::Shrunk(Steps steps, const QString& rule) const {
  constexpr size_t kSmallPiece = 4;
  for (size_t before = 0; before != steps.size();) {
    before = steps.size();
    for (size_t piece = before; piece > 0; piece = piece > kSmallPiece ? piece / 2 : piece - 1) {
      for (size_t at = 0; at < steps.size();) {
        if (!LeaveOut(steps, at, piece, rule)) at += piece > kSmallPiece ? piece : 1;
      }
    }
  }
  return steps;
}

bool RandomPlayer::LeaveOut(Steps& steps, size_t at, size_t piece, const QString& rule) const {
  Steps fewer = steps;
  const auto first = fewer.begin() + static_cast<long>(at);
  fewer.erase(first, fewer.begin() + static_cast<long>(std::min(at + piece, fewer.size())));
  size_t taken = 0;
  if (Rule(Replay(fewer, taken)) != rule) return false;
  fewer.resize(taken);
  steps = std::move(fewer);
  return true;
}

Finding RandomPlayer::Told(const Steps& steps, const QString& broken) const {
  const std::unique_ptr<Game> game = newGame_();
  Finding finding{broken, game->SetUp()};
  for (const Step& step : steps) {
    if (step.kind == Kind::Door) {
      finding.scenario += game->Doors()[static_cast<size_t>(step.number)].step;
    } else if (step.kind == Kind::Deed) {
      finding.scenario += game->Deeds()[static_cast<size_t>(step.number)].step;
    } else {
      finding.scenario += tamo::test::Told(step, game->Played().Name());
    }
  }
  size_t taken = 0;
  finding.broken = Replay(steps, taken);
  if (finding.broken.isEmpty()) finding.broken = broken;
  finding.scenario += QStringLiteral("# ") + finding.broken;
  return finding;
}

}  // namespace tamo::test
