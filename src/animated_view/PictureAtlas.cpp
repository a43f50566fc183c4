#include "animated_view/PictureAtlas.h"

#include <QImage>
#include <QOpenGLExtraFunctions>
#include <algorithm>
#include <iterator>

namespace lurkwell {

SlotAllocator::SlotAllocator(int pageWidth, int pageHeight, int rowHeight, int mostPages)
    : mPageWidth(pageWidth),
      mPageHeight(pageHeight),
      mRowHeight(rowHeight),
      mMostPages(mostPages) {}

bool SlotAllocator::AddPage() {
  if (mPages == mMostPages) return false;
  for (int y = 0; y + mRowHeight <= mPageHeight; y += mRowHeight) {
    mRows.push_back({mPages, y, {}});
    AddFree(static_cast<int>(mRows.size()) - 1, 0, mPageWidth);
  }
  ++mPages;
  return true;
}

void SlotAllocator::AddFree(int row, int x, int width) {
  mRows[static_cast<std::size_t>(row)].free[x] = width;
  mFree.emplace(width, row, x);
}

void SlotAllocator::RemoveFree(int row, int x, int width) {
  mRows[static_cast<std::size_t>(row)].free.erase(x);
  mFree.erase({width, row, x});
}

std::optional<SlotAllocator::Slot> SlotAllocator::Take(int width) {
  if (width < 1 || width > mPageWidth) return {};
  auto best = mFree.lower_bound({width, 0, 0});
  if (best == mFree.end()) {
    if (!AddPage()) return {};
    best = mFree.lower_bound({width, 0, 0});
  }
  const auto [freeWidth, row, x] = *best;
  RemoveFree(row, x, freeWidth);
  if (freeWidth > width) AddFree(row, x + width, freeWidth - width);
  const auto& home = mRows[static_cast<std::size_t>(row)];
  return Slot{home.page, x, home.y, width};
}

void SlotAllocator::GiveBack(const Slot& slot) {
  const int row = slot.page * (mPageHeight / mRowHeight) + slot.y / mRowHeight;
  auto& free = mRows[static_cast<std::size_t>(row)].free;
  int x = slot.x;
  int width = slot.width;
  if (const auto after = free.find(x + width); after != free.end()) {
    width += after->second;
    RemoveFree(row, after->first, after->second);
  }
  if (auto before = free.lower_bound(x); before != free.begin()) {
    before = std::prev(before);
    if (before->first + before->second == x) {
      x = before->first;
      width += before->second;
      RemoveFree(row, before->first, before->second);
    }
  }
  AddFree(row, x, width);
}

namespace {

/// Every driver that is served has at least so many layers.
constexpr int kMostPages = 256;
constexpr int kMostOldErrors = 16;

QImage AsImage(const Picture& picture) {
  return QImage(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                picture.height, qsizetype{4} * picture.width, QImage::Format_ARGB32_Premultiplied);
}

bool IsSound(const Picture* picture) {
  return picture != nullptr && picture->width > 0 && picture->height > 0 &&
         picture->pixels.size() ==
             static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
}

Picture ScaledTo(const Picture& picture, int width, int height) {
  const QImage image =
      AsImage(picture).scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  Picture scaled{width, height, {}};
  scaled.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
    scaled.pixels.insert(scaled.pixels.end(), row, row + width);
  }
  return scaled;
}

Picture CutTo(const Picture& picture, int width, int height) {
  Picture cut{width, height, {}};
  for (int y = 0; y < height; ++y) {
    const auto* row = picture.pixels.data() +
                      static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
    cut.pixels.insert(cut.pixels.end(), row, row + width);
  }
  return cut;
}

}  // namespace

std::vector<std::uint8_t> TexturePixels(const Picture& picture, int maxAlpha) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(picture.pixels.size() * 4);
  const auto limit = static_cast<std::uint32_t>(std::clamp(maxAlpha, 0, 255));
  for (const std::uint32_t pixel : picture.pixels) {
    const std::uint32_t alpha = pixel >> 24;
    const auto limited = [&](std::uint32_t shift) {
      const std::uint32_t value = (pixel >> shift) & 0xff;
      if (alpha <= limit) return static_cast<std::uint8_t>(value);
      // The straight colour is value / alpha; it is now multiplied with the limit instead.
      return static_cast<std::uint8_t>((value * limit + alpha / 2) / alpha);
    };
    bytes.insert(bytes.end(), {limited(16), limited(8), limited(0),
                               static_cast<std::uint8_t>(std::min(alpha, limit))});
  }
  return bytes;
}

PictureAtlas::PictureAtlas(const Shape& shape)
    : mShape(shape), mSlots(shape.pageWidth, shape.pageHeight, shape.rowHeight, kMostPages) {}

PictureAtlas::Handle PictureAtlas::Acquire(const std::shared_ptr<const Picture>& picture) {
  if (!IsSound(picture.get())) return 0;
  if (const auto known = mByPicture.find(picture.get()); known != mByPicture.end()) {
    ++mEntries[known->second - 1].users;
    return known->second;
  }
  const bool exact = mShape.fit == Fit::kExact;
  const auto slot =
      mSlots.Take(exact ? std::min(picture->width, mShape.pageWidth) : mShape.pageWidth);
  if (!slot) return 0;
  if (mUnused.empty()) {
    mEntries.emplace_back();
    mUnused.push_back(static_cast<Handle>(mEntries.size()));
  }
  const Handle handle = mUnused.back();
  mUnused.pop_back();
  mEntries[handle - 1] = {picture, *slot, 1};
  mByPicture.emplace(picture.get(), handle);
  mPending.push_back(handle);
  return handle;
}

void PictureAtlas::Release(Handle handle) {
  if (handle == 0 || handle > mEntries.size()) return;
  auto& entry = mEntries[handle - 1];
  if (entry.users == 0 || --entry.users > 0) return;
  mSlots.GiveBack(entry.slot);
  mByPicture.erase(entry.picture.get());
  entry.picture.reset();
  mUnused.push_back(handle);
}

std::optional<PictureAtlas::Place> PictureAtlas::PlaceOf(Handle handle) const {
  if (handle == 0 || handle > mEntries.size() || mEntries[handle - 1].users == 0) return {};
  const auto& [picture, slot, users] = mEntries[handle - 1];
  const int height = std::min(picture->height, mShape.rowHeight);
  const int drawnHeight = mShape.fit == Fit::kExact ? height : mShape.rowHeight;
  const auto across = static_cast<float>(mShape.pageWidth);
  const auto down = static_cast<float>(mShape.pageHeight);
  return Place{static_cast<float>(slot.x) / across,
               static_cast<float>(slot.y) / down,
               static_cast<float>(slot.x + slot.width) / across,
               static_cast<float>(slot.y + drawnHeight) / down,
               static_cast<float>(slot.page),
               mShape.fit == Fit::kExact ? slot.width : picture->width,
               height};
}

bool PictureAtlas::Upload(QOpenGLExtraFunctions& gl) {
  if (mTexturePages < std::max(mSlots.Pages(), 1) && !MakeTexture(gl)) return false;
  gl.glBindTexture(GL_TEXTURE_2D_ARRAY, mTexture);
  if (mPending.empty()) return true;
  for (const Handle handle : mPending) {
    const auto& entry = mEntries[handle - 1];
    if (entry.users > 0) UploadOne(gl, entry);
  }
  mPending.clear();
  if (mShape.fit == Fit::kScaled) gl.glGenerateMipmap(GL_TEXTURE_2D_ARRAY);
  return true;
}

bool PictureAtlas::MakeTexture(QOpenGLExtraFunctions& gl) {
  Destroy(gl);
  // A context that is lost has errors without end.
  for (int i = 0; i < kMostOldErrors && gl.glGetError() != GL_NO_ERROR; ++i) {
  }
  // Room for some more, so that this is rare.
  const int pages = std::min(kMostPages, std::max(1, mSlots.Pages() + mSlots.Pages() / 2));
  const bool exact = mShape.fit == Fit::kExact;
  gl.glGenTextures(1, &mTexture);
  gl.glBindTexture(GL_TEXTURE_2D_ARRAY, mTexture);
  const auto set = [&](GLenum name, GLint value) {
    gl.glTexParameteri(GL_TEXTURE_2D_ARRAY, name, value);
  };
  set(GL_TEXTURE_MIN_FILTER, exact ? GL_NEAREST : GL_LINEAR_MIPMAP_NEAREST);
  set(GL_TEXTURE_MAG_FILTER, exact ? GL_NEAREST : GL_LINEAR);
  set(GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
  set(GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  gl.glTexImage3D(GL_TEXTURE_2D_ARRAY, 0, GL_RGBA8, mShape.pageWidth, mShape.pageHeight, pages, 0,
                  GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
  if (gl.glGetError() != GL_NO_ERROR) {
    Destroy(gl);
    return false;
  }
  mTexturePages = pages;
  mPending.clear();
  for (const auto& [picture, handle] : mByPicture) mPending.push_back(handle);
  return true;
}

void PictureAtlas::UploadOne(QOpenGLExtraFunctions& gl, const Entry& entry) const {
  const bool exact = mShape.fit == Fit::kExact;
  const int width = entry.slot.width;
  const int height = exact ? std::min(entry.picture->height, mShape.rowHeight) : mShape.rowHeight;
  const bool fits = entry.picture->width == width && entry.picture->height == height;
  Picture made;
  if (!fits)
    made = exact ? CutTo(*entry.picture, width, height) : ScaledTo(*entry.picture, width, height);
  const auto bytes = TexturePixels(fits ? *entry.picture : made, mShape.maxAlpha);
  gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  gl.glTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, entry.slot.x, entry.slot.y, entry.slot.page, width,
                     height, 1, GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
}

void PictureAtlas::Forget() {
  mTexture = 0;
  mTexturePages = 0;
}

void PictureAtlas::Destroy(QOpenGLExtraFunctions& gl) {
  if (mTexture != 0) gl.glDeleteTextures(1, &mTexture);
  Forget();
}

}  // namespace lurkwell
