#include "engine/mupdfpictures.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>

namespace tamo {
namespace {

constexpr size_t kLeastKept = size_t(1) << 20;   // bytes of samples
constexpr size_t kMostKept = size_t(160) << 20;  // of all pictures together

// What is kept of a picture. Lives as long as the picture does.
struct Kept {
  fz_compressed_buffer* packed = nullptr;  // the picture's own
  std::mutex decoding;
  fz_image* plain = nullptr;  // the same picture over its samples
  size_t bytes = 0;           // of them
  bool cut = false;           // its data ended early
  bool inVain = false;        // it can't be unpacked
};

std::mutex table;
std::map<fz_image*, Kept*> pictures;
std::atomic<size_t> keptBytes = 0;
std::mutex sharedDecoder;
// The engine's own, the same for all pictures made from packed data.
std::atomic<fz_image_get_pixmap_fn*> decode = nullptr;
std::atomic<fz_drop_image_fn*> drop = nullptr;

Kept* KeptOf(fz_image* image) {
  const std::lock_guard<std::mutex> guard(table);
  const auto found = pictures.find(image);
  return found == pictures.end() ? nullptr : found->second;
}

void Drop(fz_context* context, fz_image* image) {
  Kept* kept = nullptr;
  {
    const std::lock_guard<std::mutex> guard(table);
    const auto found = pictures.find(image);
    kept = found->second;
    pictures.erase(found);
  }
  fz_drop_image(context, kept->plain);
  keptBytes -= kept->bytes;
  delete kept;
  drop.load()(context, image);
}

size_t SamplesOf(const fz_image* image) {
  const size_t row = (size_t(image->w) * image->n * image->bpc + 7) / 8;
  return row * size_t(image->h);
}

bool Keepable(const fz_image* image, int type) {
  const bool stream = type == FZ_IMAGE_FAX || type == FZ_IMAGE_FLATE || type == FZ_IMAGE_LZW ||
                      type == FZ_IMAGE_RLD || type == FZ_IMAGE_JBIG2 || type == FZ_IMAGE_JPEG;
  const bool matte = image->use_colorkey && image->mask != nullptr;
  const size_t size = SamplesOf(image);
  return stream && !matte && size >= kLeastKept && size <= kMostKept;
}

// The samples of a picture, unpacked; throws as the engine does.
fz_buffer* Unpack(fz_context* context, Kept* kept, size_t size) {
  fz_stream* stream = nullptr;
  unsigned char* samples = nullptr;
  fz_buffer* buffer = nullptr;
  fz_var(stream);
  fz_var(samples);
  fz_var(buffer);
  fz_try(context) {
    samples = static_cast<unsigned char*>(fz_malloc(context, size));
    int shrink = 0;
    stream = fz_open_image_decomp_stream_from_buffer(context, kept->packed, &shrink);
    const size_t got = fz_read(context, stream, samples, size);
    kept->cut = got < size;
    std::fill(samples + got, samples + size, 0);
    buffer = fz_new_buffer_from_data(context, samples, size);  // takes them, also when it fails
    samples = nullptr;
  }
  fz_always(context) fz_drop_stream(context, stream);
  fz_catch(context) {
    fz_free(context, samples);
    fz_rethrow(context);
  }
  return buffer;
}

fz_image* PlainOver(fz_context* context, fz_image* image, fz_buffer* samples) {
  auto* data =
      static_cast<fz_compressed_buffer*>(fz_calloc(context, 1, sizeof(fz_compressed_buffer)));
  data->buffer = samples;
  data->params.type = FZ_IMAGE_RAW;
  fz_image* plain = fz_new_image_from_compressed_buffer(
      context, image->w, image->h, image->bpc, image->colorspace, image->xres, image->yres,
      image->interpolate, image->imagemask, image->use_decode ? image->decode : nullptr,
      image->use_colorkey ? image->colorkey : nullptr, data, nullptr);
  std::copy(std::begin(image->decode), std::end(image->decode), plain->decode);
  plain->use_decode = image->use_decode;
  return plain;
}

void Keep(fz_context* context, fz_image* image, Kept* kept) {
  const size_t size = SamplesOf(image);
  if (keptBytes + size > kMostKept) fz_shrink_store(context, 0);
  if (keptBytes + size > kMostKept) return;
  const bool shared = kept->packed->params.type == FZ_IMAGE_JBIG2;
  if (shared) sharedDecoder.lock();
  fz_try(context) {
    kept->plain = PlainOver(context, image, Unpack(context, kept, size));
    kept->bytes = size;
    keptBytes += size;
  }
  fz_always(context) {
    if (shared) sharedDecoder.unlock();
  }
  fz_catch(context) kept->inVain = true;
}

// The picture over its samples, null when they are not kept.
fz_image* PlainOf(fz_context* context, fz_image* image, Kept* kept) {
  if (!Keepable(image, kept->packed->params.type)) return nullptr;
  kept->decoding.lock();
  if (kept->plain == nullptr && !kept->inVain) Keep(context, image, kept);
  fz_image* plain = kept->plain;
  const bool cut = kept->cut;
  kept->decoding.unlock();
  if (cut) fz_warn(context, "padding truncated image");
  return plain;
}

fz_pixmap* DecodeAlone(fz_context* context, fz_image* image, fz_irect* part, int width, int height,
                       int* shrink) {
  fz_pixmap* pixmap = nullptr;
  fz_var(pixmap);
  sharedDecoder.lock();
  fz_try(context) pixmap = decode.load()(context, image, part, width, height, shrink);
  fz_always(context) sharedDecoder.unlock();
  fz_catch(context) fz_rethrow(context);
  return pixmap;
}

fz_pixmap* DecodeOnce(fz_context* context, fz_image* image, fz_irect* part, int width, int height,
                      int* shrink) {
  Kept* kept = KeptOf(image);
  const int type = kept->packed->params.type;
  // A photograph is decoded small faster than it is made small.
  const bool small = type == FZ_IMAGE_JPEG && shrink != nullptr && *shrink > 0;
  fz_image* plain = small ? nullptr : PlainOf(context, image, kept);
  if (plain != nullptr) return decode.load()(context, plain, part, width, height, shrink);
  if (type == FZ_IMAGE_JBIG2) return DecodeAlone(context, image, part, width, height, shrink);
  return decode.load()(context, image, part, width, height, shrink);
}

}  // namespace

void PreparePicture(fz_context* context, fz_image* image) {
  if (image == nullptr) return;
  PreparePicture(context, image->mask);
  if (image->get_pixmap == DecodeOnce) return;
  fz_compressed_buffer* packed = fz_compressed_image_buffer(context, image);
  if (packed == nullptr) return;
  decode = image->get_pixmap;
  drop = image->drop_image;
  {
    const std::lock_guard<std::mutex> guard(table);
    auto* kept = new Kept;
    kept->packed = packed;
    pictures[image] = kept;
  }
  image->get_pixmap = DecodeOnce;
  image->drop_image = Drop;
}

}  // namespace tamo
