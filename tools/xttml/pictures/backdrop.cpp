#include "tools/xttml/pictures/backdrop.h"

#include "render/layer_painting.h"
#include "tools/xttml/document/input_file.h"
#include "tools/xttml/document/unusable_file.h"

#include <algorithm>

namespace xttml {

namespace {

constexpr std::int32_t square = 16; // px, of a checkerboard
constexpr render::Color lightSquare = {153, 153, 153, 255};
constexpr render::Color darkSquare = {102, 102, 102, 255};

std::shared_ptr<const render::Picture> ReadFrame(const std::string& path) {
    const std::string file = ReadFile(path, render::largestCache);
    render::Picture picture =
        render::DecodePicture(reinterpret_cast<const std::uint8_t*>(file.data()), file.size());
    if (!picture.surface)
        throw UnusableFile(path, picture.fault);
    return std::make_shared<const render::Picture>(std::move(picture));
}

void PaintCheckerboard(Drawing& drawing, render::Size size) {
    drawing.Clear(darkSquare);
    for (std::int32_t top = 0; top < size.height; top += square) {
        for (std::int32_t left = top % (2 * square); left < size.width; left += 2 * square)
            drawing.Fill({left + 0.0, top + 0.0, left + 0.0 + square, top + 0.0 + square}, lightSquare);
    }
}

} // namespace

Backdrop::Backdrop(const PictureLook& look)
    : background_(look.background), frame_(look.frame.empty() ? nullptr : ReadFrame(look.frame)) {}

std::optional<render::Size> Backdrop::FrameSize() const {
    return frame_ ? std::optional(render::Size{frame_->width, frame_->height}) : std::nullopt;
}

void Backdrop::Paint(const render::Frame& frame) const {
    Drawing drawing(frame);
    const render::Size size = {frame.width, frame.height};
    if (background_.isCheckerboard)
        PaintCheckerboard(drawing, size);
    else
        drawing.Clear(ColorOf(background_.color));
    if (!frame_)
        return;
    const render::Box place = render::RootMapping(size, *FrameSize()).RootArea();
    if (!place.IsEmpty())
        render::Paint(drawing.Target(), render::PlacedPicture{place, place, frame_});
}

} // namespace xttml
