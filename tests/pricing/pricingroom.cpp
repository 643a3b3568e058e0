#include "pricing/pricingroom.h"

#include <QDir>
#include <QFile>

namespace tamo::test {

PricingRoom::PricingRoom() : data(folder.path() + QStringLiteral("/Tamo/")) {
  shared.DataPath = data;
  QDir().mkpath(data + QStringLiteral("Systems"));
  QDir().mkpath(data + QStringLiteral("Projects"));
  other.Show();
}

void PricingRoom::Open() {
  desk.Dispatch([this] { form.ToggleUnitsPricing(&other); });
}

void PricingRoom::Enter(const QString& text) {
  Control* focused = desk.Focused();
  auto* field = dynamic_cast<TextField*>(focused);
  if (field == nullptr) return;
  field->SelectAll();
  if (text.isEmpty()) {
    desk.PressKey(*field, Key::Named(Key::Name::Delete));
  } else {
    desk.TypeText(*field, text);
  }
  desk.PressKey(*field, Key::Named(Key::Name::Enter));
}

void PricingRoom::Type(const QString& text) {
  if (Control* focused = desk.Focused()) desk.TypeText(*focused, text);
}

void PricingRoom::Press(Key::Name key) {
  if (Control* focused = desk.Focused()) desk.PressKey(*focused, Key::Named(key));
}

void PricingRoom::EnterAll(const QStringList& texts) {
  for (const QString& text : texts) Enter(text);
}

void PricingRoom::NewSystem(const QString& name, const QString& units) {
  Open();
  EnterAll({name, units, QString()});
}

QString PricingRoom::FocusName() const {
  return desk.Focused() == nullptr ? QString() : desk.Focused()->Name();
}

void PricingRoom::Write(const QString& relative, const QStringList& lines) {
  const QString path = relative.startsWith(QLatin1Char('/')) ? relative : data + relative;
  QDir().mkpath(FolderOf(path));
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(JoinedLines(lines).toUtf8());
}

QByteArray PricingRoom::Bytes(const QString& relative) {
  QFile file(relative.startsWith(QLatin1Char('/')) ? relative : data + relative);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList PricingRoom::Lines(const QString& relative) {
  return WholeLines(QString::fromUtf8(Bytes(relative)));
}

bool PricingRoom::Exists(const QString& relative) const {
  return QFile::exists(relative.startsWith(QLatin1Char('/')) ? relative : data + relative);
}

void PricingRoom::OpenProject(const QString& id) {
  shared.JobID = id;
  if (!id.isEmpty()) QDir().mkpath(data + QStringLiteral("Projects/") + id + "/Systems");
}

void PricingRoom::Library(const QString& name, const QString& units, const QString& price,
                          const QStringList& blocks) {
  SystemFile system;
  system.description = name;
  system.units = units;
  system.unitPrice = price;
  system.blocks = blocks;
  files.SaveText(MasterSystemPath(shared, name), SystemFileText(system));
  form.DescriptionsList.Add(name);
  form.vocabulary.SaveDescriptions();
}

QStringList Block(const QString& name, const QString& orderUnits, const QString& price,
                  const QString& upo, const QString& upoTag, const QString& mnhrPO,
                  const QString& mnhrTag, const QString& waste, const QString& wage) {
  return MaterialBlock{name, orderUnits, price, upo, upoTag, mnhrPO, mnhrTag, waste, wage}.Rows();
}

QStringList Stud() {
  return Block("Stud", "LF", "0.62", ".75", "opu", "42", "upm", "5", "46.50");
}
QStringList Drywall() {
  return Block("Drywall", "SHT", "13.40", "16", "upo", "38", "upm", "10", "46.50");
}
QStringList Compound() {
  return Block("Compound", "PL", "17.80", "460", "upo", ".008", "mpu", "5", "48.00");
}

}  // namespace tamo::test
