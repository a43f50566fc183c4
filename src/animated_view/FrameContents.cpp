#include "animated_view/FrameContents.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <unordered_map>
#include <vector>

namespace lurkwell {
namespace {

/// Fewer have room for all labels, or nearly so.
constexpr std::size_t kCrowd = 100;
/// Less than a process that does something weighs more than one that does nothing.
constexpr double kPreference = 0.15;

/// A view without an extent on an axis is measured in whole views there.
double Scale(double extent) {
  return extent < 0.001 ? 1.0 : 1.0 / extent;
}

double Drawn(double layout) {
  return 2.0 * (layout - 0.5);
}

/// To a whole pixel of the view, which goes from -1 to 1.
float Snapped(double layout, double pixels) {
  return static_cast<float>(Drawn(std::floor(layout * pixels + 0.5) / pixels));
}

void SnapLabel(QuintessentialInformationProcessInfo& info, const ViewSize& size) {
  const double width = std::max(1, size.PixelWidth());
  const double height = std::max(1, size.PixelHeight());
  const bool moved = std::abs(Drawn(info.x) - static_cast<double>(info.labelX)) * width / 2 > 1 ||
                     std::abs(Drawn(info.y) - static_cast<double>(info.labelY)) * height / 2 > 1;
  if (!moved) return;
  info.labelX = Snapped(info.x, width);
  info.labelY = Snapped(info.y, height);
}

/// Wider than the icon, and never a mere dot.
double MarkSide(double iconSide, double pixelRatio) {
  return iconSide * 1.15 + 10 * pixelRatio;
}

LabelBox BoxOf(const QuintessentialInformationProcessInfo& info, const ViewMarks& marks,
               const ViewSize& size) {
  const auto& picture = *info.labelImage;
  const auto [left, top] =
      CornerOfLabel(static_cast<double>(info.labelX), static_cast<double>(info.labelY),
                    picture.width, picture.height, size.PixelWidth(), size.PixelHeight());
  constexpr double kBeforeAllOthers = 1000;
  LabelBox box{static_cast<int>(left), static_cast<int>(top), picture.width, picture.height,
               info.weight + (info.labelIsShown ? kPreference : 0.0)};
  if (marks.selected.contains(info.pid)) box.importance += kBeforeAllOthers;
  if (info.pid == marks.pointedAt) box.importance += 2 * kBeforeAllOthers;
  return box;
}

/// In a crowd labels give way to those that matter more.
void ChooseLabels(QipiList& list, const ViewMarks& marks, const ViewSize& size) {
  std::vector<QuintessentialInformationProcessInfo*> labelled;
  std::vector<LabelBox> boxes;
  for (auto& info : list) {
    if (info.labelImage == nullptr) continue;
    labelled.push_back(&info);
    boxes.push_back(BoxOf(info, marks, size));
  }
  const auto shown = WhichLabelsStand(boxes, size.PixelWidth(), size.PixelHeight());
  for (std::size_t i = 0; i < labelled.size(); ++i) labelled[i]->labelIsShown = shown[i];
}

}  // namespace

int ViewSize::PixelWidth() const {
  return static_cast<int>(std::lround(width * pixelRatio));
}

int ViewSize::PixelHeight() const {
  return static_cast<int>(std::lround(height * pixelRatio));
}

void InitializeOpenGLProcessInfo(QipiList& list, FrameRenderer& renderer) {
  for (auto& info : list) {
    if (info.texturesReady) continue;
    if (info.iconTexture == 0) info.iconTexture = renderer.Icons().Acquire(info.iconImage);
    if (info.labelTexture == 0) info.labelTexture = renderer.Labels().Acquire(info.labelImage);
    // What finds no room is tried again: others make some when they go.
    info.texturesReady = (info.iconTexture != 0 || info.iconImage == nullptr) &&
                         (info.labelTexture != 0 || info.labelImage == nullptr);
  }
}

void FindWhatIsDrawn(QipiList& list, const QuintessentialDrawingSettings& settings,
                     const ViewMarks& marks, ViewMode mode, const ViewSize& size,
                     std::vector<DrawnProcess>& processes) {
  std::unordered_map<std::int32_t, std::int32_t> places;
  places.reserve(list.size());
  std::int32_t at = 0;
  for (const auto& info : list) places.emplace(info.pid, at++);
  double side = settings.iconScale * Scale(size.width) * size.PixelWidth() / 2;
  if (mode != ViewMode::kWindow) side *= settings.fullscreenExtraScale;
  processes.clear();
  for (auto& info : list) {
    SnapLabel(info, size);
    if (list.size() < kCrowd) info.labelIsShown = true;
  }
  if (list.size() >= kCrowd) ChooseLabels(list, marks, size);
  for (auto& info : list) {
    const auto parent = places.find(info.parentPid);
    const bool hasParent = parent != places.end() && info.parentPid != info.pid;
    const double iconSide = info.weight * side;
    const bool isMarked = marks.selected.contains(info.pid);
    processes.push_back({Drawn(info.x), Drawn(info.y), iconSide, hasParent ? parent->second : -1,
                         info.iconTexture, info.labelTexture, static_cast<double>(info.labelX),
                         static_cast<double>(info.labelY), info.labelIsShown,
                         isMarked ? MarkSide(iconSide, size.pixelRatio) : 0.0});
  }
}

FrameLook LookOf(const QuintessentialDrawingSettings& settings, ViewMode mode,
                 const ViewSize& size) {
  const bool overlay = mode == ViewMode::kOverlay;
  FrameLook look;
  look.width = size.PixelWidth();
  look.height = size.PixelHeight();
  look.whiteGround = !overlay;
  // Not a number counts as nothing.
  const double alpha = settings.underlayAlpha > 0 ? std::min(settings.underlayAlpha, 1.0) : 0.0;
  if (overlay) look.backgroundAlpha = static_cast<int>(255 * alpha);
  look.drawConnectors =
      settings.drawConnectors && (mode == ViewMode::kWindow || settings.drawConnectorsFullscreen);
  look.connectorGrey = mode == ViewMode::kWindow ? 0.85F : 0.95F;
  look.connectorWidth = static_cast<float>(2.5 * size.pixelRatio);
  return look;
}

namespace {

/// About as large as a label.
constexpr int kCellWidth = 64;
constexpr int kCellHeight = 16;
/// Labels are round at their ends and may touch.
constexpr int kTouch = 2;

/// The view in cells, each with the labels that stand in it.
class Cells {
 public:
  Cells(std::span<const LabelBox> labels, int width, int height)
      : mLabels(labels),
        mAcross(std::max(width, 0) / kCellWidth + 1),
        mDown(std::max(height, 0) / kCellHeight + 1),
        mStanding(static_cast<std::size_t>(mAcross) * static_cast<std::size_t>(mDown)) {}

  bool IsFree(std::size_t label) {
    return !Any(label, [&](const std::vector<std::size_t>& others) {
      return std::ranges::any_of(others, [&](auto other) { return Overlap(label, other); });
    });
  }
  void Stand(std::size_t label) {
    Any(label, [&](std::vector<std::size_t>& others) {
      others.push_back(label);
      return false;
    });
  }

 private:
  /// Whether it is so of any cell that the label lies in.
  template <typename Visit>
  bool Any(std::size_t label, Visit visit) {
    const auto& box = mLabels[label];
    const auto cell = [](int pixel, int size, int count) {
      return std::clamp(pixel / size, 0, count - 1);
    };
    for (int y = cell(box.top, kCellHeight, mDown);
         y <= cell(box.top + box.height, kCellHeight, mDown); ++y)
      for (int x = cell(box.left, kCellWidth, mAcross);
           x <= cell(box.left + box.width, kCellWidth, mAcross); ++x)
        if (visit(mStanding[static_cast<std::size_t>(y) * static_cast<std::size_t>(mAcross) +
                            static_cast<std::size_t>(x)]))
          return true;
    return false;
  }
  bool Overlap(std::size_t one, std::size_t other) const {
    const auto& a = mLabels[one];
    const auto& b = mLabels[other];
    return a.left + kTouch < b.left + b.width && b.left + kTouch < a.left + a.width &&
           a.top + kTouch < b.top + b.height && b.top + kTouch < a.top + a.height;
  }

  std::span<const LabelBox> mLabels;
  int mAcross;
  int mDown;
  std::vector<std::vector<std::size_t>> mStanding;
};

}  // namespace

std::vector<bool> WhichLabelsStand(std::span<const LabelBox> labels, int viewWidth,
                                   int viewHeight) {
  std::vector<std::size_t> order(labels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::ranges::greater{},
                           [&](std::size_t label) { return labels[label].importance; });
  std::vector<bool> stand(labels.size());
  Cells cells(labels, viewWidth, viewHeight);
  for (const auto label : order) {
    if (!cells.IsFree(label)) continue;
    cells.Stand(label);
    stand[label] = true;
  }
  return stand;
}

}  // namespace lurkwell
