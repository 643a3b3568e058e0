#pragma once

#include <array>
#include <vector>

#include "common/kit.h"
#include "common/suggestionindex.h"

namespace tamo {

// What a field names.
enum class NameKind { System, FinishArea, FreeArea, Room, Material, TakeoffUnit, OrderUnit, Last };

// How often names were used: by this run, in the fields that name them, and in the takeoff lines of
// the open project. Nothing of it is stored. The lines are read a few files at a time, so that no
// key ever waits for a large bid; what can't be read counts nothing, and is told elsewhere.
class UsesOfNames {
 public:
  explicit UsesOfNames(const Kit& kit) : kit_(kit) {}

  void Add(NameKind kind, const QString& name);
  // Reads on in the open project; from the beginning when it is another one.
  void ReadOn();
  const NameUses& Of(NameKind kind) const { return all_[static_cast<size_t>(kind)]; }

  static constexpr int kFilesAtOnce = 16;

 private:
  struct Sheet {
    QString path;
    bool room = false;
  };
  void BeginProject();
  void ReadSheet(const Sheet& sheet);
  void Count(NameKind kind, const QString& name);
  QString TextOf(const QString& path) const;

  using Kinds = std::array<NameUses, static_cast<size_t>(NameKind::Last)>;
  const Kit kit_;
  Kinds run_;
  Kinds all_;
  QString project_;
  std::vector<Sheet> left_;
};

}  // namespace tamo
