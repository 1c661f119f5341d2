// Where C calls C++: nothing that is thrown passes.
#ifndef XTTML_PLAYERS_GSTREAMER_CONTAINMENT_H
#define XTTML_PLAYERS_GSTREAMER_CONTAINMENT_H

#include <exception>
#include <gst/gst.h>

namespace xttml::gstreamer {

/// Posts a warning on the element's bus: something is not shown, and playback goes on.
/// @param reason for people, in English
void WarnOf(GstElement* element, const char* reason) noexcept;

/// Does the work and returns its result; when it throws, that becomes a warning and the result is another.
template <class Result, class Work>
Result Contain(GstElement* element, Result otherwise, const Work& work) noexcept {
    try {
        return work();
    } catch (const std::exception& error) {
        WarnOf(element, error.what());
    } catch (...) {
        WarnOf(element, "unknown failure");
    }
    return otherwise;
}

} // namespace xttml::gstreamer

#endif
