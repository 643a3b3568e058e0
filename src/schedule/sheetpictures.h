#pragma once

#include "schedule/pictureprogram.h"
#include "schedule/readaside.h"

namespace tamo {

// Puts the words of a scanned sheet into its content. The program outlives it.
class SheetPictures {
 public:
  explicit SheetPictures(const PictureProgram& program) : program_(program) {}
  bool Ready() const { return program_.Here(); }

  // In place of what text there is in the sheet's box, or on all of it. Empty when it is done; or
  // why not, in plain words. Not on the windows' thread.
  QString ReadInto(PageContent& page, const SheetToRead& sheet, CancelFlag& stop) const;

 private:
  const PictureProgram& program_;
};

// What was read from a picture is sure nowhere.
void MarkAllUnsure(std::vector<ScheduleTable>& tables);

// Reads a sheet as ReadAside does. Where it is a picture and `pictures` can read it, `ask` is
// called with the question whether it should, on the thread of the caller. `pictures` may be null.
SheetRead ReadOrOffer(SheetToRead sheet, const std::shared_ptr<const SheetPictures>& pictures,
                      const std::function<bool(const QString& question)>& ask,
                      const std::function<bool(int done, int all)>& progress);

}  // namespace tamo
