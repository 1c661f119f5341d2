// The element xttmloverlay between a test's buffers.
#ifndef XTTML_TESTS_PLAYERS_GSTREAMER_OVERLAY_RUN_H
#define XTTML_TESTS_PLAYERS_GSTREAMER_OVERLAY_RUN_H

#include "render/owned_parser.h"
#include "render/renderer.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <gst/check/gstharness.h>
#include <gst/video/video.h>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::players {

inline constexpr int width = 320;
inline constexpr int height = 180;
inline constexpr std::uint32_t ground = 0xFF204060; ///< of every frame

/// The pixels of a frame, in rows.
using Pixels = std::vector<std::uint32_t>;

/// A document of the size of the frames whose paragraphs are "begin-end text", times in ms.
inline std::string Document(std::initializer_list<const char*> paragraphs,
                            const std::string& attributes = {}) {
    std::string text = R"(<tt xmlns="http://www.w3.org/ns/ttml" xmlns:tts="http://www.w3.org/ns/ttml#styling"
        xmlns:smpte="http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt" tts:extent="320px 180px"><body><div>)";
    for (const std::string paragraph : paragraphs) {
        const std::size_t dash = paragraph.find('-');
        const std::size_t space = paragraph.find(' ');
        text += "<p " + attributes + " begin=\"" + paragraph.substr(0, dash) + "ms\" end=\"" +
                paragraph.substr(dash + 1, space - dash - 1) + "ms\">" + paragraph.substr(space + 1) + "</p>";
    }
    return text + "</div></body></tt>";
}

/// What the drawing makes of a document over such a frame.
inline Pixels Drawn(const std::string& document, std::int32_t time, render::Size size = {width, height}) {
    const render::OwnedParser owned = render::MakeParser();
    x_ttml_handle parser = owned.get();
    x_ttml_try_load_from_data(parser, document.data(), static_cast<std::uint32_t>(document.size()));
    x_ttml_try_generate_text(parser, 0);
    DisplayItem* items[16];
    const std::uint32_t count = x_ttml_get_items_on_screen(parser, items, 16, time);
    render::Size root;
    x_ttml_get_tt_extent(parser, &root.width, &root.height);
    render::Renderer renderer(size, root);
    renderer.Show(items, count);
    Pixels pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), ground);
    renderer.Draw({reinterpret_cast<std::uint8_t*>(pixels.data()), size.width, size.height, 4 * size.width},
                  render::Ground::KEPT);
    return pixels;
}

/// The largest difference of two channels; 256 for pictures of different size.
inline int Difference(const Pixels& a, const Pixels& b) {
    int most = a.size() == b.size() ? 0 : 256;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        for (unsigned shift = 0; shift < 32; shift += 8)
            most = std::max(most, std::abs(static_cast<int>(a[i] >> shift & 255U) -
                                           static_cast<int>(b[i] >> shift & 255U)));
    }
    return most;
}

struct BufferReleaser {
    void operator()(GstBuffer* buffer) const { gst_buffer_unref(buffer); }
};
using Frame = std::unique_ptr<GstBuffer, BufferReleaser>;

inline Pixels PixelsOf(const Frame& frame) {
    Pixels pixels(gst_buffer_get_size(frame.get()) / 4);
    gst_buffer_extract(frame.get(), 0, pixels.data(), 4 * pixels.size());
    return pixels;
}

/// One element. Its text pad is linked by the first text.
class OverlayRun {
public:
    explicit OverlayRun(const char* properties = "") {
        const std::string description = std::string("xttmloverlay ") + properties;
        element_ = gst_parse_launch(description.c_str(), nullptr);
        gst_object_ref_sink(element_);
        bus_ = gst_bus_new();
        gst_element_set_bus(element_, bus_);
        video_ = gst_harness_new_with_element(element_, "video_sink", "src");
        SetCaps("320", "180");
    }
    ~OverlayRun() {
        if (text_)
            gst_harness_teardown(text_);
        gst_harness_teardown(video_);
        gst_element_set_bus(element_, nullptr);
        gst_object_unref(bus_);
        gst_object_unref(element_);
    }
    OverlayRun(const OverlayRun&) = delete;
    OverlayRun& operator=(const OverlayRun&) = delete;

    GstElement* Element() { return element_; }
    GstHarness* Video() { return video_; }
    GstHarness* Text() {
        if (!text_) {
            text_ = gst_harness_new_with_element(element_, "text_sink", nullptr);
            gst_harness_set_src_caps_str(text_, "application/ttml+xml");
        }
        return text_;
    }

    void SetCaps(const std::string& columns, const std::string& rows, const std::string& more = {}) {
        caps_ = "video/x-raw,format=BGRA,framerate=25/1,width=" + columns + ",height=" + rows + more;
        size_ = {std::stoi(columns), std::stoi(rows)};
        gst_harness_set_src_caps_str(video_, caps_.c_str());
    }
    /// Begins a segment of times in which a buffer's time from `start` on is a stream time from `time` on.
    static void Segment(GstHarness* pad, GstClockTime start, GstClockTime time, double rate = 1) {
        GstSegment segment;
        gst_segment_init(&segment, GST_FORMAT_TIME);
        segment.start = start;
        segment.time = time;
        segment.rate = rate;
        gst_harness_push_event(pad, gst_event_new_segment(&segment));
    }

    /// What goes out for a frame at a time in ms.
    Frame At(GstClockTime time) {
        const std::size_t count =
            static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height);
        const Pixels pixels(count, ground);
        GstBuffer* const buffer = gst_harness_create_buffer(video_, 4 * count);
        gst_buffer_fill(buffer, 0, pixels.data(), 4 * count);
        GST_BUFFER_PTS(buffer) = time * GST_MSECOND;
        GST_BUFFER_DURATION(buffer) = 40 * GST_MSECOND;
        return Frame(gst_harness_push_and_pull(video_, buffer));
    }
    /// Hands a document to the text pad; times in ms, -1 for none.
    GstFlowReturn Push(const std::string& document, std::int64_t time = -1, std::int64_t duration = -1) {
        GstHarness* const pad = Text();
        GstBuffer* const buffer = gst_harness_create_buffer(pad, document.size());
        gst_buffer_fill(buffer, 0, document.data(), document.size());
        GST_BUFFER_PTS(buffer) =
            time < 0 ? GST_CLOCK_TIME_NONE : static_cast<GstClockTime>(time) * GST_MSECOND;
        GST_BUFFER_DURATION(buffer) =
            duration < 0 ? GST_CLOCK_TIME_NONE : static_cast<GstClockTime>(duration) * GST_MSECOND;
        return gst_harness_push(pad, buffer);
    }
    void Gap(std::int64_t time, std::int64_t duration) {
        gst_harness_push_event(Text(), gst_event_new_gap(static_cast<GstClockTime>(time) * GST_MSECOND,
                                                         static_cast<GstClockTime>(duration) * GST_MSECOND));
    }
    /// How many warnings there have been since the last call.
    int TakeWarnings() {
        int count = 0;
        while (GstMessage* const message = gst_bus_pop_filtered(bus_, GST_MESSAGE_WARNING)) {
            ++count;
            gst_message_unref(message);
        }
        return count;
    }

private:
    GstElement* element_;
    GstBus* bus_;
    GstHarness* video_;
    GstHarness* text_ = nullptr;
    std::string caps_;
    render::Size size_;
};

} // namespace xttml::players

#endif
