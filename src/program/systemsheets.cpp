#include "program/systemsheets.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "export/safefile.h"
#include "export/tableformats.h"

namespace tamo {
namespace {

constexpr qsizetype kMostLines = 15;  // of a message

QString Listed(QStringList lines) {
  const qsizetype more = lines.size() - kMostLines;
  if (more > 0) lines = lines.mid(0, kMostLines) << QStringLiteral("... and %1 more").arg(more);
  return lines.join(QLatin1Char('\n'));
}

QString Counted(qsizetype count, const char* one, const char* many) {
  return QString::number(count) + QLatin1Char(' ') + QLatin1String(count == 1 ? one : many);
}

const QStringList kSheets = {QStringLiteral("Spreadsheet (*.xlsx)"),
                             QStringLiteral("Comma separated values (*.csv)")};

}  // namespace

void SystemSheets::Bind() {
  pricing_.SaveSystems.onClick = [this] { Save(); };
  pricing_.TakeSystems.onClick = [this] { Take(); };
}

void SystemSheets::Save() {
  if (!onChoose) return;
  Messages& messages = kit_.desk.GetMessages();
  const QString path =
      onChoose({true, QStringLiteral("Save Systems As"), QStringLiteral("Systems"), kSheets});
  if (path.isEmpty()) return;
  const QString ending = EndingOf(path);
  if (ending != QLatin1String("xlsx") && ending != QLatin1String("csv")) {
    return messages.Tell(
        QStringLiteral("%1 says by its ending no format of a sheet. Let it end in .xlsx or .csv.")
            .arg(path));
  }
  if (kit_.platform.disk.Exists(path) &&
      !messages.Ask(QStringLiteral("%1 is there already. Replace it?").arg(path)))
    return;
  QStringList problems;
  const int error = MakeFileSafely(kit_.platform.disk, path, [&](ByteSink& sink) {
    const auto file = NewTableFile(ending, sink, QStringLiteral("Systems"));
    problems = WriteSystemSheet(kit_.files, kit_.shared, *file);
    return file->Finish();
  });
  if (error != kNoError) {
    messages.Tell(QStringLiteral("%1 could not be saved, because %2. What was there before is "
                                 "unchanged. Choose another folder.")
                      .arg(path, WriteReason(error)));
  } else if (!problems.isEmpty()) {
    messages.Tell(QStringLiteral("%1 is saved, without some systems:\n%2")
                      .arg(FileNameOf(path), Listed(problems)));
  }
}

void SystemSheets::Take() {
  if (!onChoose) return;
  Messages& messages = kit_.desk.GetMessages();
  const QString path =
      onChoose({false,
                QStringLiteral("Take Systems from a Sheet"),
                {},
                {QStringLiteral("Sheets (*.xlsx *.csv)"), QStringLiteral("All files (*)")}});
  if (path.isEmpty()) return;
  QByteArray bytes;
  const int error = kit_.platform.disk.Size(path) > kMostSheetBytes
                        ? kTooLarge
                        : kit_.platform.disk.Read(path, bytes);
  if (error != kNoError) {
    return messages.Tell(QStringLiteral("%1 can't be read, because %2. Nothing was changed.")
                             .arg(path, ReadReasonText(error)));
  }
  const SystemSheet sheet = ReadSystemSheet(ReadSheetRows(bytes), kit_.files, kit_.shared);
  if (!sheet.problems.isEmpty()) {
    return messages.Tell(QStringLiteral("%1 was not taken, and nothing was changed:\n%2")
                             .arg(FileNameOf(path), Listed(sheet.problems)));
  }
  Offer(FileNameOf(path), sheet);
}

// A system that is open in the price library would be stored again over what the sheet brings.
bool SystemSheets::Waits(const SystemSheet& sheet) const {
  const QString open = pricing_.Description.Text();
  return pricing_.FramePricing.Shown() && pricing_.Visible() &&
         std::any_of(sheet.systems.begin(), sheet.systems.end(), [&](const SystemFile& system) {
           return system.description.compare(open, Qt::CaseInsensitive) == 0;
         });
}

void SystemSheets::Offer(const QString& name, const SystemSheet& sheet) {
  Messages& messages = kit_.desk.GetMessages();
  if (sheet.systems.empty()) {
    return messages.Tell(QStringLiteral("%1 changes nothing: the library has its %2 just so.")
                             .arg(name, Counted(sheet.same, "system", "systems")));
  }
  if (Waits(sheet)) {
    return messages.Tell(
        QStringLiteral("The system \"%1\" is open in Unit Pricing, and %2 would change it. Finish "
                       "it first; nothing was changed.")
            .arg(pricing_.Description.Text(), name));
  }
  const auto added = sheet.newNames.size();
  const auto changed = static_cast<qsizetype>(sheet.systems.size()) - added;
  if (!messages.Ask(QStringLiteral("%1 adds %2 to the library and changes %3; %4 as they are.\n"
                                   "%5\n\nThe bids keep their own copies. Take it over?")
                        .arg(name, Counted(added, "system", "systems"), QString::number(changed),
                             Counted(sheet.same, "stays", "stay"), Listed(sheet.changes))))
    return;
  StoreSystemSheet(sheet, kit_.files, kit_.shared);
  if (!onNewSystem) return;
  for (const QString& system : sheet.newNames) onNewSystem(system);
}

}  // namespace tamo
