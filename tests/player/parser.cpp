#include "player/parser.h"

#include <cmath>
#include <utility>

#include "support/planstroke.h"

namespace tamo::player {
namespace {

// What stands behind a step's word.
enum class Shape {
  Nothing,
  Control,
  ControlOrNotice,
  Form,
  ControlAndRow,
  ControlAndPath,
  Text,
  Path,
  PathAndBlock,
  Date,
  Seconds,
  KeyName,
  YesOrNo,
  Plan,
  Print,
  Expect
};

struct Verb {
  const char* word;
  Act act;
  Shape shape;
};

constexpr Verb kVerbs[] = {
    {"clock", Act::Clock, Shape::Date},
    {"wait", Act::Wait, Shape::Seconds},
    {"start", Act::Start, Shape::Nothing},
    {"stop", Act::Stop, Shape::Nothing},
    {"menu", Act::Menu, Shape::Control},
    {"focus", Act::Focus, Shape::Control},
    {"type", Act::Type, Shape::Text},
    {"key", Act::Key, Shape::KeyName},
    {"enter", Act::Enter, Shape::Text},
    {"paste", Act::Paste, Shape::Text},
    {"click", Act::Click, Shape::ControlOrNotice},
    {"doubleclick", Act::DoubleClick, Shape::Control},
    {"rightclick", Act::RightClick, Shape::Control},
    {"select", Act::Select, Shape::ControlAndRow},
    {"rightselect", Act::RightSelect, Shape::ControlAndRow},
    {"doubleselect", Act::DoubleSelect, Shape::ControlAndRow},
    {"tick", Act::Tick, Shape::ControlAndRow},
    {"scrollto", Act::ScrollTo, Shape::ControlAndRow},
    {"suggestion", Act::Suggestion, Shape::Seconds},
    {"pick", Act::Pick, Shape::ControlAndPath},
    {"doublepick", Act::DoublePick, Shape::ControlAndPath},
    {"close", Act::Close, Shape::Form},
    {"answer", Act::Answer, Shape::YesOrNo},
    {"choose", Act::Choose, Shape::Path},
    {"plan", Act::PlanMode, Shape::Plan},
    {"write", Act::Write, Shape::PathAndBlock},
    {"copy", Act::Copy, Shape::Path},
    {"remove", Act::Remove, Shape::Path},
    {"deny", Act::Deny, Shape::Path},
    {"allow", Act::Allow, Shape::Path},
    {"hide", Act::Hide, Shape::Path},
    {"unhide", Act::Unhide, Shape::Path},
    {"unreadable", Act::Unreadable, Shape::Path},
    {"readable", Act::Readable, Shape::Path},
    {"fill", Act::Fill, Shape::Nothing},
    {"unfill", Act::Unfill, Shape::Nothing},
    {"use", Act::Use, Shape::Path},
    {"print", Act::Print, Shape::Print},
    {"expect", Act::Expect, Shape::Expect},
};

struct PlanVerb {
  const char* word;
  Act act;
  int numbers;  // -1: a key name; 0: one whole number; kPlaces: two or more places
};

constexpr int kPlaces = -2;

constexpr PlanVerb kPlanVerbs[] = {
    {"mode", Act::PlanMode, 0},
    {"line", Act::PlanLine, 4},
    {"circle", Act::PlanCircle, 2},
    {"press", Act::PlanPress, 2},
    {"key", Act::PlanKey, -1},
    {"scroll", Act::PlanScroll, 2},
    {"page", Act::PlanPage, 0},
    {"box", Act::PlanBox, 4},
    {"polyline", Act::PlanPolyline, kPlaces},
    {"polygon", Act::PlanPolygon, kPlaces},
    {"cutout", Act::PlanCutOut, kPlaces},
    {"snap", Act::PlanSnap, 2},
    {"drag", Act::PlanDrag, 4},
};

constexpr char kBlockStart[] = " <<END";
constexpr char kBlockEnd[] = "END";

// Takes the first word off `rest`; one blank behind it goes with it.
QString TakeWord(QString& rest) {
  const qsizetype blank = rest.indexOf(QLatin1Char(' '));
  const QString word = blank < 0 ? rest : rest.left(blank);
  rest = blank < 0 ? QString() : rest.mid(blank + 1);
  return word;
}

bool IsControlName(const QString& name) {
  const qsizetype dot = name.indexOf(QLatin1Char('.'));
  return dot > 0 && dot < name.size() - 1 && !name.contains(QLatin1Char(' '));
}

QString WholeNumber(const QString& word, int& into) {
  bool ok = false;
  into = word.toInt(&ok);
  return ok ? QString() : QStringLiteral("a whole number is expected, not \"%1\"").arg(word);
}

QString ParsePlan(Step& step, QString rest) {
  const QString word = TakeWord(rest);
  rest = rest.trimmed();
  for (const PlanVerb& verb : kPlanVerbs) {
    if (word != QLatin1String(verb.word)) continue;
    step.act = verb.act;
    if (verb.numbers == 0) return WholeNumber(rest, step.row);
    if (verb.numbers == -1) {
      return test::PlanStrokeFromName(rest, step.stroke)
                 ? QString()
                 : QStringLiteral("there is no key \"%1\" on the plan").arg(rest);
    }
    for (const QString& number : rest.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
      bool ok = false;
      const double value = number.toDouble(&ok);
      if (!ok || !std::isfinite(value))
        return QStringLiteral("a number is expected, not \"%1\"").arg(number);
      step.points.push_back(value);
    }
    if (verb.numbers == kPlaces) {
      return step.points.size() >= 4 && step.points.size() % 2 == 0
                 ? QString()
                 : QStringLiteral("at least two places X Y are expected");
    }
    if (static_cast<int>(step.points.size()) != verb.numbers)
      return QStringLiteral("%1 numbers are expected").arg(verb.numbers);
    return {};
  }
  return QStringLiteral("there is no step \"plan %1\"").arg(word);
}

// WHAT = TEXT, WHAT contains TEXT, or WHAT alone before a block: whichever comes first.
QString ParseExpect(Step& step, const QString& rest, bool block) {
  const qsizetype contains = rest.indexOf(QStringLiteral(" contains "));
  qsizetype equals = rest.indexOf(QStringLiteral(" = "));
  if (equals < 0 && rest.endsWith(QStringLiteral(" ="))) equals = rest.size() - 2;
  if (contains >= 0 && (equals < 0 || contains < equals)) {
    step.compare = Compare::Contains;
    step.text = rest.left(contains);
    step.expected = rest.mid(contains + 10);
  } else if (equals >= 0) {
    step.text = rest.left(equals);
    step.expected = rest.mid(equals + 3);
  } else if (block) {
    step.compare = Compare::Block;
    step.text = rest.chopped(static_cast<qsizetype>(sizeof kBlockStart) - 1);
  } else {
    return QStringLiteral("\"= TEXT\", \"contains TEXT\" or \"<<END\" is missing");
  }
  step.text = step.text.trimmed();
  return step.text.isEmpty() ? QStringLiteral("what is expected?") : QString();
}

QString ParseControl(Step& step, Shape shape, QString rest) {
  step.name = TakeWord(rest);
  rest = rest.trimmed();
  const bool notice = shape == Shape::ControlOrNotice && step.name == QStringLiteral("notice");
  if (shape == Shape::Form) {
    if (step.name.isEmpty() || step.name.contains(QLatin1Char('.')))
      return QStringLiteral("a FORM is expected");
  } else if (!notice && !IsControlName(step.name)) {
    return QStringLiteral("FORM.CONTROL is expected, not \"%1\"").arg(step.name);
  }
  if (shape == Shape::ControlAndRow) return WholeNumber(rest, step.row);
  if (shape == Shape::ControlAndPath) {
    step.text = rest;
    return rest.isEmpty() ? QStringLiteral("a PATH is missing") : QString();
  }
  return rest.isEmpty() ? QString() : QStringLiteral("\"%1\" is too much for this step").arg(rest);
}

QString ParseWord(Step& step, Shape shape, const QString& word) {
  switch (shape) {
    case Shape::Date:
      step.date = QDate::fromString(word, QStringLiteral("yyyy-MM-dd"));
      return step.date.isValid() ? QString() : QStringLiteral("a date YYYY-MM-DD is expected");
    case Shape::Seconds:
      return WholeNumber(word, step.row);
    case Shape::KeyName:
      return KeyFromName(word, step.key) ? QString()
                                         : QStringLiteral("there is no key \"%1\"").arg(word);
    case Shape::YesOrNo:
      step.yes = word == QStringLiteral("Yes");
      return step.yes || word == QStringLiteral("No") ? QString()
                                                      : QStringLiteral("Yes or No is expected");
    case Shape::Nothing:
      return word.isEmpty() ? QString()
                            : QStringLiteral("\"%1\" is too much for this step").arg(word);
    default:
      step.text = word;
      return word.isEmpty() ? QStringLiteral("something is missing behind it") : QString();
  }
}

QString ParseRest(Step& step, Shape shape, const QString& rest, bool block) {
  switch (shape) {
    case Shape::Text:
      step.text = rest;
      return {};
    case Shape::Plan:
      return ParsePlan(step, rest);
    case Shape::Expect:
      return ParseExpect(step, rest, block);
    case Shape::PathAndBlock:
      if (!block) return QStringLiteral("\"<<END\" is missing");
      return ParseWord(step, shape,
                       rest.chopped(static_cast<qsizetype>(sizeof kBlockStart) - 1).trimmed());
    case Shape::Control:
    case Shape::ControlOrNotice:
    case Shape::Form:
    case Shape::ControlAndRow:
    case Shape::ControlAndPath:
      return ParseControl(step, shape, rest);
    default:
      return ParseWord(step, shape, rest.trimmed());
  }
}

QString ParseLine(Step& step, bool block) {
  QString rest = step.source;
  QString word = TakeWord(rest);
  step.second = word == QStringLiteral("second");
  if (step.second) word = TakeWord(rest);
  if (word.isEmpty() && step.second) return QStringLiteral("what does the second program do?");
  if (word.isEmpty()) return QStringLiteral("a step begins in column 1");
  for (const Verb& verb : kVerbs) {
    if (word != QLatin1String(verb.word)) continue;
    step.act = verb.act;
    return ParseRest(step, verb.shape, rest, block);
  }
  return QStringLiteral("there is no step \"%1\"").arg(word);
}

// Only these steps have a block, and an `expect` with a text behind "=" has none.
bool TakesBlock(const Step& step) {
  return step.act == Act::Write || (step.act == Act::Expect && step.compare == Compare::Block);
}

}  // namespace

bool KeyFromName(const QString& name, Key& key) {
  static const std::pair<const char*, Key::Name> names[] = {{"Enter", Key::Name::Enter},
                                                            {"Ctrl+Enter", Key::Name::LineFeed},
                                                            {"Backspace", Key::Name::Backspace},
                                                            {"Delete", Key::Name::Delete},
                                                            {"Escape", Key::Name::Escape},
                                                            {"Tab", Key::Name::Tab},
                                                            {"Shift+Tab", Key::Name::BackTab},
                                                            {"Space", Key::Name::Space},
                                                            {"Up", Key::Name::Up},
                                                            {"Down", Key::Name::Down},
                                                            {"Left", Key::Name::Left},
                                                            {"Right", Key::Name::Right},
                                                            {"End", Key::Name::End},
                                                            {"Ctrl+Z", Key::Name::TakeBack},
                                                            {"Ctrl+Y", Key::Name::BringBack}};
  for (const auto& [text, value] : names) {
    if (name != QLatin1String(text)) continue;
    key = Key::Named(value);
    return true;
  }
  return false;
}

std::vector<Step> ParseScenario(const QStringList& lines) {
  std::vector<Step> steps;
  for (qsizetype at = 0; at < lines.size(); ++at) {
    if (lines[at].trimmed().isEmpty() || lines[at].startsWith(QLatin1Char('#'))) continue;
    Step step;
    step.line = static_cast<int>(at) + 1;
    step.source = lines[at];
    const bool block = lines[at].endsWith(QLatin1String(kBlockStart));
    step.error = ParseLine(step, block);
    if (step.error.isEmpty() && block && TakesBlock(step)) {
      qsizetype end = at + 1;
      while (end < lines.size() && lines[end] != QLatin1String(kBlockEnd)) ++end;
      step.block = lines.mid(at + 1, end - at - 1);
      if (end == lines.size())
        step.error = QStringLiteral("the block has no end: a line END is missing");
      at = end;
    }
    steps.push_back(std::move(step));
  }
  return steps;
}

}  // namespace tamo::player
