#include "players/gstreamer/video_stream.h"

#include "players/gstreamer/containment.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace xttml::gstreamer {

namespace {

/// The ms of a document at a stream time.
std::int32_t DocumentTime(GstClockTime stream, GstClockTimeDiff origin, std::int32_t offset) {
    const auto since = static_cast<GstClockTimeDiff>(stream - static_cast<GstClockTime>(origin)); // may wrap
    const auto nanoseconds = static_cast<GstClockTimeDiff>(GST_MSECOND);
    const GstClockTimeDiff floored = since / nanoseconds - (since % nanoseconds < 0 ? 1 : 0);
    using Range = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(floored - offset, Range::min(), Range::max()));
}

/// Beside the pictures that others have attached.
void Attach(GstBuffer* frame, GstVideoOverlayComposition* picture) {
    GstVideoOverlayCompositionMeta* const there = gst_buffer_get_video_overlay_composition_meta(frame);
    if (!there) {
        gst_buffer_add_video_overlay_composition_meta(frame, picture);
        return;
    }
    GstVideoOverlayComposition* const both = gst_video_overlay_composition_copy(there->overlay);
    for (guint i = 0; i < gst_video_overlay_composition_n_rectangles(picture); ++i)
        gst_video_overlay_composition_add_rectangle(both,
                                                    gst_video_overlay_composition_get_rectangle(picture, i));
    gst_video_overlay_composition_unref(std::exchange(there->overlay, both));
}

} // namespace

VideoStream::VideoStream(GstElement* element, const Pads& pads, Settings& settings, TextTrack& track)
    : element_(element), pads_(pads), settings_(settings), track_(track) {
    Reset();
}

void VideoStream::Reset() {
    gst_segment_init(&segment_, GST_FORMAT_UNDEFINED);
    gst_video_info_init(&info_);
    location_.reset();
    drawn_.reset();
    picture_.reset();
}

GstFlowReturn VideoStream::Chain(Held<GstBuffer> frame) {
    if (gst_pad_check_reconfigure(pads_.source) != 0 && !NegotiateAnew()) {
        gst_pad_mark_reconfigure(pads_.source);
        return GST_PAD_IS_FLUSHING(pads_.source) ? GST_FLOW_FLUSHING : GST_FLOW_NOT_NEGOTIATED;
    }
    GstVideoOverlayComposition* const nothing = nullptr;
    GstVideoOverlayComposition* const picture =
        Contain(element_, nothing, [&] { return PictureFor(frame.get()); });
    if (picture)
        frame = PutOver(std::move(frame), picture);
    return gst_pad_push(pads_.source, frame.release());
}

bool VideoStream::HandleEvent(Held<GstEvent> event) {
    switch (GST_EVENT_TYPE(event.get())) {
    case GST_EVENT_CAPS:
        return TakeCaps(event.get());
    case GST_EVENT_SEGMENT:
        gst_event_copy_segment(event.get(), &segment_);
        break;
    case GST_EVENT_FLUSH_START:
        track_.StopVideo();
        break;
    case GST_EVENT_FLUSH_STOP:
        gst_segment_init(&segment_, GST_FORMAT_UNDEFINED);
        track_.StartVideo();
        break;
    case GST_EVENT_STREAM_START:
        track_.StartVideo();
        break;
    case GST_EVENT_EOS:
        track_.EndVideo();
        break;
    default:
        break;
    }
    return gst_pad_push_event(pads_.source, event.release()) != 0;
}

bool VideoStream::TakeCaps(GstEvent* event) {
    GstCaps* caps = nullptr;
    gst_event_parse_caps(event, &caps);
    drawn_.reset();
    picture_.reset();
    gst_pad_check_reconfigure(pads_.source); // done with this
    return gst_video_info_from_caps(&info_, caps) != 0 && Negotiate(pads_.source, caps, way_);
}

bool VideoStream::NegotiateAnew() {
    const Held<GstCaps> caps(gst_pad_get_current_caps(pads_.video));
    return caps && Negotiate(pads_.source, caps.get(), way_);
}

std::optional<VideoStream::Moment> VideoStream::MomentOf(const GstBuffer* frame) const {
    const GstClockTime begin = GST_BUFFER_PTS(frame);
    if (!GST_CLOCK_TIME_IS_VALID(begin) || segment_.format != GST_FORMAT_TIME)
        return std::nullopt;
    const GstClockTime duration = GST_BUFFER_DURATION(frame);
    const GstClockTime end = GST_CLOCK_TIME_IS_VALID(duration) ? begin + duration : GST_CLOCK_TIME_NONE;
    guint64 first = 0;
    if (gst_segment_clip(&segment_, GST_FORMAT_TIME, begin, end, &first, nullptr) == 0)
        return std::nullopt;
    return Moment{gst_segment_to_running_time(&segment_, GST_FORMAT_TIME, first),
                  gst_segment_to_stream_time(&segment_, GST_FORMAT_TIME, first)};
}

GstVideoOverlayComposition* VideoStream::PictureFor(const GstBuffer* frame) {
    const Choices choices = settings_.CurrentChoices();
    if (settings_.TakeNews())
        ReadLocation(choices.isTrusted);
    const std::optional<Moment> moment = MomentOf(frame);
    if (!moment)
        return nullptr;
    const TimedDocument timed = track_.At(moment->running, gst_pad_is_linked(pads_.text) != 0);
    Picture* const picture = PictureOf(timed.document ? timed.document : location_);
    if (!picture)
        return nullptr;
    const bool countsFromBuffer = timed.document && choices.timeBase == TimeBase::BUFFER;
    const GstClockTimeDiff origin = countsFromBuffer ? timed.origin : 0;
    return picture->At(DocumentTime(moment->stream, origin, choices.offset), choices.forcedOnly);
}

Picture* VideoStream::PictureOf(const std::shared_ptr<const Document>& document) {
    if (document != drawn_) {
        drawn_ = document;
        picture_.reset();
        if (document)
            picture_.emplace(document, CanvasOf(info_));
    }
    return picture_ ? &*picture_ : nullptr;
}

void VideoStream::ReadLocation(bool isTrusted) {
    const Files files = settings_.CurrentFiles();
    location_.reset();
    if (!files.location.empty())
        location_ = Contain(element_, std::shared_ptr<const Document>(), [&] {
            return std::shared_ptr<const Document>(ReadDocument(files.location, files.images, isTrusted));
        });
}

Held<GstBuffer> VideoStream::PutOver(Held<GstBuffer> frame, GstVideoOverlayComposition* picture) {
    if (way_ == Way::LOST)
        return frame;
    frame.reset(gst_buffer_make_writable(frame.release()));
    if (way_ == Way::ATTACHED)
        Attach(frame.get(), picture);
    else
        Blend(frame.get(), picture);
    return frame;
}

void VideoStream::Blend(GstBuffer* frame, GstVideoOverlayComposition* picture) {
    GstVideoFrame pixels;
    if (gst_video_frame_map(&pixels, &info_, frame, GST_MAP_READWRITE) == 0) {
        way_ = Way::LOST;
        WarnOf(element_, "the frames cannot be drawn into");
        return;
    }
    gst_video_overlay_composition_blend(picture, &pixels);
    gst_video_frame_unmap(&pixels);
}

} // namespace xttml::gstreamer
