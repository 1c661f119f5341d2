// GStreamer's counted objects as resources.
#ifndef XTTML_PLAYERS_GSTREAMER_MINI_OBJECT_H
#define XTTML_PLAYERS_GSTREAMER_MINI_OBJECT_H

#include <gst/gst.h>
#include <memory>

namespace xttml::gstreamer {

/// Gives a reference back.
struct MiniObjectReleaser {
    template <class Object>
    void operator()(Object* object) const {
        gst_mini_object_unref(GST_MINI_OBJECT_CAST(object));
    }
};

/// One reference to a buffer, caps, event, query or composition; may be null.
template <class Object>
using Held = std::unique_ptr<Object, MiniObjectReleaser>;

} // namespace xttml::gstreamer

#endif
