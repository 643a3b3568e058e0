#include "player/looker.h"

#include <algorithm>

#include "common/desk.h"
#include "common/textlines.h"
#include "plans/comparison.h"
#include "plans/ostform.h"
#include "player/caret.h"
#include "player/cast.h"
#include "player/trouble.h"
#include "player/values.h"

namespace tamo::player {
namespace {

constexpr int kPatience = 20000;  // milliseconds for a sheet to be read

QStringList AllShown(const QStringList& texts) {
  QStringList lines;
  for (const QString& text : texts) lines += Shown(text);
  return lines;
}

// The strongest of red, green and grey.
QString InkInWords(const Picture& picture) {
  constexpr int kFaint = 40;
  int red = 0;
  int green = 0;
  int grey = 0;
  for (const uint32_t pixel : picture.pixels) {
    const int r = static_cast<int>(pixel >> 16 & 255);
    const int g = static_cast<int>(pixel >> 8 & 255);
    const int b = static_cast<int>(pixel & 255);
    red = std::max(red, r - std::max(g, b));
    green = std::max(green, g - std::max(r, b));
    grey = std::max(grey, 255 - std::max({r, g, b}));
  }
  if (std::max({red, green, grey}) < kFaint) return QStringLiteral("white");
  if (std::max(red, green) < kFaint) return QStringLiteral("stayed");
  return red > green ? QStringLiteral("gone") : QStringLiteral("come");
}

QString TakeWord(QString& rest) {
  const qsizetype blank = rest.indexOf(QLatin1Char(' '));
  const QString word = blank < 0 ? rest : rest.left(blank);
  rest = blank < 0 ? QString() : rest.mid(blank + 1).trimmed();
  return word;
}

}  // namespace

Played& Looker::Program() {
  if (played_ == nullptr) Fail(QStringLiteral("the program does not run"));
  return *played_;
}

QStringList Looker::Look(const QString& what) {
  if (what.contains(QLatin1String("Tamo.Home"))) Program().RefreshHomePage();
  QString rest = what;
  const QString word = TakeWord(rest);
  QStringList lines;
  if (LookAtMachine(word, rest, lines)) return lines;
  // What a sheet says comes from a thread of its own; a person looks when it is there.
  if (what.contains(QLatin1String("OST.")) && played_ != nullptr)
    played_->GetDesk().Dispatch([this] {
      played_->Viewer().Snap().TellOfSheet(kPatience);
      auto* ost = dynamic_cast<OSTForm*>(played_->FindForm(QStringLiteral("OST")));
      if (ost != nullptr) ost->Ways().FinishReading(kPatience);
      played_->Viewer().Compared().Jobs().Settle(kPatience);
    });
  QString text;
  if (rest.isEmpty() ? LookAtPlan(word, text) || LookAtProgram(word, text)
                     : LookAtState(word, rest, text))
    return ShownLines(text);
  if (!rest.isEmpty()) NotUnderstood(QStringLiteral("there is no look at \"%1\"").arg(what));
  return Named(word);
}

// What is there also when no program runs.
bool Looker::LookAtMachine(const QString& word, const QString& rest, QStringList& lines) {
  if (word == QStringLiteral("file") && !rest.isEmpty()) {
    lines = FileLines(rest);
  } else if (word == QStringLiteral("exists") && !rest.isEmpty()) {
    lines = {TrueOrFalse(RealDisk().Exists(machine_.PathOf(rest)))};
  } else if (word == QStringLiteral("files") && !rest.isEmpty()) {
    lines = AllShown(Machine::Everything(machine_.PathOf(rest)));
  } else if (!rest.isEmpty()) {
    return false;
  } else if (word == QStringLiteral("messages")) {
    lines = AllShown(machine_.messages.TakeShown());
  } else if (word == QStringLiteral("printer")) {
    lines = AllShown(machine_.printer.TakePrinted());
  } else if (word == QStringLiteral("clipboard")) {
    lines = ShownLines(machine_.clipboard.text);
  } else {
    return false;
  }
  return true;
}

QStringList Looker::FileLines(const QString& path) {
  const QString full = machine_.PathOf(path);
  QByteArray bytes;
  RealDisk disk;  // past the faults of the program's disk
  if (disk.IsFolder(full)) Fail(QStringLiteral("%1 is a folder").arg(path));
  if (!disk.Exists(full)) Fail(QStringLiteral("there is no file %1").arg(path));
  if (disk.Read(full, bytes) != 0) Fail(QStringLiteral("the file %1 can't be read").arg(path));
  return ShownFileLines(DecodedText(bytes));
}

bool Looker::LookAtPlan(const QString& word, QString& text) {
  static const QStringList words = {QStringLiteral("marks"), QStringLiteral("tool"),
                                    QStringLiteral("pen"),   QStringLiteral("zoom"),
                                    QStringLiteral("page"),  QStringLiteral("unit"),
                                    QStringLiteral("shown"), QStringLiteral("chosen")};
  const qsizetype at = words.indexOf(word);
  if (at < 0) return false;
  const PdfDraw& viewer = Program().Viewer();
  QStringList marks;
  switch (at) {
    case 0:
      for (const Mark& mark : viewer.Marks()) marks += MarkLine(mark);
      text = marks.join(QStringLiteral("\r\n"));
      break;
    case 1:
      text = QString::number(static_cast<int>(viewer.Tool()));
      break;
    case 2:
      text = viewer.MarkColour();
      break;
    case 3:
      text = QString::number(viewer.Zoom());
      break;
    case 4:
      text = QString::number(viewer.Page());
      break;
    case 5:
      text = viewer.UnitName();
      break;
    case 7:
      text = ChosenLine(viewer);
      break;
    default:
      text = viewer.ShownFile();
  }
  return true;
}

bool Looker::LookAtProgram(const QString& word, QString& text) {
  if (word == QStringLiteral("running")) {
    text = TrueOrFalse(played_ != nullptr && played_->Running());
  } else if (word == QStringLiteral("notice")) {
    text = Program().Notice();
  } else if (word == QStringLiteral("suggestions")) {
    text = Program().SuggestedNames().join(QStringLiteral("\r\n"));
  } else if (word == QStringLiteral("suggestion")) {
    text = Program().SuggestedNames().value(Program().WalkedSuggestion());
  } else if (word == QStringLiteral("chart")) {
    text = Program().Chart().join(QStringLiteral("\r\n"));
  } else if (word == QStringLiteral("focus")) {
    const Control* control = Program().GetDesk().Focused();
    text = control == nullptr ? QString() : control->FullName();
  } else {
    return false;
  }
  return true;
}

bool Looker::LookAtState(const QString& word, const QString& rest, QString& text) {
  const auto is = [&](const char* name) { return word == QLatin1String(name); };
  const bool state = is("visible") || is("enabled");
  if ((state || is("caption")) && rest.startsWith(QStringLiteral("menu "))) {
    text = MenuState(word, rest.mid(5).trimmed());
  } else if (state && !rest.contains(QLatin1Char('.'))) {
    const Form& form = FormNamed(Program(), rest);
    text = TrueOrFalse(is("visible") ? form.Visible() : true);
  } else if (state) {
    const Control& control = ControlNamed(Program(), rest);
    text = TrueOrFalse(is("visible") ? control.Shown() : control.Enabled());
  } else if (is("index") || is("top") || is("count")) {
    text = ListState(word, rest);
  } else if (is("row") || is("ticked")) {
    text = RowState(word, rest);
  } else if (is("selection")) {
    text = ControlOfKind<TextField>(Program(), rest, "field").SelectedText();
  } else if (is("beside")) {
    text = ControlOfKind<TextField>(Program(), rest, "field").Beside();
  } else if (is("snap")) {
    text = SnapAt(rest);
  } else if (is("overlay")) {
    text = OverlayAt(rest);
  } else if (is("hover")) {
    text = ControlNamed(Program(), rest).Hover();
  } else if (is("colour")) {
    text = ControlOfKind<Swatch>(Program(), rest, "swatch").Colour();
  } else if (is("width")) {
    text = QString::number(ControlOfKind<Swatch>(Program(), rest, "sample line").Width());
  } else {
    return false;
  }
  return true;
}

// What the cross hair takes at a place of the sheet, and where; "none" when there is nothing near.
QString Looker::SnapAt(const QString& rest) {
  QString second = rest;
  bool good = false;
  bool both = false;
  const double x = TakeWord(second).toDouble(&good);
  const double y = second.toDouble(&both);
  if (!good || !both) NotUnderstood(QStringLiteral("snap X Y is expected"));
  const std::vector<SnapHit> hits = Program().Viewer().Snap().AllNear({x, y}, kPatience);
  if (hits.empty()) return QStringLiteral("none");
  return SnapInWords(hits[0].kind) + QLatin1Char(' ') + ShortNumber(hits[0].at.x) +
         QLatin1Char(' ') + ShortNumber(hits[0].at.y);
}

// What the plan that is laid over shows around a place of the sheet.
QString Looker::OverlayAt(const QString& rest) {
  QString second = rest;
  bool good = false;
  bool both = false;
  const double x = TakeWord(second).toDouble(&good);
  const double y = second.toDouble(&both);
  if (!good || !both) NotUnderstood(QStringLiteral("overlay X Y is expected"));
  PdfDraw& viewer = Program().Viewer();
  Program().GetDesk().Dispatch([&] { viewer.Compared().Jobs().Settle(kPatience); });
  const PlanView view = {viewer.Page(),           1, 0, static_cast<int>(x) - 4,
                         static_cast<int>(y) - 4, 9, 9};
  const std::shared_ptr<const Picture> picture = viewer.Pictures().PrintPicture(view, nullptr);
  return picture == nullptr ? QStringLiteral("nothing") : InkInWords(*picture);
}

QString Looker::MenuState(const QString& word, const QString& name) {
  const MenuEntry& entry = EntryNamed(Program(), name);
  if (word == QStringLiteral("caption")) return entry.Caption();
  return TrueOrFalse(word == QStringLiteral("visible") ? entry.Shown() : entry.Enabled());
}

QString Looker::ListState(const QString& word, const QString& name) {
  if (const auto* browser = dynamic_cast<FileBrowser*>(&ControlNamed(Program(), name));
      browser != nullptr && browser->GetKind() == FileBrowser::Kind::File) {
    const QStringList rows = FileRows(*browser);
    if (word == QStringLiteral("count")) return QString::number(rows.size());
    return QString::number(word == QStringLiteral("index") ? rows.indexOf(browser->File()) : 0);
  }
  const auto& list = ControlOfKind<OrderedList>(Program(), name, "list");
  if (word == QStringLiteral("index")) return QString::number(list.Index());
  return QString::number(word == QStringLiteral("top") ? list.Top() : list.Count());
}

QString Looker::RowState(const QString& word, const QString& rest) {
  QString name = rest;
  bool ok = false;
  const int row = TakeWord(name).toInt(&ok);
  if (!ok) NotUnderstood(QStringLiteral("%1 N FORM.LIST is expected").arg(word));
  if (word == QStringLiteral("ticked")) {
    const auto& list = ControlOfKind<CheckList>(Program(), name, "list with check boxes");
    MustHaveRow(list, row);
    return TrueOrFalse(list.Ticked(row));
  }
  const auto& list = ControlOfKind<OrderedList>(Program(), name, "list");
  MustHaveRow(list, row);
  return list.Row(row);
}

// FORM, FORM.CONTROL, FORM.ENTRY or a shared text.
QStringList Looker::Named(const QString& name) {
  Played& program = Program();
  if (!name.contains(QLatin1Char('.'))) {
    if (program.FindForm(name) == nullptr)
      NotUnderstood(
          QStringLiteral("there is no look at \"%1\" and no form of that name").arg(name));
    return ShownLines(FormNamed(program, name).Caption());
  }
  const auto [formName, own] = SplitName(name);
  if (const Form* form = program.FindForm(formName)) {
    if (const Control* control = form->Find(own)) return ControlLines(*control);
    if (const MenuEntry* entry = form->FindMenu(own)) return ShownLines(entry->Caption());
  }
  if (const QString* text = program.FindText(formName, own)) return ShownLines(*text);
  return ControlLines(ControlNamed(program, name));
}

}  // namespace tamo::player
