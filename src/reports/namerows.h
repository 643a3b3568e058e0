#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <unordered_map>
#include <vector>

namespace tamo {

// Names in order of first appearance, each found at once by its exact, case-sensitive text. It owns
// its names; row numbers stay valid.
class NameRows {
 public:
  int Count() const { return static_cast<int>(names_.size()); }
  const QString& At(int row) const { return names_[static_cast<size_t>(row)]; }
  int Find(QStringView name) const {  // -1 when it is new
    const auto found = rows_.find(name);
    return found == rows_.end() ? -1 : found->second;
  }
  int Add(QStringView name) {
    names_.push_back(name.toString());
    // The characters of a name stay where they are when the list of names grows.
    rows_.emplace(QStringView(names_.back()), Count() - 1);
    return Count() - 1;
  }

 private:
  struct Hash {
    size_t operator()(QStringView name) const { return qHash(name); }
  };
  std::vector<QString> names_;
  std::unordered_map<QStringView, int, Hash> rows_;
};

}  // namespace tamo
