#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "platform/IconServices.h"

class QOpenGLExtraFunctions;

namespace lurkwell {

/// Hands out pieces of rows of equal height on pages of equal size, in time that grows with the
/// logarithm of what is handed out. Any one thread at a time.
class SlotAllocator {
 public:
  struct Slot {
    int page = 0;
    int x = 0;
    int y = 0;
    int width = 0;
  };

  /// All in pixels; a page has at least one row. Not more than `mostPages` are used.
  SlotAllocator(int pageWidth, int pageHeight, int rowHeight, int mostPages);

  /// A piece of that width, from 1 to the page's; nothing when all pages are full.
  std::optional<Slot> Take(int width);
  void GiveBack(const Slot& slot);

  /// Pages that have been begun; they stay.
  int Pages() const { return mPages; }

 private:
  struct Row {
    int page;
    int y;
    /// Free pieces: where each begins, and its width.
    std::map<int, int> free;
  };

  bool AddPage();
  void AddFree(int row, int x, int width);
  void RemoveFree(int row, int x, int width);

  int mPageWidth;
  int mPageHeight;
  int mRowHeight;
  int mMostPages;
  int mPages = 0;
  std::vector<Row> mRows;
  /// Width, row, beginning: the smallest piece that fits is found without walking.
  std::set<std::tuple<int, int, int>> mFree;
};

/// The bytes R, G, B, A of a picture no pixel of which is more opaque than `maxAlpha` (0 to 255);
/// the colours are multiplied with that alpha.
std::vector<std::uint8_t> TexturePixels(const Picture& picture, int maxAlpha);

/// Pictures as parts of one texture with layers. A picture that several users have is there once;
/// its place becomes free with its last user. Acquiring and releasing need no context and may be
/// done on any thread; Upload, Forget and Destroy belong to the thread that draws. The caller sees
/// to it that one thread at a time is inside.
class PictureAtlas {
 public:
  /// Stands for a picture; 0 is none.
  using Handle = std::uint32_t;

  enum class Fit {
    kExact,   ///< drawn pixel by pixel: a picture keeps its size, what is too large is cut off
    kScaled,  ///< drawn at any size: a picture fills a page
  };
  struct Shape {
    int pageWidth;
    int pageHeight;
    int rowHeight;
    Fit fit;
    int maxAlpha;
  };

  /// Where a picture lies: its corners from 0 to 1, its layer, and its own size in pixels.
  struct Place {
    float left = 0, top = 0, right = 0, bottom = 0;
    float layer = 0;
    int width = 0, height = 0;
  };

  explicit PictureAtlas(const Shape& shape);

  /// 0 when there is no picture, or no room for it. Each handle is released once per acquiring.
  Handle Acquire(const std::shared_ptr<const Picture>& picture);
  void Release(Handle handle);
  /// Nothing for a handle that is not in use.
  std::optional<Place> PlaceOf(Handle handle) const;
  std::size_t Count() const { return mByPicture.size(); }

  /// Makes the texture hold what was acquired, and binds it to the active unit's array target.
  /// False when the driver has no memory for it.
  bool Upload(QOpenGLExtraFunctions& gl);
  /// The context has gone with all that it had; the next upload begins anew.
  void Forget();
  void Destroy(QOpenGLExtraFunctions& gl);

 private:
  struct Entry {
    std::shared_ptr<const Picture> picture;
    SlotAllocator::Slot slot;
    int users = 0;
  };

  bool MakeTexture(QOpenGLExtraFunctions& gl);
  void UploadOne(QOpenGLExtraFunctions& gl, const Entry& entry) const;

  Shape mShape;
  SlotAllocator mSlots;
  /// A handle is its entry's index and 1.
  std::vector<Entry> mEntries;
  std::vector<Handle> mUnused;
  std::unordered_map<const Picture*, Handle> mByPicture;
  std::vector<Handle> mPending;
  std::uint32_t mTexture = 0;
  int mTexturePages = 0;
};

}  // namespace lurkwell
