#include "takeoff/takeoffbench.h"

#include <QDir>
#include <QFile>

namespace tamo::test {

TakeoffTest::TakeoffTest() {
  desk.onRest = [this] { back.EndEvent(); };
  data = folder.path() + QStringLiteral("/Tamo/");
  shared.DataPath = data;
  disk.quick = true;
  shared.GUIText = QStringLiteral("1");
  shared.DriveBy = QStringLiteral("False");
  MakeSystem(QStringLiteral("Wall Paint"), QStringLiteral("SF"));
  MakeSystem(QStringLiteral("Rubber Base"), QStringLiteral("LF"), QStringLiteral("010020030"));
  MakeSystem(QStringLiteral("HM Door"), QStringLiteral("EA"));
  MakeSystem(QStringLiteral("ACT Ceiling"), QStringLiteral("sf"), QStringLiteral("short"));
  MakeSystem(QStringLiteral("Carpet"), QStringLiteral("SY"));
  Write(Data(QStringLiteral("Descriptions.tamo")),
        {QStringLiteral("Wall Paint"), QStringLiteral("Rubber Base"), QStringLiteral("HM Door"),
         QStringLiteral("ACT Ceiling"), QStringLiteral("Carpet")});
  OpenProject(QStringLiteral("00-2112001"));
}

void TakeoffTest::OpenProject(const QString& id) {
  shared.JobID = id;
  for (const char* name : {"Rooms", "ATOs", "Systems"}) QDir().mkpath(Project(QLatin1String(name)));
}

void TakeoffTest::Enter(TextField& field, const QString& text) {
  desk.ClickInto(field);
  Enter(text);
}

void TakeoffTest::Enter(const QString& text) {
  auto* field = dynamic_cast<TextField*>(desk.Focused());
  ASSERT_NE(field, nullptr);
  field->SelectAll();
  if (text.isEmpty()) desk.PressKey(*field, Key::Named(Key::Name::Delete));
  desk.TypeText(*field, text);
  Press(Key::Name::Enter);
}

void TakeoffTest::Press(Key::Name name) {
  ASSERT_NE(desk.Focused(), nullptr);
  desk.PressKey(*desk.Focused(), Key::Named(name));
}

void TakeoffTest::Type(const QString& text) {
  ASSERT_NE(desk.Focused(), nullptr);
  desk.TypeText(*desk.Focused(), text);
}

void TakeoffTest::EnterRoom(const QString& room, const QStringList& systemsAndAreas,
                            const QString& height) {
  Enter(rfs.Room, room);
  for (qsizetype i = 0; i + 1 < systemsAndAreas.size(); i += 2) {
    ASSERT_EQ(FocusName(), QStringLiteral("RFSForm.Description"));
    Enter(systemsAndAreas[i]);
    ASSERT_EQ(FocusName(), QStringLiteral("RFSForm.Area"));
    Enter(systemsAndAreas[i + 1]);
  }
  Enter(QString());
  ASSERT_EQ(FocusName(), QStringLiteral("RFSForm.How"));
  Enter(height);
}

void TakeoffTest::Write(const QString& path, const QStringList& lines) {
  QByteArray bytes;
  for (const QString& line : lines) bytes += line.toUtf8() + "\r\n";
  WriteRaw(path, bytes);
}

void TakeoffTest::WriteRaw(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QStringList TakeoffTest::Lines(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {QStringLiteral("(no file)")};
  QString text = QString::fromUtf8(file.readAll());
  EXPECT_TRUE(text.isEmpty() || text.endsWith(QStringLiteral("\r\n")));
  QStringList lines = text.split(QStringLiteral("\r\n"));
  lines.removeLast();
  return lines;
}

void TakeoffTest::MakeSystem(const QString& name, const QString& unit, const QString& colour) {
  Write(Data(QStringLiteral("Systems/") + name + QStringLiteral(".sys")),
        {name, unit, QStringLiteral("1.00"), colour, QString(), QStringLiteral("\x01"), QString(),
         QString()});
}

QString TakeoffTest::FocusName() const {
  return desk.Focused() == nullptr ? QStringLiteral("none") : desk.Focused()->FullName();
}

QStringList TakeoffTest::TakeMessages() {
  QStringList shown;
  shown.swap(messages.texts);
  messages.shown.clear();
  return shown;
}

}  // namespace tamo::test
