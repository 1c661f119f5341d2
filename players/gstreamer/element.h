// xttmloverlay: a GStreamer element that puts TTML subtitles over video.
//
//     gst-launch-1.0 videotestsrc ! xttmloverlay location=film.ttml ! videoconvert ! autovideosink
//
// Pads: video_sink and src have raw video in any format and, where downstream puts pictures over frames
// itself (GstVideoOverlayComposition), in any memory. text_sink has application/ttml+xml and may stay
// unlinked.
//
// Documents come from the property "location" and from text_sink:
//
//  - A buffer with a time, in a segment of times, is a document for that time, replaced by the next and
//    dropped when its duration has passed: a segment of a live stream, a sample of TTML in MP4 (ISO/IEC
//    14496-30). An empty buffer says that there is none.
//  - Buffers without a time, and those of a segment in bytes, are pieces of one document for all times. It is
//    whole at its end tag or, at the latest, at the end of the stream, and replaced by the next: what filesrc
//    delivers.
//  - Where text_sink has no document, that of "location" is shown. It is read at the first frame, and again
//    when "location" or "images" change.
//
// Times count from the start of the stream: the time of a frame is its stream time, wherever one has sought
// and at any rate. With time-base=buffer those of a document from text_sink count from the time of its
// buffer. "offset" is added to them.
//
// Video waits for the text of its time, or transcoding would lose it: for a document, a GAP event or the end
// of the text. When nothing of that comes for a second, video no longer waits until the text begins anew.
// Both pads need a queue before them where one thread delivers both.
//
// A document that cannot be used, and whatever else fails, is a warning message on the bus; playback goes on.
// Documents are untrusted unless "trusted" is set: x_ttml_set_untrusted().
//
// The first element initialises libxttml for the process and drops its lines, x_ttml_drop_lines(); a program
// that uses the library as well, and wants the lines, sets its function after that.
#ifndef XTTML_PLAYERS_GSTREAMER_ELEMENT_H
#define XTTML_PLAYERS_GSTREAMER_ELEMENT_H

#include <gst/gst.h>

namespace xttml::gstreamer {

/// The type of the element xttmloverlay.
GType ElementType();

} // namespace xttml::gstreamer

#endif
