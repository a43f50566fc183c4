#include "animated_view/FrameRenderer.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lurkwell {
namespace {

constexpr int kFrameIconSide = 256;
constexpr int kMarkSide = 256;
constexpr int kLabelPageWidth = 2048;
constexpr int kLabelPageHeight = 256;
constexpr int kIconAlpha = 224;
constexpr int kLabelAlpha = 160;
/// Of the lines, over what lies behind them; with hundreds of processes they must not hide it.
constexpr float kConnectorAlpha = 0.45F;

constexpr char kPictureVertices[] = R"(
layout(location = 0) in vec4 rect;      // left, top, right, bottom in pixels from the top left
layout(location = 1) in vec4 texture_rect;
layout(location = 2) in float layer;
uniform vec2 view_size;
out vec3 texture_place;
void main() {
  vec2 corner = vec2(float(gl_VertexID & 1), float(gl_VertexID >> 1));
  vec2 place = mix(rect.xy, rect.zw, corner) / view_size;
  gl_Position = vec4(place.x * 2.0 - 1.0, 1.0 - place.y * 2.0, 0.0, 1.0);
  texture_place = vec3(mix(texture_rect.xy, texture_rect.zw, corner), layer);
}
)";

constexpr char kPictureFragments[] = R"(
in vec3 texture_place;
uniform sampler2DArray pictures;
uniform float opacity;
out vec4 colour;
void main() {
  colour = texture(pictures, texture_place) * opacity;
}
)";

// A pixel wider on each side, where the line's edge fades.
constexpr char kConnectorVertices[] = R"(
layout(location = 0) in vec4 ends;      // x, y, x, y in pixels from the top left
uniform vec2 view_size;
uniform float half_width;
out float from_middle;
void main() {
  vec2 along = ends.zw - ends.xy;
  float length_along = max(length(along), 0.001);
  vec2 across = vec2(-along.y, along.x) / length_along;
  float side = float(gl_VertexID & 1) * 2.0 - 1.0;
  from_middle = side * (half_width + 1.0);
  vec2 place = (mix(ends.xy, ends.zw, float(gl_VertexID >> 1)) + across * from_middle) / view_size;
  gl_Position = vec4(place.x * 2.0 - 1.0, 1.0 - place.y * 2.0, 0.0, 1.0);
}
)";

constexpr char kConnectorFragments[] = R"(
in float from_middle;
uniform float half_width;
uniform vec4 line_colour;
out vec4 colour;
void main() {
  colour = line_colour * clamp(half_width + 0.5 - abs(from_middle), 0.0, 1.0);
}
)";

std::unique_ptr<PictureAtlas> LabelAtlas(int height) {
  return std::make_unique<PictureAtlas>(
      PictureAtlas::Shape{kLabelPageWidth, std::max(kLabelPageHeight, height), height,
                          PictureAtlas::Fit::kExact, kLabelAlpha});
}

/// How much of a ring of unit radius covers a place at that distance from its middle.
double RingCover(double distance) {
  constexpr double kInner = 0.86;
  constexpr double kOuter = 0.97;
  constexpr double kSoft = 0.025;
  const double ring = std::clamp((distance - kInner) / kSoft, 0.0, 1.0) *
                      std::clamp((kOuter - distance) / kSoft, 0.0, 1.0);
  const double glow = distance < kOuter ? 0.3 * std::clamp((distance - 0.5) / 0.5, 0.0, 1.0) : 0.0;
  return std::max(ring, glow);
}

/// An amber ring that stays visible on whatever is behind.
std::shared_ptr<const Picture> Ring() {
  Picture picture{kMarkSide, kMarkSide, {}};
  for (int y = 0; y < kMarkSide; ++y) {
    for (int x = 0; x < kMarkSide; ++x) {
      const double half = kMarkSide / 2.0;
      const double cover = RingCover(std::hypot(x + 0.5 - half, y + 0.5 - half) / half);
      const auto part = [&](double full) { return static_cast<std::uint32_t>(full * cover); };
      picture.pixels.push_back(part(255) << 24 | part(255) << 16 | part(190) << 8 | part(30));
    }
  }
  return std::make_shared<const Picture>(std::move(picture));
}

/// Those that are marked come last, above the others.
template <typename Add>
void AddMarkedLast(std::span<const DrawnProcess> processes, Add add) {
  for (const bool marked : {false, true})
    for (const auto& process : processes)
      if ((process.markSide > 0) == marked) add(process);
}

}  // namespace

LabelCorner CornerOfLabel(double x, double y, int labelWidth, int labelHeight, int viewWidth,
                          int viewHeight) {
  // Texel on pixel: a label begins at a whole pixel.
  const double left = std::floor((x + 1) / 2 * viewWidth - labelWidth / 2.0 + 0.5);
  const double top = std::floor((1 - y) / 2 * viewHeight - labelHeight / 2.0 + 0.5);
  return {std::clamp(left, 0.0, std::max(0.0, static_cast<double>(viewWidth - labelWidth))),
          std::clamp(top, 0.0, std::max(0.0, static_cast<double>(viewHeight - labelHeight)))};
}

FrameRenderer::FrameRenderer()
    : mIcons(
          {kFrameIconSide, kFrameIconSide, kFrameIconSide, PictureAtlas::Fit::kScaled, kIconAlpha}),
      mMarks({kMarkSide, kMarkSide, kMarkSide, PictureAtlas::Fit::kScaled, 255}),
      mMark(mMarks.Acquire(Ring())),
      mLabels(LabelAtlas(32)),
      mPictureProgram(kPictureVertices, kPictureFragments, 9),
      mConnectorProgram(kConnectorVertices, kConnectorFragments, 4) {}

FrameRenderer::~FrameRenderer() = default;

void FrameRenderer::SetLabelHeight(int pixels) {
  mOldAtlases.push_back(std::exchange(mLabels, LabelAtlas(std::max(1, pixels))));
}

void FrameRenderer::SetBackground(std::shared_ptr<const Picture> picture) {
  mBackground = std::move(picture);
  mBackgroundAlpha = -1;
}

bool FrameRenderer::Prepare(QOpenGLContext& context, const FrameLook& look) {
  auto& gl = *context.extraFunctions();
  mLook = look;
  for (const auto& atlas : mOldAtlases) atlas->Destroy(gl);
  mOldAtlases.clear();
  if (!mMade) {
    if (!mPictureProgram.Make(context) || !mConnectorProgram.Make(context)) return false;
    mMade = true;
  }
  if (mBackgroundAlpha == look.backgroundAlpha) return true;
  mBackgroundAlpha = look.backgroundAlpha;
  if (mBackgroundAtlas) mBackgroundAtlas->Destroy(gl);
  mBackgroundAtlas.reset();
  if (mBackground == nullptr) return true;
  const int width = mBackground->width;
  const int height = mBackground->height;
  mBackgroundAtlas = std::make_unique<PictureAtlas>(
      PictureAtlas::Shape{width, height, height, PictureAtlas::Fit::kScaled, look.backgroundAlpha});
  mBackgroundHandle = mBackgroundAtlas->Acquire(mBackground);
  return true;
}

bool FrameRenderer::Draw(QOpenGLContext& context, const FrameLook& look,
                         std::span<const DrawnProcess> processes) {
  if (!Prepare(context, look)) return false;
  auto& gl = *context.extraFunctions();
  const float ground = look.whiteGround ? look.opacity : 0.0F;
  gl.glViewport(0, 0, look.width, look.height);
  gl.glClearColor(ground, ground, ground, ground);
  gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  gl.glDisable(GL_DEPTH_TEST);
  gl.glDisable(GL_CULL_FACE);
  gl.glEnable(GL_BLEND);
  gl.glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
  gl.glActiveTexture(GL_TEXTURE0);
  if (!DrawBackground(gl)) return false;
  if (look.drawConnectors) DrawConnectors(gl, processes);
  const bool drawn =
      DrawIcons(gl, processes) && DrawMarks(gl, processes) && DrawLabels(gl, processes);
  gl.glBindVertexArray(0);
  return drawn;
}

bool FrameRenderer::DrawBackground(QOpenGLExtraFunctions& gl) {
  if (mBackgroundAtlas == nullptr) return true;
  mNumbers.clear();
  if (const auto place = mBackgroundAtlas->PlaceOf(mBackgroundHandle))
    AddPicture(*place, 0, 0, mLook.width, mLook.height);
  return DrawPictures(gl, *mBackgroundAtlas);
}

void FrameRenderer::DrawConnectors(QOpenGLExtraFunctions& gl,
                                   std::span<const DrawnProcess> processes) {
  mNumbers.clear();
  const auto pixelsX = [&](double x) { return static_cast<float>((x + 1) / 2 * mLook.width); };
  const auto pixelsY = [&](double y) { return static_cast<float>((1 - y) / 2 * mLook.height); };
  for (const auto& process : processes) {
    if (process.parent < 0) continue;
    const auto& parent = processes[static_cast<std::size_t>(process.parent)];
    mNumbers.insert(mNumbers.end(),
                    {pixelsX(process.x), pixelsY(process.y), pixelsX(parent.x), pixelsY(parent.y)});
  }
  const auto& program = mConnectorProgram;
  program.Use(gl);
  gl.glUniform2f(program.Uniform(gl, "view_size"), static_cast<float>(mLook.width),
                 static_cast<float>(mLook.height));
  gl.glUniform1f(program.Uniform(gl, "half_width"), mLook.connectorWidth / 2);
  const float alpha = kConnectorAlpha * mLook.opacity;
  const float grey = mLook.connectorGrey * alpha;
  gl.glUniform4f(program.Uniform(gl, "line_colour"), grey, grey, alpha, alpha);
  program.DrawInstances(gl, mNumbers.data(), mNumbers.size() / 4);
}

bool FrameRenderer::DrawIcons(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes) {
  mNumbers.clear();
  AddMarkedLast(processes, [this](const DrawnProcess& process) {
    if (const auto place = mIcons.PlaceOf(process.icon))
      AddSquare(*place, process, process.iconSide);
  });
  return DrawPictures(gl, mIcons);
}

bool FrameRenderer::DrawMarks(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes) {
  mNumbers.clear();
  const auto place = mMarks.PlaceOf(mMark);
  for (const auto& process : processes)
    if (place && process.markSide > 0) AddSquare(*place, process, process.markSide);
  return DrawPictures(gl, mMarks);
}

bool FrameRenderer::DrawLabels(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes) {
  mNumbers.clear();
  AddMarkedLast(processes, [this](const DrawnProcess& process) {
    const auto place = mLabels->PlaceOf(process.label);
    if (!place || !process.labelIsShown) return;
    const auto [left, top] = CornerOfLabel(process.labelX, process.labelY, place->width,
                                           place->height, mLook.width, mLook.height);
    AddPicture(*place, left, top, left + place->width, top + place->height);
  });
  return DrawPictures(gl, *mLabels);
}

void FrameRenderer::AddSquare(const PictureAtlas::Place& place, const DrawnProcess& process,
                              double side) {
  const double x = (process.x + 1) / 2 * mLook.width;
  const double y = (1 - process.y) / 2 * mLook.height;
  AddPicture(place, x - side / 2, y - side / 2, x + side / 2, y + side / 2);
}

void FrameRenderer::AddPicture(const PictureAtlas::Place& place, double left, double top,
                               double right, double bottom) {
  mNumbers.insert(mNumbers.end(), {static_cast<float>(left), static_cast<float>(top),
                                   static_cast<float>(right), static_cast<float>(bottom),
                                   place.left, place.top, place.right, place.bottom, place.layer});
}

bool FrameRenderer::DrawPictures(QOpenGLExtraFunctions& gl, PictureAtlas& atlas) {
  if (!atlas.Upload(gl)) return false;
  const auto& program = mPictureProgram;
  program.Use(gl);
  gl.glUniform2f(program.Uniform(gl, "view_size"), static_cast<float>(mLook.width),
                 static_cast<float>(mLook.height));
  gl.glUniform1i(program.Uniform(gl, "pictures"), 0);
  gl.glUniform1f(program.Uniform(gl, "opacity"), mLook.opacity);
  program.DrawInstances(gl, mNumbers.data(), mNumbers.size() / 9);
  return true;
}

void FrameRenderer::Forget() {
  mMade = false;
  mPictureProgram.Forget();
  mConnectorProgram.Forget();
  mIcons.Forget();
  mMarks.Forget();
  mLabels->Forget();
  mOldAtlases.clear();
  if (mBackgroundAtlas) mBackgroundAtlas->Forget();
}

void FrameRenderer::Destroy(QOpenGLContext& context) {
  auto& gl = *context.extraFunctions();
  mPictureProgram.Destroy(gl);
  mConnectorProgram.Destroy(gl);
  mIcons.Destroy(gl);
  mMarks.Destroy(gl);
  mLabels->Destroy(gl);
  for (const auto& atlas : mOldAtlases) atlas->Destroy(gl);
  if (mBackgroundAtlas) mBackgroundAtlas->Destroy(gl);
  Forget();
}

}  // namespace lurkwell
