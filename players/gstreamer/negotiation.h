// How pictures travel with frames: attached (GstVideoOverlayComposition) or blended in.
#ifndef XTTML_PLAYERS_GSTREAMER_NEGOTIATION_H
#define XTTML_PLAYERS_GSTREAMER_NEGOTIATION_H

#include "players/gstreamer/mini_object.h"

#include <gst/video/video.h>

namespace xttml::gstreamer {

/// What becomes of a picture.
enum class Way {
    ATTACHED, ///< the frame carries it, and who shows the frame puts it over
    BLENDED,  ///< it is drawn into the frame
    LOST      ///< the frame's memory cannot be drawn into
};

/// What the video pads have in general.
inline constexpr const char* videoCaps = "video/x-raw(ANY), format = (string) " GST_VIDEO_FORMATS_ALL
                                         ", width = (int) [ 1, max ], height = (int) [ 1, max ]"
                                         ", framerate = (fraction) [ 0, max ]";

/// What may come in when this may go out, and the reverse. ANY is ANY.
Held<GstCaps> InputFor(GstCaps* output);
Held<GstCaps> OutputFor(GstCaps* input);

/// Answers a CAPS query by what the other side takes.
/// @param otherSide the element's pad there
void AnswerCapsQuery(GstQuery* query, GstPad* otherSide, Held<GstCaps> (*translate)(GstCaps*));

/// Sends the caps of the frames that come in on, with overlays where the peer takes them.
/// @param way where the result is stored
/// @return false when the peer refuses the caps
bool Negotiate(GstPad* source, GstCaps* input, Way& way);

} // namespace xttml::gstreamer

#endif
