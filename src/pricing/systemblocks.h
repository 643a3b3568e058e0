#pragma once

#include <QString>
#include <QStringList>

#include "common/control.h"
#include "records/materialblock.h"

namespace tamo {

// The materials of the open system: their rows in System, twelve each, and their names in
// MaterialList. The name at k is that of rows 12k to 12k+11 at every moment, also of a place that
// was inserted and is not filled yet. One row more may wait at the end of the names for the next
// material; it has no rows yet.
//
// A place is a material's number, from 0.
class SystemBlocks {
 public:
  // Both lists outlive this.
  SystemBlocks(OrderedList& rows, OrderedList& names) : rows_(rows), names_(names) {}

  void Take(const QStringList& rows);  // all materials anew; none is selected
  void Clear() { Take({}); }

  int Count() const;
  bool Empty() const { return rows_.Empty(); }
  QStringList Rows() const { return rows_.Rows(); }
  MaterialBlock At(int place) const;  // empty when there is none
  // A material stands there, more than an inserted place for one.
  bool Holds(int place) const { return !At(place).material.isEmpty(); }
  // Where the material in work stands, or will stand: the selected row, or behind the last one.
  int Place() const { return names_.Index() >= 0 ? names_.Index() : Count(); }

  // Writes the block; at Count() a new one.
  void Put(int place, const MaterialBlock& block);
  void SetTag(int place, int tagRow, const QString& tag);  // kUpoTagRow or kMnhrTagRow
  void InsertPlace(int place);                             // and selects it
  void Delete(int place);                                  // selects none
  // On to the next one: the row behind the selected one, or an empty row for a new material. True
  // when a row stood behind it.
  bool SelectNext();
  // Rows that no meaning is known of are empty in a saved material.
  void EmptySpareRows();

 private:
  void FillUpTo(int rows);

  OrderedList& rows_;
  OrderedList& names_;
};

}  // namespace tamo
