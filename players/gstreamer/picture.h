// A document drawn for frames of a size.
#ifndef XTTML_PLAYERS_GSTREAMER_PICTURE_H
#define XTTML_PLAYERS_GSTREAMER_PICTURE_H

#include "players/gstreamer/document.h"
#include "players/gstreamer/mini_object.h"
#include "render/renderer.h"

#include <cstdint>
#include <gst/video/video.h>
#include <memory>

namespace xttml::gstreamer {

/// A frame, and the size that a viewer sees it in: they differ where pixels are not square.
struct Canvas {
    render::Size frame; ///< px of the video
    render::Size seen;  ///< square px; neither side is smaller than the frame's
};

/// The canvas of a video. Throws nothing.
Canvas CanvasOf(const GstVideoInfo& video);

/// What a document shows, drawn when it changes.
class Picture {
public:
    /// Throws std::invalid_argument for a canvas that is too large.
    Picture(std::shared_ptr<const Document> document, const Canvas& canvas);

    /// The document that is drawn.
    const std::shared_ptr<const Document>& Drawn() const { return document_; }

    /// What to put over a frame; null: nothing. Valid until the next call.
    /// @param time ms of the document
    /// @param forcedOnly only what is shown while subtitles are off
    GstVideoOverlayComposition* At(std::int32_t time, bool forcedOnly);

private:
    void Change(std::int32_t time, bool forcedOnly);
    Held<GstVideoOverlayComposition> Compose();
    Held<GstVideoOverlayRectangle> CutOut(const std::uint32_t* pixels, const GstVideoRectangle& area) const;
    GstVideoRectangle InFrame(const GstVideoRectangle& area) const;

    std::shared_ptr<const Document> document_;
    Canvas canvas_;
    render::Renderer renderer_;
    Held<GstVideoOverlayComposition> composition_;
    std::int64_t since_ = 0; ///< the picture is that of the times from here, ms,
    std::int64_t until_ = 0; ///< to here, exclusively
    bool forcedOnly_ = false;
};

} // namespace xttml::gstreamer

#endif
