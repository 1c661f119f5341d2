// xttmloverlay, buffer by buffer.
#include "tests/players/gstreamer/overlay_run.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <thread>

namespace xttml::players {
namespace {

constexpr int rounding = 3; ///< between drawing into a frame and blending a drawing in

const std::string two = Document({"1000-2000 first words", "3000-4000 second"});
const std::string forced = Document(
    {"0-9000 only forced"},
    R"(smpte:unused="" xmlns:c="http://www.decellc.org/schema/2012/01/cff-tt-meta" c:forcedDisplayMode="true")");

bool Shows(const Frame& frame, const std::string& document, std::int32_t time,
           render::Size size = {width, height}) {
    return Difference(PixelsOf(frame), Drawn(document, time, size)) <= rounding;
}

bool IsBare(const Frame& frame) {
    const Pixels pixels = PixelsOf(frame);
    return std::all_of(pixels.begin(), pixels.end(), [](std::uint32_t pixel) { return pixel == ground; });
}

TEST(Overlay, shows_a_file_at_its_times) {
    const TemporaryFile file(two);
    OverlayRun run(("location=" + file.path).c_str());
    const GstClockTime times[] = {0, 999, 1000, 1500, 2000, 2001, 2999, 3000, 4000, 4001};
    for (const GstClockTime time : times) {
        const Frame frame = run.At(time);
        EXPECT_TRUE(Shows(frame, two, static_cast<std::int32_t>(time))) << time;
        EXPECT_EQ(IsBare(frame), time < 1000 || time > 4000 || (time > 2000 && time < 3000)) << time;
    }
    EXPECT_EQ(run.TakeWarnings(), 0);
}

TEST(Overlay, properties_count_at_once) {
    const TemporaryFile file(two);
    const TemporaryFile other(forced);
    OverlayRun run(("location=" + file.path + " offset=500").c_str());
    EXPECT_TRUE(IsBare(run.At(1480)));
    EXPECT_TRUE(Shows(run.At(1520), two, 1020));
    g_object_set(run.Element(), "forced-only", TRUE, nullptr);
    EXPECT_TRUE(IsBare(run.At(1560)));
    g_object_set(run.Element(), "location", other.path.c_str(), nullptr);
    EXPECT_TRUE(Shows(run.At(1600), forced, 0));
    g_object_set(run.Element(), "location", nullptr, nullptr);
    EXPECT_TRUE(IsBare(run.At(1640)));
}

TEST(Overlay, what_cannot_be_used_is_one_warning) {
    const TemporaryFile doctype("<!DOCTYPE tt>" + two);
    const TemporaryFile broken("<tt");
    const TemporaryFile empty("");
    for (const std::string& path :
         {doctype.path, broken.path, empty.path, std::string("/no/such/file"), std::string("/")}) {
        OverlayRun run(("location=" + path).c_str());
        EXPECT_TRUE(IsBare(run.At(0)) && IsBare(run.At(40))) << path;
        EXPECT_EQ(run.TakeWarnings(), 1) << path;
    }
    OverlayRun run(("trusted=true location=" + doctype.path).c_str());
    EXPECT_TRUE(Shows(run.At(1000), two, 1000));
}

TEST(Overlay, times_are_stream_times) {
    const TemporaryFile file(two);
    OverlayRun run(("location=" + file.path).c_str());
    OverlayRun::Segment(run.Video(), 10 * GST_SECOND, 3 * GST_SECOND);
    EXPECT_TRUE(Shows(run.At(10500), two, 3500));
    OverlayRun::Segment(run.Video(), 0, 0, 2.0);
    EXPECT_TRUE(Shows(run.At(1500), two, 1500));
    gst_harness_push_event(run.Video(), gst_event_new_flush_start());
    gst_harness_push_event(run.Video(), gst_event_new_flush_stop(TRUE));
    OverlayRun::Segment(run.Video(), 0, 0);
    EXPECT_TRUE(Shows(run.At(3000), two, 3000));
}

TEST(Overlay, follows_size_and_shape) {
    const TemporaryFile file(two);
    OverlayRun run(("location=" + file.path).c_str());
    EXPECT_TRUE(Shows(run.At(1000), two, 1000));
    run.SetCaps("640", "360");
    EXPECT_TRUE(Shows(run.At(1040), two, 1000, {640, 360}));
    run.SetCaps("160", "180", ",pixel-aspect-ratio=2/1"); // seen as 320 x 180
    EXPECT_FALSE(IsBare(run.At(1080)));
    run.SetCaps("20000", "1"); // which no picture is drawn for
    EXPECT_TRUE(IsBare(run.At(1120)) && IsBare(run.At(1160)));
    EXPECT_EQ(run.TakeWarnings(), 1);
}

TEST(Overlay, attaches_one_picture_until_it_changes) {
    const TemporaryFile file(two);
    OverlayRun run(("location=" + file.path).c_str());
    gst_harness_add_propose_allocation_meta(run.Video(), GST_VIDEO_OVERLAY_COMPOSITION_META_API_TYPE,
                                            nullptr);
    run.SetCaps("320", "180");
    const auto pictureAt = [&](GstClockTime time) {
        const Frame frame = run.At(time);
        EXPECT_TRUE(IsBare(frame));
        const GstVideoOverlayCompositionMeta* const meta =
            gst_buffer_get_video_overlay_composition_meta(frame.get());
        return meta ? gst_video_overlay_composition_get_seqnum(meta->overlay) : 0;
    };
    EXPECT_EQ(pictureAt(0), 0U);
    const guint first = pictureAt(1000);
    EXPECT_NE(first, 0U);
    EXPECT_EQ(pictureAt(1960), first);
    EXPECT_EQ(pictureAt(2040), 0U);
    EXPECT_NE(pictureAt(3000), first);
}

TEST(Overlay, a_timed_buffer_is_a_document_for_its_time) {
    const std::string one = Document({"0-9000 one"});
    const std::string three = Document({"0-9000 three"});
    OverlayRun run;
    run.Push(one, 0, 1000);
    EXPECT_TRUE(Shows(run.At(0), one, 0));
    run.Push("<tt", 1000, 1000);
    run.Push(three, 2000);
    run.Push("", 3000, 500);
    EXPECT_TRUE(Shows(run.At(960), one, 960));
    EXPECT_TRUE(IsBare(run.At(1000)));
    EXPECT_TRUE(Shows(run.At(2000), three, 2000));
    EXPECT_TRUE(Shows(run.At(2960), three, 2960));
    EXPECT_TRUE(IsBare(run.At(3000)));
    run.Push(one, 3500, 500);
    run.Gap(4000, 1000);
    EXPECT_TRUE(Shows(run.At(3520), one, 3520));
    EXPECT_TRUE(IsBare(run.At(4000)));
    EXPECT_EQ(run.TakeWarnings(), 1);
}

TEST(Overlay, times_count_from_the_buffer_when_asked) {
    OverlayRun run("time-base=buffer");
    run.Push(two, 5000, 5000);
    EXPECT_TRUE(IsBare(run.At(5960)));
    EXPECT_TRUE(Shows(run.At(6000), two, 1000));
    g_object_set(run.Element(), "time-base", 0, nullptr);
    EXPECT_TRUE(IsBare(run.At(6040)));
}

TEST(Overlay, pieces_are_one_document) {
    struct {
        const char* behind;
        std::size_t piece;
        bool hasEnd;
    } const cases[] = {{"", 100, false}, {"\r\n", two.size(), true}, {"<!-- who closes -->", 4096, true}};
    for (const auto& [behind, piece, hasEnd] : cases) {
        const std::string document = two + behind;
        OverlayRun run;
        for (std::size_t i = 0; i < document.size(); i += piece)
            run.Push(document.substr(i, piece));
        if (hasEnd)
            gst_harness_push_event(run.Text(), gst_event_new_eos());
        EXPECT_TRUE(Shows(run.At(3000), two, 3000)) << behind;
        EXPECT_EQ(run.TakeWarnings(), 0) << behind;
        gst_harness_push_event(run.Text(), gst_event_new_flush_start());
        gst_harness_push_event(run.Text(), gst_event_new_flush_stop(TRUE));
        OverlayRun::Segment(run.Text(), 0, 0);
        run.Gap(0, 3060);
        EXPECT_TRUE(IsBare(run.At(3040))) << behind;
        run.Push(two);
        EXPECT_TRUE(Shows(run.At(3080), two, 3080)) << behind;
    }
}

TEST(Overlay, video_waits_for_a_silent_text_only_once) {
    OverlayRun run;
    run.Gap(0, 40);
    const gint64 start = g_get_monotonic_time();
    for (GstClockTime time = 0; time < 4000; time += 40)
        run.At(time);
    EXPECT_LT(g_get_monotonic_time() - start, 3 * G_USEC_PER_SEC);
}

TEST(Overlay, video_waits_for_its_text) {
    OverlayRun run;
    run.Text();
    std::thread text([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        run.Push(two, 1000, 1000);
    });
    EXPECT_TRUE(Shows(run.At(1000), two, 1000));
    text.join();
}

TEST(Overlay, flushing_and_stopping_end_the_wait_of_the_text) {
    for (const bool flushes : {true, false}) {
        OverlayRun run;
        run.Text();
        GstFlowReturn result = GST_FLOW_OK;
        std::thread text([&] {
            for (std::int64_t i = 0; i < 50 && result == GST_FLOW_OK; ++i)
                result = run.Push(two, i * 1000, 1000);
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        if (flushes)
            gst_harness_push_event(run.Text(), gst_event_new_flush_start());
        else
            gst_element_set_state(run.Element(), GST_STATE_READY);
        text.join();
        EXPECT_EQ(result, GST_FLOW_FLUSHING);
    }
}

/// A pipeline of real elements whose last frame can be looked at while it is paused.
class Playback {
public:
    explicit Playback(const std::string& pipeline) : pipeline_(gst_parse_launch(pipeline.c_str(), nullptr)) {
        gst_element_set_state(pipeline_, GST_STATE_PAUSED);
    }
    ~Playback() {
        gst_element_set_state(pipeline_, GST_STATE_NULL);
        gst_object_unref(pipeline_);
    }
    Playback(const Playback&) = delete;
    Playback& operator=(const Playback&) = delete;

    /// The frame that is shown after a seek, played from a time or, backwards, to it; ms.
    Pixels Seek(std::int64_t time, double rate = 1) {
        const auto flags =
            static_cast<GstSeekFlags>(static_cast<int>(GST_SEEK_FLAG_FLUSH) | GST_SEEK_FLAG_ACCURATE);
        const std::int64_t nanoseconds = time * static_cast<std::int64_t>(GST_MSECOND);
        gst_element_get_state(pipeline_, nullptr, nullptr, GST_CLOCK_TIME_NONE);
        EXPECT_TRUE(gst_element_seek(pipeline_, rate, GST_FORMAT_TIME, flags, GST_SEEK_TYPE_SET,
                                     rate > 0 ? nanoseconds : 0, GST_SEEK_TYPE_SET,
                                     rate > 0 ? -1 : nanoseconds));
        gst_element_get_state(pipeline_, nullptr, nullptr, GST_CLOCK_TIME_NONE);
        return LastFrame();
    }

private:
    Pixels LastFrame() {
        GstElement* const sink = gst_bin_get_by_name(GST_BIN(pipeline_), "sink");
        GstSample* sample = nullptr;
        g_object_get(sink, "last-sample", &sample, nullptr);
        gst_object_unref(sink);
        const Frame frame(gst_buffer_ref(gst_sample_get_buffer(sample)));
        gst_sample_unref(sample);
        return PixelsOf(frame);
    }

    GstElement* pipeline_;
};

TEST(Overlay, seeks) {
    const TemporaryFile file(two);
    const std::string video = "videotestsrc pattern=solid-color foreground-color=" + std::to_string(ground) +
                              " ! video/x-raw,format=BGRA,width=320,height=180,framerate=25/1 ! ";
    for (const std::string& pipeline :
         {video + "xttmloverlay location=" + file.path + " ! fakesink name=sink",
          video + "xttmloverlay name=o ! fakesink name=sink filesrc location=" + file.path +
              " ! o.text_sink"}) {
        Playback playback(pipeline);
        for (const std::int32_t time : {3000, 0, 1400, 2200, 3960})
            EXPECT_LE(Difference(playback.Seek(time), Drawn(two, time)), rounding) << time;
        EXPECT_LE(Difference(playback.Seek(1400, 2), Drawn(two, 1400)), rounding);
        EXPECT_LE(Difference(playback.Seek(3400, -1), Drawn(two, 3360)), rounding);
    }
}

TEST(Overlay, many_documents_leave_no_memory_behind) {
    OverlayRun run;
    const auto play = [&](std::int64_t from, std::int64_t to) {
        for (std::int64_t i = from; i < to; ++i) {
            const std::string document =
                Document({"0-999999 always something new"}, "xml:id='p" + std::to_string(i) + "'");
            EXPECT_EQ(run.Push(document, i * 1000, 1000), GST_FLOW_OK);
            EXPECT_FALSE(IsBare(run.At(static_cast<GstClockTime>(i) * 1000)));
        }
    };
    play(0, 40);
    const std::size_t before = mallinfo2().uordblks;
    play(40, 440);
    EXPECT_LT(mallinfo2().uordblks, before + (512U << 10U));
}

} // namespace
} // namespace xttml::players

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    mallopt(M_MMAP_THRESHOLD, 64 << 10); // frames do not count among the small pieces
    gst_init(&count, &arguments);
    return RUN_ALL_TESTS();
}
