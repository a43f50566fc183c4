#pragma once

#include <memory>
#include <string_view>

#include "platform/IconServices.h"

class QImage;

namespace lurkwell {

/// Pictures made with Qt, for the animated view. Main thread; a QGuiApplication exists.

/// The pixels of an image; null for an empty one.
std::shared_ptr<const Picture> PictureFromImage(const QImage& image);

/// A name to read over a picture: light letters on a dark rounded shape. `pixelRatio` is the number
/// of pixels per point; every small label of a ratio is as high as LabelHeight says. What is wider
/// than some 20 letters is cut in the middle. Otherwise than `small`: large red letters on white,
/// 200 points high.
std::shared_ptr<const Picture> ConvertCStringToNSImage(std::string_view text, bool small,
                                                       double pixelRatio);

/// In pixels.
int LabelHeight(double pixelRatio);

}  // namespace lurkwell
