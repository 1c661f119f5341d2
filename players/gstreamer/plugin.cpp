// The plugin xttml, which holds the element xttmloverlay: element.h describes it.
#include "players/gstreamer/element.h"

#include <x_ttml_version.h>

#define PACKAGE "xttml" // which GST_PLUGIN_DEFINE asks for

namespace {

gboolean Register(GstPlugin* plugin) {
    return gst_element_register(plugin, "xttmloverlay", GST_RANK_PRIMARY, xttml::gstreamer::ElementType());
}

} // namespace

GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, xttml, "TTML subtitles", Register, XTTML_VERSION,
                  "Apache-2.0", PACKAGE, "https://xttml.invalid")
