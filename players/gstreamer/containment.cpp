#include "players/gstreamer/containment.h"

#include <algorithm>
#include <glib.h>
#include <memory>

namespace xttml::gstreamer {

namespace {

struct TextReleaser {
    void operator()(char* text) const { g_free(text); }
};
using Text = std::unique_ptr<char, TextReleaser>;

// Reasons may quote a document, and programs print them on terminals.
Text WithoutControls(const char* text) {
    Text plain(g_utf8_make_valid(text, -1));
    for (char* place = plain.get(); *place != '\0'; place = g_utf8_next_char(place)) {
        if (g_unichar_iscntrl(g_utf8_get_char(place)) != 0)
            std::fill(place, g_utf8_next_char(place), '?');
    }
    return plain;
}

} // namespace

void WarnOf(GstElement* element, const char* reason) noexcept {
    GST_ELEMENT_WARNING(element, STREAM, DECODE,
                        ("Subtitles are not shown: %s", WithoutControls(reason).get()), (nullptr));
}

} // namespace xttml::gstreamer
