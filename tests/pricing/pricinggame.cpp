#include "pricing/pricinggame.h"

#include <cmath>

#include "common/numbers.h"
#include "records/materialfile.h"
#include "records/systemfile.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

constexpr char kData[] = "/home/Tamo/";

// --- what an estimator would work out beside the form ---

double CostOf(double running, const QString& tag, const char* divides, const char* multiplies,
              double price, double number) {
  if (tag == QLatin1String(divides)) running = price / number;
  if (tag == QLatin1String(multiplies)) running = price * number;
  return running + 0.0005;
}

// The sum of the blocks, up to one that has no price.
double SumOf(const QStringList& rows, const QStringList& m) {
  const auto markup = [&m](int line) { return Value(m.value(line)); };
  const double misc = markup(9) + markup(10) + markup(11);
  double running = 0;
  double total = 0;
  for (qsizetype row = 0; row < rows.size(); row += kBlockRows) {
    const MaterialBlock b = MaterialBlock::At(rows, row);
    const double upo = Value(b.upo);
    const double mnhr = Value(b.mnhrPO);
    if ((b.upoTag == S("upo") && upo == 0) || (b.mnhrTag == S("upm") && mnhr == 0)) break;
    const double material = CostOf(running, b.upoTag, "upo", "opu", Value(b.price), upo);
    running = material * (1 + Value(b.waste) / 100 + markup(0) + markup(1) + markup(2) + misc);
    total += running;
    const double labor = CostOf(running, b.mnhrTag, "upm", "mpu", Value(b.wageRate), mnhr);
    running = labor * (1 + markup(3) + markup(4) + markup(5) + misc);
    total += running;
  }
  return total;
}

bool Near(double a, double b) {
  return std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

// What the words of a prompt ask for.
QString RatioAsked(const QString& prompt, const QString& units) {
  const bool opu = prompt.contains(S("(s) per ")) || prompt == S("How many per ") + units + ':';
  return opu ? S("opu") : S("upo");
}
QString LaborAsked(const QString& prompt) {
  return prompt.startsWith(S("Manhours per")) ? S("mpu") : S("upm");
}

// A material and its numbers; which way they read may have been turned.
QStringList Numbers(const QStringList& blocks) {
  QStringList materials;
  for (qsizetype row = 0; row < blocks.size(); row += kBlockRows) {
    const MaterialBlock b = MaterialBlock::At(blocks, row);
    materials +=
        QStringList{b.material, b.orderUnits, b.price, b.upo, b.mnhrPO, b.waste, b.wageRate}.join(
            QLatin1Char('|'));
  }
  return materials;
}

QStringList Texts(const PricingForm& form) {
  QStringList texts;
  for (const TextField* field : form.MarkupRing) texts += field->Text();
  return texts;
}

SystemFile Priced(const QString& name, const QString& units, const QString& price,
                  const QStringList& blocks = {}) {
  return {name, units, price, {}, {}, blocks};
}

}  // namespace

PricingGame::PricingGame(bool withProject) {
  shared_.DataPath = QString::fromLatin1(kData);
  shared_.Separator = S("/");
  PutLibrary();
  if (withProject) {
    shared_.JobID = S("00-2112001");
    setUp_ += {S("write Tamo/Jobs.lst <<END"), S("00-2112001   One"), S("END")};
  }
  disk_.MakeFolder(S("/home/Tamo/Projects"));
  disk_.MakeFolder(S("/home/Tamo/Projects/00-2112001"));
  disk_.MakeFolder(S("/home/Tamo/Projects/00-2112001/Systems"));
  setUp_ += S("start");
  if (withProject) setUp_ += {S("menu Tamo.OpenProject"), S("select Tamo.JobsList 0")};
  other_.Show();
  form.Init();
  WatchDeletions();
  disk_.TakeTouched();
}

void PricingGame::PutLibrary() {
  const auto put = [this](const QString& file, const QString& text) {
    const QStringList lines = WholeLines(text);
    disk_.Put(S("/home/") + file, lines);
    setUp_ += S("write ") + file + S(" <<END");
    for (QString line : lines) setUp_ += line.replace(QChar(1), S("^A"));
    setUp_ += S("END");
  };
  const QStringList tee = Block("Main Tee", "EA", "9.15", "24", "upo", "60", "upm", "3", "46.50");
  for (const SystemFile& system : {Priced("Wall", "SF", "0.00", Stud() + Drywall() + Compound()),
                                   Priced("Ceiling", "M", "0.00", tee),
                                   Priced("Base", "ea", "0.00"), Priced("Caulk", "LF", "4.15")}) {
    put(S("Tamo/Systems/") + system.description + S(".sys"), SystemFileText(system));
    known_[system.description.toUpper()] = ReadSystemFile(SystemFileText(system));
  }
  put(S("Inn.sys"), S("Inn\r\nSF\r\n0.00\r\n\r\n\r\n\r\n\r\n") + JoinedLines(Drywall() + tee));
  for (const QStringList& block : {Stud(), Compound(), tee})
    put(S("Tamo/Systems/") + block[0] + S(".mat"), MaterialFileText(MaterialBlock::At(block, 0)));
  put(S("Tamo/Descriptions.tamo"), S("Wall\r\nCeiling\r\nBase\r\nCaulk\r\n"));
  put(S("Tamo/Materials.tamo"), S("Stud\r\nDrywall\r\nCompound\r\nMain Tee\r\n"));
  put(S("Tamo/Units.tamo"), S("SF\r\nM\r\nEA\r\n"));
  put(S("Tamo/oUnits.tamo"), S("SHT\r\nEA\r\nLF\r\n"));
}

void PricingGame::WatchDeletions() {
  // A name that is in no list begins an empty system, whatever file lies under it.
  form.Description.onKey = [this, then = form.Description.onKey](Key& key) {
    const QString name = form.Description.Text();
    if (key.IsEnter() && !form.DescriptionsList.Rows().contains(name, Qt::CaseInsensitive))
      known_.remove(name.toUpper());
    then(key);
  };
  // Of a deleted system nothing is missed, also where the library keeps its file.
  form.SystemDelete.onClick = [this, then = form.SystemDelete.onClick] {
    known_.remove(form.Description.Text().toUpper());
    then();
  };
  for (std::function<void()>* command : {&form.MaterialDelete.onClick, &form.SystemDelete.onClick,
                                         &form.PasteSystem.onClick, &form.File1.onPick}) {
    *command = [this, then = *command] {
      replaces_ = true;
      then();
    };
  }
}

std::vector<Deed> PricingGame::Doors() {
  return {{S("menu Tamo.UnitsPricing"), [this] { form.ToggleUnitsPricing(&other_); }}};
}

std::vector<Deed> PricingGame::Deeds() {
  return {{S("menu Pricing.ImportSystem"), [this] { form.ImportSystem.onClick(); }},
          {S("pick Pricing.File1 {home}/Inn.sys"),
           [this] {
             if (form.File1.Usable()) desk_.Pick(form.File1, S("/home/Inn.sys"), false);
           }},
          {S("rightselect Pricing.MaterialList 0"), [this] { RightSelect(0); }},
          {S("rightselect Pricing.MaterialList 1"), [this] { RightSelect(1); }},
          {S("rightselect Pricing.MaterialList 2"), [this] { RightSelect(2); }},
          {S("menu Pricing.MaterialInsert"), [this] { form.MaterialInsert.onClick(); }},
          {S("menu Pricing.MaterialDelete"), [this] { form.MaterialDelete.onClick(); }},
          {S("focus Pricing.Description"), [this] { desk_.UserFocus(form.Description); }}};
}

void PricingGame::RightSelect(int row) {
  if (form.MaterialList.Usable() && row < form.MaterialList.Count())
    desk_.RightClickRow(form.MaterialList, row);
}

QString PricingGame::Broken() {
  messages_.texts.clear();
  messages_.shown.clear();
  QString broken = BrokenPlaces();
  bool saved = false;
  for (const QString& path : disk_.TakeTouched()) {
    if (!broken.isEmpty()) break;
    broken = BrokenFile(path);
    saved |= path == QLatin1String(kData) + S("Systems/") + form.Description.Text() + S(".sys");
  }
  if (broken.isEmpty()) broken = BrokenPrice(saved);
  if (broken.isEmpty()) broken = BrokenPrompt();
  if (broken.isEmpty() && !files_.PendingSaves().empty()) broken = S("pending: a save failed");
  wouldStore_ = form.inWork.ToStore();
  replaces_ = false;
  return broken;
}

// The name at k is that of rows 12k to 12k+11; one empty row may wait behind them.
QString PricingGame::BrokenPlaces() const {
  const QStringList& rows = form.System.Rows();
  const QStringList& names = form.MaterialList.Rows();
  const qsizetype blocks = rows.size() / kBlockRows;
  if (rows.size() % kBlockRows != 0) return S("place: %1 rows").arg(rows.size());
  if (names.size() != blocks && !(names.size() == blocks + 1 && names.last().isEmpty()))
    return S("place: %1 names for %2 blocks").arg(names.size()).arg(blocks);
  for (qsizetype k = 0; k < blocks; ++k) {
    if (names[k] != rows[k * kBlockRows])
      return S("place: row %1 is %2 and its block %3").arg(k).arg(names[k], rows[k * kBlockRows]);
  }
  return {};
}

QString PricingGame::BrokenFile(const QString& path) {
  if (path.startsWith(S("/home/")) && path.count(QLatin1Char('/')) == 2) return {};  // an export
  if (!path.startsWith(QLatin1String(kData))) return S("outside: %1 was written").arg(path);
  if (path.endsWith(S(".mat"))) return BrokenMaterial(path);
  if (!path.endsWith(S(".sys")) || path.contains(S("/Projects/"))) return {};
  const QString key = path.section(QLatin1Char('/'), -1).chopped(4).toUpper();
  if (!disk_.Exists(path)) {
    const bool meant = replaces_ || !known_.contains(key);
    known_.remove(key);
    return meant ? QString() : S("vanished: the file of ") + key;
  }
  const SystemFile now = ReadSystemFile(JoinedLines(disk_.Lines(path)));
  const QString broken = BrokenSystem(path, known_.value(key), now);
  known_[key] = now;
  return broken;
}

QString PricingGame::BrokenSystem(const QString& path, const SystemFile& before,
                                  const SystemFile& now) {
  if (path.section(QLatin1Char('/'), -1).chopped(4) == form.Description.Text()) {
    if (now.blocks != StoredBlocks(form.System.Rows()) || now.units != form.Units.Text() ||
        now.unitPrice != form.UnitPrice.Text() || now.lineColor != form.LineColor)
      return S("file: %1 is not what is on the screen").arg(path);
    const QString copy = QLatin1String(kData) + S("Projects/") + shared_.JobID + S("/Systems/") +
                         path.section(QLatin1Char('/'), -1);
    if (!shared_.JobID.isEmpty() && disk_.Lines(copy) != disk_.Lines(path))
      return S("file: %1 is not the project's copy").arg(path);
  }
  if (replaces_) return {};
  QStringList gone = Numbers(before.blocks);
  for (const QString& material : Numbers(now.blocks)) gone.removeOne(material);
  const qsizetype fewer = before.blocks.size() - now.blocks.size();
  if (gone.size() > 1 || fewer > 0)
    return S("vanished: %1 out of %2").arg(gone.join(S(" and ")), path);
  return {};
}

QString PricingGame::BrokenMaterial(const QString& path) {
  const QStringList lines = disk_.Lines(path);
  const MaterialBlock block = ReadMaterialFile(JoinedLines(lines)).block;
  if (lines.size() != 9 || !IsRatioTag(block.upoTag) || !IsLaborTag(block.mnhrTag))
    return S("material: %1 reads %2").arg(path, lines.join(QLatin1Char('|')));
  if (replaces_) return {};
  const MaterialBlock& meant = wouldStore_;
  if (block.upoTag != meant.upoTag || block.mnhrTag != meant.mnhrTag || block.upo != meant.upo ||
      block.mnhrPO != meant.mnhrPO)
    return S("material: %1 is not what was asked for").arg(path);
  for (qsizetype row = 0; row < form.System.Count(); row += kBlockRows) {
    if (form.System.Rows().mid(row, 9) == lines) return {};
  }
  return S("material: %1 is in no place of the system").arg(path);
}

// EUP is the sum of the blocks as they stood when it was last made, and as they stand when they
// have just been saved.
QString PricingGame::BrokenPrice(bool saved) {
  const QString text = form.EUP.Caption();
  if (text.isEmpty() || !form.LandMFrame.Shown() || form.Description.Empty()) return {};
  const double shown = Value(text);
  const QStringList markups = Texts(form);
  if (Near(shown, SumOf(form.System.Rows(), markups))) {
    pricedRows_ = form.System.Rows();
    pricedMarkups_ = markups;
    return {};
  }
  if (!saved && Near(shown, SumOf(pricedRows_, pricedMarkups_))) return {};
  return S("price: %1 is shown for %2").arg(shown).arg(SumOf(form.System.Rows(), markups));
}

// Whoever types a conversion number reads what will be stored with it. The takeoff unit and the
// price set their prompts also over a number that came with a direction: the direction holds. With
// no direction a prompt that begins with "How many" is stored as takeoff units, also one for order
// units (of a system that is named as the unit, of a material that was deleted). A prompt that no
// unit has set yet asks nothing.
QString PricingGame::BrokenPrompt() const {
  const MaterialBlock stored = form.inWork.ToStore();
  const QString units = form.Units.Text();
  const QString upo = form.LabelUPO.Caption();
  const QString mnhr = form.LabelMnhr.Caption();
  const Directions& held = form.inWork.directions;
  const bool ofUnits = upo.startsWith(units + S(" per ")) ||
                       (upo.startsWith(S("How many per ")) && !upo.endsWith(QLatin1Char(':')));
  const bool ofPrice =
      upo == S("How many per ") + units + ':' && !form.inWork.fields.Typed(MaterialFields::kUpo);
  if (desk_.Focused() == &form.UPO && !upo.isEmpty() && RatioAsked(upo, units) != stored.upoTag &&
      !(held.Ratio().isEmpty() ? upo.contains(S("(s) per ")) : ofUnits || ofPrice))
    return S("prompt: \"%1\" and %2").arg(upo, stored.upoTag);
  if (desk_.Focused() == &form.MnhrPO && !mnhr.isEmpty() && LaborAsked(mnhr) != stored.mnhrTag &&
      !(!held.Labor().isEmpty() && mnhr.endsWith(S(" per Manhour:"))))
    return S("prompt: \"%1\" and %2").arg(mnhr, stored.mnhrTag);
  return {};
}

}  // namespace tamo::test
