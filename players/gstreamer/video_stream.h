// What comes in on the video pad and goes out on the source pad.
#ifndef XTTML_PLAYERS_GSTREAMER_VIDEO_STREAM_H
#define XTTML_PLAYERS_GSTREAMER_VIDEO_STREAM_H

#include "players/gstreamer/mini_object.h"
#include "players/gstreamer/negotiation.h"
#include "players/gstreamer/picture.h"
#include "players/gstreamer/settings.h"
#include "players/gstreamer/text_track.h"

#include <gst/video/video.h>
#include <memory>
#include <optional>

namespace xttml::gstreamer {

/// The element's pads, which own themselves.
struct Pads {
    GstPad* video;
    GstPad* text;
    GstPad* source;
};

/// Puts what is on screen over the frames. Whatever fails is a warning on the bus, and the frame goes out as
/// it is.
class VideoStream {
public:
    /// All of them outlive it.
    VideoStream(GstElement* element, const Pads& pads, Settings& settings, TextTrack& track);

    GstFlowReturn Chain(Held<GstBuffer> frame);
    bool HandleEvent(Held<GstEvent> event);
    /// Forgets documents and pictures.
    void Reset();

private:
    /// When a frame is shown, ns.
    struct Moment {
        GstClockTime running;
        GstClockTime stream;
    };

    bool TakeCaps(GstEvent* event);
    bool NegotiateAnew();
    std::optional<Moment> MomentOf(const GstBuffer* frame) const;
    GstVideoOverlayComposition* PictureFor(const GstBuffer* frame);
    Picture* PictureOf(const std::shared_ptr<const Document>& document);
    void ReadLocation(bool isTrusted);
    Held<GstBuffer> PutOver(Held<GstBuffer> frame, GstVideoOverlayComposition* picture);
    void Blend(GstBuffer* frame, GstVideoOverlayComposition* picture);

    GstElement* element_;
    Pads pads_;
    Settings& settings_;
    TextTrack& track_;
    GstSegment segment_;
    GstVideoInfo info_;
    Way way_ = Way::BLENDED;
    std::shared_ptr<const Document> location_;
    std::shared_ptr<const Document> drawn_; ///< which picture_ draws, or which cannot be drawn
    std::optional<Picture> picture_;
};

} // namespace xttml::gstreamer

#endif
