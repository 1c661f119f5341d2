#include "players/gstreamer/text_stream.h"

#include "players/gstreamer/containment.h"

#include <algorithm>
#include <utility>

namespace xttml::gstreamer {

namespace {

/// The bytes of a buffer.
class Mapping {
public:
    explicit Mapping(GstBuffer* buffer) : buffer_(buffer) {
        if (gst_buffer_map(buffer, &map_, GST_MAP_READ) == 0)
            throw UnusableDocument("its bytes cannot be read");
    }
    ~Mapping() { gst_buffer_unmap(buffer_, &map_); }
    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;

    std::string_view Bytes() const { return {reinterpret_cast<const char*>(map_.data), map_.size}; }

private:
    GstBuffer* buffer_;
    GstMapInfo map_;
};

GstClockTime EndOf(GstClockTime begin, GstClockTime duration) {
    return GST_CLOCK_TIME_IS_VALID(duration) ? begin + duration : GST_CLOCK_TIME_NONE;
}

/// Whether the last that stands there is the end tag of a root element. Where a comment follows it, or in
/// UTF-16, the end of the stream tells.
bool EndsLikeDocument(std::string_view bytes) {
    constexpr std::string_view space = " \t\r\n";
    constexpr std::size_t most = 256; // of a long document in short pieces only so much is looked at
    bytes.remove_prefix(bytes.size() - std::min(bytes.size(), most));
    bytes = bytes.substr(0, bytes.find_last_not_of(space) + 1);
    const std::size_t tag = bytes.rfind("</");
    if (tag == std::string_view::npos || bytes.back() != '>')
        return false;
    std::string_view name = bytes.substr(tag + 2, bytes.size() - tag - 3);
    name = name.substr(0, name.find_last_not_of(space) + 1);
    return name.substr(name.find(':') + 1) == "tt";
}

GstClockTimeDiff SignedStreamTime(const GstSegment& segment, GstClockTime time) {
    guint64 magnitude = 0;
    const int sign = gst_segment_to_stream_time_full(&segment, GST_FORMAT_TIME, time, &magnitude);
    return static_cast<GstClockTimeDiff>(sign < 0 ? 0 - magnitude : magnitude); // may wrap
}

} // namespace

TextStream::TextStream(GstElement* element, const Settings& settings, TextTrack& track)
    : element_(element), settings_(settings), track_(track) {
    Reset();
}

void TextStream::Reset() {
    gst_segment_init(&segment_, GST_FORMAT_UNDEFINED);
    pieces_ = {};
    isWhole_ = false;
}

GstFlowReturn TextStream::Chain(const Held<GstBuffer>& buffer) {
    if (IsDocument(buffer.get()))
        return AddDocument(buffer.get());
    Collect(buffer.get());
    return GST_FLOW_OK;
}

void TextStream::HandleEvent(GstEvent* event) {
    switch (GST_EVENT_TYPE(event)) {
    case GST_EVENT_FLUSH_START:
        track_.StopText();
        break;
    case GST_EVENT_STREAM_START:
    case GST_EVENT_FLUSH_STOP:
        Reset();
        track_.StartText();
        break;
    case GST_EVENT_SEGMENT:
        gst_event_copy_segment(event, &segment_);
        break;
    case GST_EVENT_GAP:
        SkipGap(event);
        break;
    case GST_EVENT_EOS:
    case GST_EVENT_SEGMENT_DONE:
        if (!isWhole_) // else what has come since is a comment, or space
            AddCollected();
        track_.Reach(GST_CLOCK_TIME_NONE);
        break;
    default:
        break;
    }
}

bool TextStream::IsDocument(GstBuffer* buffer) const {
    return segment_.format == GST_FORMAT_TIME && GST_BUFFER_PTS_IS_VALID(buffer);
}

std::optional<TimedDocument> TextStream::Timed(GstBuffer* buffer) const {
    const GstClockTime pts = GST_BUFFER_PTS(buffer);
    const GstClockTime end = EndOf(pts, GST_BUFFER_DURATION(buffer));
    guint64 first = 0;
    guint64 last = 0;
    if (gst_segment_clip(&segment_, GST_FORMAT_TIME, pts, end, &first, &last) == 0)
        return std::nullopt;
    TimedDocument timed;
    timed.origin = SignedStreamTime(segment_, pts);
    timed.begin = gst_segment_to_running_time(&segment_, GST_FORMAT_TIME, first);
    if (GST_CLOCK_TIME_IS_VALID(end))
        timed.end = gst_segment_to_running_time(&segment_, GST_FORMAT_TIME, last);
    if (segment_.rate < 0 && GST_CLOCK_TIME_IS_VALID(end)) // the ends of [first, last) change places
        timed = {nullptr, timed.end + 1, timed.begin + 1, timed.origin};
    return timed;
}

GstFlowReturn TextStream::AddDocument(GstBuffer* buffer) {
    std::optional<TimedDocument> timed = Timed(buffer);
    if (!timed)
        return GST_FLOW_OK;
    const GstClockTime reached = GST_CLOCK_TIME_IS_VALID(timed->end) ? timed->end : timed->begin + 1;
    timed->document =
        Contain(element_, std::shared_ptr<const Document>(), [&] { return Read(Mapping(buffer).Bytes()); });
    const bool isAdded = track_.Append(*std::move(timed));
    track_.Reach(reached);
    return isAdded ? GST_FLOW_OK : GST_FLOW_FLUSHING;
}

// More than a document may have is not kept, but remembered by its length.
void TextStream::Collect(GstBuffer* buffer) {
    if (pieces_.size() <= mostBytes)
        pieces_ += Mapping(buffer).Bytes();
    if (EndsLikeDocument(pieces_)) {
        AddCollected();
        isWhole_ = true;
    }
}

void TextStream::AddCollected() {
    const std::string bytes = std::exchange(pieces_, {});
    if (bytes.empty())
        return;
    TimedDocument whole;
    whole.document = Contain(element_, std::shared_ptr<const Document>(), [&] { return Read(bytes); });
    track_.Append(std::move(whole));
    track_.Reach(GST_CLOCK_TIME_NONE); // nothing to wait for
}

void TextStream::SkipGap(GstEvent* event) {
    GstClockTime begin = 0;
    GstClockTime duration = 0;
    gst_event_parse_gap(event, &begin, &duration);
    const GstClockTime end = EndOf(begin, duration);
    if (segment_.format == GST_FORMAT_TIME && GST_CLOCK_TIME_IS_VALID(end)) {
        const GstClockTime reached =
            gst_segment_to_running_time(&segment_, GST_FORMAT_TIME, segment_.rate < 0 ? begin : end);
        if (GST_CLOCK_TIME_IS_VALID(reached))
            track_.Reach(reached);
    }
}

std::shared_ptr<const Document> TextStream::Read(std::string_view bytes) const {
    if (bytes.empty())
        return nullptr;
    if (bytes.size() > mostBytes)
        throw UnusableDocument("more than " + std::to_string(mostBytes) + " bytes");
    return std::make_shared<const Document>(bytes, settings_.CurrentChoices().isTrusted);
}

} // namespace xttml::gstreamer
