#include "players/gstreamer/picture.h"

#include "players/gstreamer/ink.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <utility>

namespace xttml::gstreamer {

namespace {

constexpr std::size_t pixelBytes = sizeof(std::uint32_t);

struct MemoryReleaser {
    void operator()(std::uint32_t* memory) const { std::free(memory); }
};
using Pixels = std::unique_ptr<std::uint32_t[], MemoryReleaser>;

// Fresh memory of the system: it costs what is drawn into it, not what it could hold.
Pixels TransparentPixels(const render::Size& size) {
    const std::size_t count = static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    Pixels pixels(static_cast<std::uint32_t*>(std::calloc(count, pixelBytes)));
    if (!pixels)
        throw std::bad_alloc();
    return pixels;
}

/// A copy of some of the pixels.
Held<GstBuffer> CopyOf(const std::uint32_t* pixels, std::int32_t rowPixels, const GstVideoRectangle& area) {
    const std::size_t rowBytes = static_cast<std::size_t>(area.w) * pixelBytes;
    const std::size_t size = rowBytes * static_cast<std::size_t>(area.h);
    Held<GstBuffer> buffer(gst_buffer_new_allocate(nullptr, size, nullptr));
    if (!buffer)
        throw std::bad_alloc();
    const std::uint32_t* row = pixels + static_cast<std::ptrdiff_t>(area.y) * rowPixels + area.x;
    for (std::size_t written = 0; written < size; written += rowBytes, row += rowPixels)
        gst_buffer_fill(buffer.get(), written, row, rowBytes);
    gst_buffer_add_video_meta(buffer.get(), GST_VIDEO_FRAME_FLAG_NONE,
                              GST_VIDEO_OVERLAY_COMPOSITION_FORMAT_RGB, static_cast<guint>(area.w),
                              static_cast<guint>(area.h));
    return buffer;
}

std::int32_t Stretched(std::int32_t side, std::int32_t by, std::int32_t of) {
    const guint64 stretched = gst_util_uint64_scale_int_round(static_cast<guint64>(side), by, of);
    return stretched > render::longestSide ? side : static_cast<std::int32_t>(stretched);
}

GstVideoRectangle ToRectangle(const render::Box& box) {
    return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.Width()),
            static_cast<int>(box.Height())};
}

} // namespace

Canvas CanvasOf(const GstVideoInfo& video) {
    const render::Size frame = {GST_VIDEO_INFO_WIDTH(&video), GST_VIDEO_INFO_HEIGHT(&video)};
    const std::int32_t across = std::max(1, GST_VIDEO_INFO_PAR_N(&video));
    const std::int32_t down = std::max(1, GST_VIDEO_INFO_PAR_D(&video));
    return across > down ? Canvas{frame, {Stretched(frame.width, across, down), frame.height}}
                         : Canvas{frame, {frame.width, Stretched(frame.height, down, across)}};
}

Picture::Picture(std::shared_ptr<const Document> document, const Canvas& canvas)
    : document_(std::move(document)), canvas_(canvas),
      renderer_(canvas.seen, document_->Root(), {render::Options().fontFamily, document_->Language()}) {}

GstVideoOverlayComposition* Picture::At(std::int32_t time, bool forcedOnly) {
    if (time < since_ || time >= until_ || forcedOnly != forcedOnly_)
        Change(time, forcedOnly);
    return composition_.get();
}

void Picture::Change(std::int32_t time, bool forcedOnly) {
    since_ = time;
    until_ = document_->NextChange(time);
    forcedOnly_ = forcedOnly;
    const std::vector<DisplayItem*> items = document_->OnScreen(time, forcedOnly);
    if (!renderer_.Show(items.data(), items.size()))
        return;
    composition_.reset();
    for (const render::Remark& remark : renderer_.Remarks())
        GST_INFO("item %" G_GSIZE_FORMAT " at %d ms: %s", remark.item, time, remark.reason.c_str());
    composition_ = Compose();
}

Held<GstVideoOverlayComposition> Picture::Compose() {
    const auto [width, height] = canvas_.seen;
    const Pixels pixels = TransparentPixels(canvas_.seen);
    const auto stride = static_cast<std::int32_t>(pixelBytes) * width;
    if (!renderer_.Draw({reinterpret_cast<std::uint8_t*>(pixels.get()), width, height, stride},
                        render::Ground::KEPT))
        throw std::runtime_error("the picture cannot be drawn");
    Held<GstVideoOverlayComposition> composition(gst_video_overlay_composition_new(nullptr));
    for (const GstVideoRectangle& band : InkBands(pixels.get(), width, ToRectangle(renderer_.Bounds()))) {
        if (const Held<GstVideoOverlayRectangle> rectangle = CutOut(pixels.get(), band))
            gst_video_overlay_composition_add_rectangle(composition.get(), rectangle.get());
    }
    return gst_video_overlay_composition_n_rectangles(composition.get()) == 0 ? nullptr
                                                                              : std::move(composition);
}

Held<GstVideoOverlayRectangle> Picture::CutOut(const std::uint32_t* pixels,
                                               const GstVideoRectangle& area) const {
    const GstVideoRectangle place = InFrame(area);
    if (place.w == 0 || place.h == 0)
        return nullptr;
    const Held<GstBuffer> buffer = CopyOf(pixels, canvas_.seen.width, area);
    return Held<GstVideoOverlayRectangle>(gst_video_overlay_rectangle_new_raw(
        buffer.get(), place.x, place.y, static_cast<guint>(place.w), static_cast<guint>(place.h),
        GST_VIDEO_OVERLAY_FORMAT_FLAG_PREMULTIPLIED_ALPHA));
}

GstVideoRectangle Picture::InFrame(const GstVideoRectangle& area) const {
    const auto scaled = [](int value, std::int32_t to, std::int32_t from) {
        return static_cast<int>((static_cast<std::int64_t>(value) * to + from / 2) / from);
    };
    const int left = scaled(area.x, canvas_.frame.width, canvas_.seen.width);
    const int top = scaled(area.y, canvas_.frame.height, canvas_.seen.height);
    return {left, top, scaled(area.x + area.w, canvas_.frame.width, canvas_.seen.width) - left,
            scaled(area.y + area.h, canvas_.frame.height, canvas_.seen.height) - top};
}

} // namespace xttml::gstreamer
