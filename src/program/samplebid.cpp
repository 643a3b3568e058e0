#include "program/samplebid.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "records/datafolder.h"
#include "records/projectlist.h"

namespace tamo {
namespace {

// Lists of names: those that are missing are added.
bool IsNameList(const QString& name) {
  for (const char* list : {"Descriptions.tamo", "Units.tamo", "oUnits.tamo", "Materials.tamo",
                           "Wages.tamo", "Items.tamo", "Areas.tamo", "Jobs.lst"}) {
    if (name == QLatin1String(list)) return true;
  }
  return false;
}

class SampleCopy {
 public:
  SampleCopy(const Kit& kit, QString from) : kit_(kit), from_(std::move(from)) {}

  // Everything below the folder `path`, "" for the top.
  void Folder(const QString& path) {
    Disk& disk = kit_.platform.disk;
    for (const QString& name : disk.Names(from_ + path)) {
      const QString below = path + name;
      if (disk.IsFolder(from_ + below)) {
        const QString inner = below + kit_.shared.Separator;
        kit_.files.MakeFolder(kit_.shared.DataPath + inner);
        Folder(inner);
      } else if (path.isEmpty() && IsNameList(name)) {
        AddNames(below);
      } else {
        File(below);
      }
    }
  }
  const QString& Problem() const { return problem_; }

 private:
  void File(const QString& path) {
    const QString target = kit_.shared.DataPath + path;
    if (kit_.files.Exists(target)) return;
    QByteArray bytes;
    int error = kit_.platform.disk.Read(from_ + path, bytes);
    if (error == kNoError) error = kit_.files.ReplaceFile(target, bytes);
    Told(path, error);
  }

  void AddNames(const QString& path) {
    QString text;
    QStringList names;
    Told(path, kit_.files.ReadStored(from_ + path, text));
    const QString target = kit_.shared.DataPath + path;
    const int error = kit_.files.ReadLines(target, names);
    if (error != kNoError && !IsMissing(error)) return Told(path, error);
    const QStringList base = names;
    for (const QString& name : WholeLines(text)) {
      if (!names.contains(name)) names += name;
    }
    if (names != base)
      Told(path, kit_.files.SaveLines(target, names, FileKind::List, JoinedLines(base)));
  }

  void Told(const QString& path, int error) {
    if (error != kNoError && error != kNotConfirmed && problem_.isEmpty())
      problem_ = QStringLiteral("%1: %2").arg(path, ReasonText(error));
  }

  const Kit& kit_;
  const QString from_;  // with its separator
  QString problem_;
};

}  // namespace

QString CopySampleBid(const Kit& kit, QString& problem) {
  const QString& cut = kit.shared.Separator;
  const QString from =
      kit.shared.zDir + cut + QStringLiteral("Sample") + cut + QStringLiteral("Tamo") + cut;
  QString list;
  if (kit.files.ReadStored(kit.files.Resolved(from + QStringLiteral("Jobs.lst")), list) !=
      kNoError) {
    problem = QStringLiteral("The sample bid is not in the program folder %1.").arg(from);
    return {};
  }
  const QString entry = WholeLines(list).value(0);
  QStringList known;
  ReadProjectList(kit.files, kit.shared, known);
  QString id = IdOfEntry(entry);
  if (known.contains(entry)) return id;
  for (const QString& other : known) {
    if (IdOfEntry(other) != id) continue;
    problem = QStringLiteral(
                  "The project \"%1\" of this data folder has the number of the sample "
                  "bid. Choose another data folder in Settings for the sample.")
                  .arg(NameOfEntry(other));
    return {};
  }
  MakeDataFolders(kit.files, kit.shared);
  SampleCopy copy(kit, from);
  copy.Folder({});
  problem = copy.Problem();
  return id;
}

}  // namespace tamo
