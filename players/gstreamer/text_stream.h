// What comes in on the text pad.
//
// A buffer that has a time, in a segment of times, is a whole document for that time: a segment of a live
// stream, a sample of TTML in MP4 (ISO/IEC 14496-30). An empty one says that there is none. Buffers without
// are pieces of one document for all times, which is whole at its end tag or, at the latest, at the end of
// the stream: what a file source delivers.
#ifndef XTTML_PLAYERS_GSTREAMER_TEXT_STREAM_H
#define XTTML_PLAYERS_GSTREAMER_TEXT_STREAM_H

#include "players/gstreamer/mini_object.h"
#include "players/gstreamer/settings.h"
#include "players/gstreamer/text_track.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace xttml::gstreamer {

/// Turns buffers into documents of the track. A document that cannot be used is a warning on the bus, and its
/// time has none.
class TextStream {
public:
    /// All three outlive it.
    TextStream(GstElement* element, const Settings& settings, TextTrack& track);

    GstFlowReturn Chain(const Held<GstBuffer>& buffer);
    void HandleEvent(GstEvent* event);
    /// Forgets what has come so far.
    void Reset();

private:
    bool IsDocument(GstBuffer* buffer) const;
    std::optional<TimedDocument> Timed(GstBuffer* buffer) const;
    GstFlowReturn AddDocument(GstBuffer* buffer);
    void Collect(GstBuffer* buffer);
    void AddCollected();
    void SkipGap(GstEvent* event);
    std::shared_ptr<const Document> Read(std::string_view bytes) const;

    GstElement* element_;
    const Settings& settings_;
    TextTrack& track_;
    GstSegment segment_;
    std::string pieces_;
    bool isWhole_ = false; ///< a document in pieces has been
};

} // namespace xttml::gstreamer

#endif
