#pragma once

#include <mupdf/fitz.h>

#include <atomic>

#include "plans/pagecontent.h"

namespace tamo {

// Gathers what a page draws instead of painting it: a device of the engine that only writes down.
class ContentGatherer {
 public:
  // All three outlive it. `page` is the visible part of the page.
  ContentGatherer(PageContent& content, const PageBox& page, const std::atomic<bool>* cancel,
                  fz_cookie& cookie);
  ContentGatherer(const ContentGatherer&) = delete;
  ContentGatherer& operator=(const ContentGatherer&) = delete;

  // To be called inside a try of the engine. The gatherer outlives the device.
  fz_device* NewDevice(fz_context* context, bool textsOnly);

  enum class TextUse { Filled, Stroked, CutOut, Hidden };
  struct Ink {
    unsigned colour = 0;  // 0xRRGGBB
    double alpha = 1;
  };

  // --- What the device tells
  void TakePath(fz_context* context, const fz_path* path, fz_matrix place, PathPiece piece);
  void TakeText(fz_context* context, const fz_text* text, fz_matrix place, Ink ink, TextUse use);
  void TakePicture(PicturePiece::Kind kind, fz_rect area, int width, int height);
  void PushClip(fz_rect area);
  void PopClip();
  void BeginAside() { ++aside_; }  // what comes is no content of the page: a mask, a pattern's cell
  void EndAside() { --aside_; }
  // Whether it goes on; checked before each piece.
  bool GoesOn();

 private:
  // A text that is filled, then stroked, then cut out is one text.
  bool SameTextAgain(const fz_text* text, TextUse use);

  PageContent& content_;
  std::vector<PageBox> clips_;
  const std::atomic<bool>* cancel_;
  fz_cookie& cookie_;
  int aside_ = 0;
  size_t kept_ = 0;  // steps of paths and letters
  const fz_text* lastText_ = nullptr;
  TextUse lastUse_ = TextUse::Filled;
  float lastX_ = 0;
  float lastY_ = 0;
};

}  // namespace tamo
