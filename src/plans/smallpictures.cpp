#include "plans/smallpictures.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tamo {
namespace {

size_t BytesOf(const Picture& picture) {
  return picture.pixels.size() * sizeof(uint32_t);
}

}  // namespace

void SmallPictures::OfSize::Drop(std::list<Kept>::iterator which) {
  bytes -= BytesOf(*which->picture);
  places.erase(which->page);
  kept.erase(which);
}

SmallPictures::OfSize* SmallPictures::SizeOf(int side) {
  const auto found = std::find_if(sizes_.begin(), sizes_.end(),
                                  [side](const OfSize& size) { return size.side == side; });
  if (found == sizes_.end()) return nullptr;
  sizes_.splice(sizes_.begin(), sizes_, found);
  return &sizes_.front();
}

std::shared_ptr<const Picture> SmallPictures::Find(const SmallKey& key) {
  OfSize* size = SizeOf(key.side);
  if (size == nullptr) return nullptr;
  const auto place = size->places.find(key.page);
  if (place == size->places.end()) return nullptr;
  size->kept.splice(size->kept.begin(), size->kept, place->second);
  return size->kept.front().picture;
}

void SmallPictures::Keep(const SmallKey& key, std::shared_ptr<const Picture> picture) {
  if (picture == nullptr) return;
  OfSize* size = SizeOf(key.side);
  if (size == nullptr) {
    size = &sizes_.emplace_front();
    size->side = key.side;
    if (sizes_.size() > kMostSizes) sizes_.pop_back();
  }
  if (const auto place = size->places.find(key.page); place != size->places.end())
    size->Drop(place->second);
  size->bytes += BytesOf(*picture);
  size->kept.push_front({key.page, std::move(picture)});
  size->places[key.page] = size->kept.begin();
  while (size->bytes > kMostBytes && size->kept.size() > 1) size->Drop(std::prev(size->kept.end()));
}

}  // namespace tamo
