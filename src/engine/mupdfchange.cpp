#include <algorithm>
#include <utility>

#include "engine/mupdffileinner.h"

// What a save makes of the marks: new annotations, changed ones, pages without those that went.

namespace tamo {

PageRecord* MuPdfFile::Inner::PageOf(const Mark& mark) {
  const auto index = static_cast<size_t>(mark.page - 1);
  if (index >= pages.size() || pages[index].object <= 0) return nullptr;
  return &pages[pages[index].home];
}

// The place of a mark on its page, when it stands there.
FileMark* MuPdfFile::Inner::Standing(const Mark& mark) {
  PageRecord* page = PageOf(mark);
  if (page == nullptr) return nullptr;
  for (FileMark& known : page->own) {
    if (known.name == mark.name) return &known;
  }
  return nullptr;
}

// Takes marks off their pages; those pages are `touched`.
void MuPdfFile::Inner::Remove(const QSet<QString>& names, std::vector<bool>& touched) {
  if (names.isEmpty()) return;
  for (size_t i = 0; i < pages.size(); ++i) {
    const auto gone = std::erase_if(
        pages[i].own, [&](const FileMark& mark) { return names.contains(mark.name); });
    if (gone > 0) touched[i] = true;
  }
}

// The form and the annotation of a mark, the annotation as the object of its place.
bool MuPdfFile::Inner::Put(const Mark& mark, double markerSize, const FileMark& place,
                           std::vector<PdfObject>& objects) {
  const PageRecord& page = *PageOf(mark);
  const MarkObjects parts = MarkAsPdf(mark, markerSize, page.map);
  PdfObject form{place.form, 0, {}};
  bool good = EncryptedStream(form, parts.formEntries, parts.formContent);
  const QByteArray pageRef =
      QByteArray::number(page.object) + ' ' + QByteArray::number(page.generation) + " R";
  PdfObject annotation{place.object, place.generation, MarkAnnotation(parts, pageRef, place.form)};
  good = Encrypted(annotation) && good;
  objects.push_back(std::move(form));
  objects.push_back(std::move(annotation));
  return good;
}

// A mark that has changed stays the annotation that it was, so that what other readers hang on it
// stays with it.
bool MuPdfFile::Inner::Change(const MarkChanges& changes, std::vector<PdfObject>& objects) {
  std::vector<bool> touched(pages.size(), false);
  QSet<QString> gone(changes.removed.begin(), changes.removed.end());
  std::vector<std::pair<const Mark*, FileMark>> put;
  int next = end.nextObject;
  for (const Mark& mark : changes.added) {
    FileMark* stands = gone.contains(mark.name) ? Standing(mark) : nullptr;
    if (stands != nullptr) gone.remove(mark.name);
    if (stands == nullptr && PageOf(mark) == nullptr) return false;
    FileMark place = stands != nullptr ? *stands : FileMark{mark.name, 0, 0, 0};
    place.form = next++;
    if (stands == nullptr) place.object = next++;
    put.push_back({&mark, place});
  }
  Remove(gone, touched);
  bool good = true;
  for (const auto& [mark, place] : put) {
    if (place.object > place.form) {
      PageOf(*mark)->own.push_back(place);
      touched[pages[static_cast<size_t>(mark->page - 1)].home] = true;
    }
    good = Put(*mark, changes.markerSize, place, objects) && good;
  }
  for (size_t i = 0; i < pages.size(); ++i) {
    if (!touched[i]) continue;
    good = ReadPage(pages[i]) && good;
    objects.push_back({pages[i].object, pages[i].generation, PageBody(pages[i])});
  }
  return good;
}

}  // namespace tamo
