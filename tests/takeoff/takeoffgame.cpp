#include "takeoff/takeoffgame.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/columns.h"
#include "common/numbers.h"
#include "takeoff/unitcodes.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

struct PricedSystem {
  const char* name;
  const char* unit;
};
constexpr std::array<PricedSystem, 6> kSystems = {{{"Wall Paint", "SF"},
                                                   {"Rubber Base", "LF"},
                                                   {"HM Door", "EA"},
                                                   {"ACT Ceiling", "sf"},
                                                   {"Carpet", "SY"},
                                                   {"Paint", "SF"}}};

QString HomePath(const QString& path) {
  return path.mid(S("/home/").size());
}

}  // namespace

TakeoffGame::TakeoffGame() {
  desk.onRest = [this] { back.EndEvent(); };
  shared.DataPath = S("/home/Tamo/");
  shared.Separator = S("/");
  shared.GUIText = S("1");
  shared.DriveBy = S("False");
  shared.JobID = S("00-2112001");
  const DataFolder data(shared);
  QStringList names;
  for (const PricedSystem& system : kSystems) {
    const QString name = QLatin1String(system.name);
    names += name;
    disk.Put(data.SystemFile(name), {name, QLatin1String(system.unit), S("1.00"), S("000128255"),
                                     QString(), S("\x01"), QString(), QString()});
  }
  disk.Put(data.Path() + S("Descriptions.tamo"), names);
  for (const char* job : {"00-2112001", "00-2112002"}) {
    for (const char* folder : kProjectSubFolders)
      disk.Put(data.Project(QLatin1String(job)).SubFolder(folder) + S(".keep"), {});
  }
  shell.main.Show();
}

void TakeoffGame::Listen(Form& form, const Parts& parts) {
  form_ = &form;
  parts_ = parts;
  form.onKeyPreview = [this, then = form.onKeyPreview](Key& key) {
    enterInLength_ = key.IsEnter() && parts_.length->HasFocus();
    enterInHeight_ = key.IsEnter() && parts_.height->HasFocus();
    if (then) then(key);
  };
  const auto note = [](MenuEntry& entry, bool& done) {
    entry.onClick = [&done, then = entry.onClick] {
      done = true;
      then();
    };
  };
  note(*parts.deleteName, nameDeleted_);
  note(*parts.deleteLine, deleted_);
  note(*parts.paste, pasted_);
  for (const QString& path : disk.AllFiles().keys()) {
    if (path == FileOf(path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, -2)))
      seen_.records[path] = Quantities(LinesIn(disk.Lines(path)));
  }
  Look();
}

// A measure that arrives, and another project that is opened.
std::vector<Deed> TakeoffGame::Deeds() {
  const auto measured = [this](const QString& text) {
    return [this, text] {
      for (const auto& [code, field] : {std::pair(parts_.heightCode, parts_.height),
                                        std::pair(parts_.lengthCode, parts_.length)}) {
        if (shared.IAmHere != QLatin1String(code)) continue;
        field->SetText(text);
        desk.FocusWithoutActivation(*field);
      }
    };
  };
  const auto open = [this](const QString& id) {
    return [this, id] {
      shell.main.Show();
      shared.JobID = id;
    };
  };
  return {{S("plan line 72 72 252 72"), measured(S("10.0"))},
          {S("plan line 72 72 9999 72"), measured(S("1,500.0"))},
          {S("menu Tamo.OpenProject\nselect Tamo.JobsList 0"), open(S("00-2112001"))},
          {S("menu Tamo.OpenProject\nselect Tamo.JobsList 1"), open(S("00-2112002"))}};
}

QStringList TakeoffGame::SetUp() const {
  QStringList steps = {S("write Tamo/Jobs.lst <<END"), S("00-2112001   One"), S("00-2112002   Two"),
                       S("END")};
  const QMap<QString, QByteArray>& all = disk.AllFiles();
  for (auto file = all.cbegin(); file != all.cend(); ++file) {
    steps += S("write %1 <<END").arg(HomePath(file.key()));
    for (QString line : disk.Lines(file.key())) steps += line.replace(QChar(1), S("^A"));
    steps += S("END");
  }
  return steps + QStringList{S("start"), S("menu Tamo.OpenProject"), S("select Tamo.JobsList 0")};
}

QStringList TakeoffGame::OnDisk(const QString& name) {
  QStringList lines;
  files.ReadLines(FileOf(name), lines);
  return LinesIn(lines);
}

QStringList TakeoffGame::Quantities(const QStringList& lines) const {
  QStringList quantities;
  for (const QString& line : lines) {
    const QString quantity = QuantityIn(line);
    if (Value(quantity) != 0) quantities += quantity;
  }
  quantities.sort();
  return quantities;
}

QString TakeoffGame::Broken() {
  refused_ = !messages.texts.isEmpty();
  NoteEmptied();
  QString broken = EntryRule();
  if (broken.isEmpty()) broken = RecordsRule();
  if (broken.isEmpty()) broken = ScreenRule();
  if (broken.isEmpty()) broken = CursorRule();
  if (broken.isEmpty()) broken = MessageRule();
  Look();
  return broken;
}

void TakeoffGame::Look() {
  seen_.lines = parts_.lines->Rows();
  seen_.index = parts_.lines->Index();
  seen_.units = parts_.units->Text();
  seen_.height = parts_.height->Text();
  seen_.length = parts_.length->Text();
  if (seen_.job != shared.JobID) owner_.clear();
  seen_.job = shared.JobID;
  enterInLength_ = enterInHeight_ = deleted_ = pasted_ = false;
  messages.texts.clear();
  messages.shown.clear();
  plan.calls.clear();
  pricing.names.clear();
  shell.calls.clear();
  disk.TakeTouched();
}

bool TakeoffGame::EntryPressed() const {
  return enterInLength_ && !refused_ && GroupedValue(seen_.length) != 0 && seen_.index >= 0;
}

QString TakeoffGame::Expected() const {
  const bool surface = !IsLinearOrCount(TrimmedBlanks(seen_.units));
  double total = Entered(seen_.lines[seen_.index], surface, GroupedValue(seen_.height),
                         GroupedValue(seen_.length));
  if (surface || parts_.roundsLengths) total = std::floor(total + 0.5);
  return NumberText(total);
}

QString TakeoffGame::EntryRule() const {
  if (!EntryPressed()) return {};
  const QString now = QuantityIn(parts_.lines->Selected());
  if (now == Expected()) return {};
  return S("The sum of what was entered is the quantity: %1 and %2 X %3 give %4, the line has %5")
      .arg(seen_.lines[seen_.index], seen_.height, seen_.length, Expected(), now);
}

bool TakeoffGame::Agrees(const QString& name) {
  const QStringList onScreen = parts_.lines->Rows();
  if (onScreen.isEmpty() && name == emptied_) return true;
  const QStringList onDisk = OnDisk(name);
  return onDisk == Stored(onScreen) || MayDiffer(onDisk, onScreen);
}

// AutoRoom in the height: the next room shows no lines, and a save stores what shows.
void TakeoffGame::NoteEmptied() {
  const bool next = parts_.autoRoomEmpties && enterInHeight_ && !parts_.name->Empty() &&
                    parts_.system->HasFocus() && parts_.lines->Empty();
  if (next) emptied_ = parts_.name->Text();
  if (parts_.name->Text() != emptied_) emptied_.clear();
}

// Whose lines stand on the screen is known while the name has not the cursor; while it is being
// typed, they are of the name before it, or already of the name itself.
QString TakeoffGame::ScreenRule() {
  if (!form_->Visible() || seen_.job != shared.JobID) return {};
  const QString name = parts_.name->Text();
  if (!name.isEmpty() && Agrees(name)) {
    owner_ = name;
    return {};
  }
  const bool beingTyped = name.isEmpty() || form_->ActiveControl() == parts_.name;
  const QString whose = beingTyped ? owner_ : name;
  if (beingTyped && (parts_.lines->Empty() || Agrees(owner_))) return {};
  return S("The file equals the lines on the screen: \"%1\" holds %2, the screen shows %3")
      .arg(whose, OnDisk(whose).join(S(" / ")), parts_.lines->Rows().join(S(" / ")));
}

QString TakeoffGame::RecordsRule() {
  for (const QString& path : disk.TakeTouched()) {
    const QString name = path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, -2);
    if (!disk.Exists(path) || path != FileOf(name)) continue;
    const QStringList now = Quantities(LinesIn(disk.Lines(path)));
    const QString broken = RecordRule(path, now);
    if (!broken.isEmpty()) return broken;
    seen_.records[path] = now;
  }
  return {};
}

QString TakeoffGame::RecordRule(const QString& path, const QStringList& now) {
  QStringList expected = seen_.records.value(path);
  if (now == expected) return {};
  if (!emptied_.isEmpty() && path == files.Resolved(FileOf(emptied_)) && now.isEmpty()) return {};
  const QStringList copied = Quantities(parts_.copied->Rows());
  if (pasted_) {
    QStringList both = expected + copied;
    both.sort();
    if (now == copied || now == both) return {};
  }
  if (EntryPressed()) {
    expected.removeOne(QuantityIn(seen_.lines[seen_.index]));
    if (Value(Expected()) != 0) expected += Expected();
    expected.sort();
    if (now == expected) return {};
  }
  if (deleted_ && seen_.index >= 0) {
    expected.removeOne(QuantityIn(seen_.lines[seen_.index]));
    if (now == expected) return {};
  }
  return S("No quantity comes or goes by itself: %1 had %2 and has %3")
      .arg(HomePath(path), seen_.records.value(path).join(S(" ")), now.join(S(" ")));
}

QString TakeoffGame::CursorRule() {
  const Control* focused = desk.Focused();
  if (focused != cursor_ && !(nameDeleted_ && focused == nullptr)) nameDeleted_ = false;
  cursor_ = focused;
  const QString& here = shared.IAmHere;
  if (focused == nullptr || &focused->Owner() != form_) return {};
  const std::array<std::pair<const TextField*, QString>, 4> codes = {
      {{parts_.name, QLatin1String(parts_.nameCode)},
       {parts_.system, QLatin1String(parts_.systemCode)},
       {parts_.height, QLatin1String(parts_.heightCode)},
       {parts_.length, QLatin1String(parts_.lengthCode)}}};
  for (const auto& [field, code] : codes) {
    if (code.isEmpty()) continue;
    const bool cleared = here.isEmpty() && nameDeleted_;
    const bool wrong = focused == field
                           ? here != code && !cleared
                           : here == code && field != parts_.height && field != parts_.length;
    if (wrong)
      return S("IAmHere names the field that has the cursor: %1 has it, IAmHere is \"%2\"")
          .arg(focused->Name(), here);
  }
  return {};
}

QString TakeoffGame::MessageRule() const {
  for (const QString& text : messages.texts) {
    if (messages.texts.count(text) > 1)
      return S("What is refused is said once: %1 times %2")
          .arg(messages.texts.count(text))
          .arg(text);
  }
  return {};
}

#undef S

}  // namespace tamo::test
