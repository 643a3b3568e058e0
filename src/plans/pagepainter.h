#pragma once

#include <memory>

#include "plans/mark.h"
#include "plans/muworld.h"
#include "plans/picture.h"

namespace tamo {

// Stops a page that is being read or painted, from any thread, within about a millisecond.
class PaintStop {
 public:
  PaintStop();
  ~PaintStop();
  PaintStop(const PaintStop&) = delete;
  PaintStop& operator=(const PaintStop&) = delete;
  void Stop();
  bool Stopped() const;
  void* Cookie() { return cookie_.get(); }  // the engine's own

 private:
  std::shared_ptr<void> cookie_;
};

// All a page shows, read once and painted many times, by any thread: its contents and the
// annotations of others. The marks of this program are left out.
class PageList {
 public:
  PageList(std::shared_ptr<MuWorld> world, void* list, PageSize size);
  ~PageList();
  PageList(const PageList&) = delete;
  PageList& operator=(const PageList&) = delete;
  PageSize Size() const { return size_; }
  void* List() const { return list_; }

 private:
  std::shared_ptr<MuWorld> world_;
  void* list_;
  PageSize size_;
};

// A rectangle of a page in pixels of the whole page, scaled and turned.
struct PaintPart {
  double pixelsPerPoint = 1;
  int turn = 0;  // 0, 90, 180, 270
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool coarse = false;  // fewer shades at the edges, twice as fast
};

// The pages of a plan as one thread reads them.
class PageSource {
 public:
  PageSource(fz_context* context, std::shared_ptr<MuWorld> world,
             const std::shared_ptr<ReaderSlot>& slot, const QByteArray& password);
  ~PageSource();
  PageSource(const PageSource&) = delete;
  PageSource& operator=(const PageSource&) = delete;

  // Null when the page can't be read or was stopped; `page` counts from 1.
  std::shared_ptr<PageList> Read(int page, PaintStop& stop);

 private:
  fz_context* context_;
  std::shared_ptr<MuWorld> world_;
  void* document_ = nullptr;
};

// False when it was stopped or there is no memory; `picture` is then of no use.
bool PaintPage(fz_context* context, const PageList& list, const PaintPart& part, PaintStop& stop,
               Picture& picture);

}  // namespace tamo
