#pragma once

// The inside of MuPdfFile, shared by its two source files. Code between fz_try and fz_catch may be
// left by a jump, so it holds no local object with a destructor.

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <QSet>
#include <map>

#include "engine/mupdffile.h"
#include "plans/markpdf.h"
#include "plans/pdfappend.h"
#include "plans/planguide.h"

namespace tamo {

struct RawTarget;

// A mark of ours that stands in the file.
struct FileMark {
  QString name;
  int object = 0;
  int generation = 0;
  int form = 0;  // the form that shows it, while it is being written
};

struct PageRecord {
  int object = 0;
  int generation = 0;
  size_t home = 0;  // the first page that is the same object: it has the marks of both
  PageMap map;
  PageSize size;
  std::vector<FileMark> own;
  // What a save repeats of the page, read when the first mark on it is saved: the entries of its
  // dictionary but /Annots, and the annotations of others.
  bool read = false;
  QByteArray entries;
  QByteArray others;
};

struct MuPdfFile::Inner {
  fz_context* context = nullptr;
  std::shared_ptr<MuPdfContexts> contexts;
  std::shared_ptr<PlanSource> source;
  pdf_document* document = nullptr;
  std::vector<PageRecord> pages;
  PdfEnd end;
  PdfEnd endBefore;  // of the last addition, and the marks as they stood, to take it back
  std::vector<std::vector<FileMark>> ownBefore;
  mutable std::map<int, int> pageOfObject;  // pages from 1 by their objects, once it is asked for

  bool OpenDocument(const QByteArray& password, PlanContents& contents);
  void ReadPages();
  void ForgetObjects();  // when they take much memory; none may be held then
  void ReadMarks(size_t index, std::vector<Mark>& marks, QSet<QString>& names);
  bool ReadEnd();
  // What speaks against marking the plan, and what can't be saved of it.
  QString Reservation() const;
  QString Caution();
  bool ReadPage(PageRecord& page);
  bool ReadPageBytes(PageRecord& page);
  bool ReadOthers(PageRecord& page, QByteArray annotations);
  bool PrintPage(PageRecord& page);
  // An object as it stands in the file and can be repeated inside object `into`; empty when it
  // can't. More may follow it.
  QByteArray ObjectBytes(int number, int into);
  QByteArray PageBody(const PageRecord& page) const;
  bool Encrypted(PdfObject& object);
  bool EncryptedStream(PdfObject& object, const QByteArray& entries, const QByteArray& content);
  bool NeedsRewrite() const;
  PageRecord* PageOf(const Mark& mark);
  FileMark* Standing(const Mark& mark);
  void Remove(const QSet<QString>& names, std::vector<bool>& touched);
  bool Put(const Mark& mark, double markerSize, const FileMark& place,
           std::vector<PdfObject>& objects);
  // The way through the plan: mupdfguide.cpp, mupdflinks.cpp.
  void ReadLabels(PlanGuide& guide);
  void ReadBookmarks(PlanGuide& guide);
  void ReadLayers(PlanGuide& guide);
  int PageOf(const RawTarget& target) const;
  PlanTarget TargetOf(const RawTarget& raw) const;
  // The new and changed objects of a save.
  bool Change(const MarkChanges& changes, std::vector<PdfObject>& objects);
};

// The text of an engine's object as it stands in a file, encrypted as the document is.
QByteArray ObjectText(fz_context* context, pdf_obj* object, pdf_crypt* crypt, int number,
                      int generation);

// Whether an annotation is a mark of ours. Never throws.
bool IsOwnMark(fz_context* context, pdf_obj* annotation);

}  // namespace tamo
