#include "players/gstreamer/negotiation.h"

#include <gst/video/video.h>

namespace xttml::gstreamer {

namespace {

constexpr const char* overlayFeature = GST_CAPS_FEATURE_META_GST_VIDEO_OVERLAY_COMPOSITION;

bool HasOverlays(const GstCapsFeatures* features) {
    return gst_caps_features_contains(features, overlayFeature) != 0;
}

bool CanBeDrawnInto(const GstCapsFeatures* features) {
    return gst_caps_features_is_any(features) != 0 ||
           gst_caps_features_is_equal(features, GST_CAPS_FEATURES_MEMORY_SYSTEM_MEMORY) != 0;
}

/// One kind of caps of a list.
struct Kind {
    const GstStructure* structure;
    const GstCapsFeatures* features;

    void AddTo(GstCaps* caps) const {
        gst_caps_append_structure_full(caps, gst_structure_copy(structure), gst_caps_features_copy(features));
    }
    void AddTo(GstCaps* caps, void (*change)(GstCapsFeatures*, const char*)) const {
        GstCapsFeatures* const changed = gst_caps_features_copy(features);
        change(changed, overlayFeature);
        gst_caps_append_structure_full(caps, gst_structure_copy(structure), changed);
    }
};

Held<GstCaps> Translate(GstCaps* caps, void (*add)(const Kind& kind, GstCaps* result)) {
    if (gst_caps_is_any(caps))
        return Held<GstCaps>(gst_caps_ref(caps));
    Held<GstCaps> result(gst_caps_new_empty());
    for (guint i = 0; i < gst_caps_get_size(caps); ++i)
        add({gst_caps_get_structure(caps, i), gst_caps_get_features(caps, i)}, result.get());
    return result;
}

Held<GstCaps> WithOverlays(const GstCaps* fixed) {
    Held<GstCaps> caps(gst_caps_copy(fixed));
    gst_caps_features_add(gst_caps_get_features(caps.get(), 0), overlayFeature);
    return caps;
}

bool TakesOverlays(GstPad* source, GstCaps* caps) {
    const Held<GstQuery> query(gst_query_new_allocation(caps, FALSE));
    return gst_pad_peer_query(source, query.get()) != 0 &&
           gst_query_find_allocation_meta(query.get(), GST_VIDEO_OVERLAY_COMPOSITION_META_API_TYPE,
                                          nullptr) != 0;
}

// Elements that translate accept at once what they then cannot pass on: they are asked for what they could
// take.
bool MayTake(GstPad* source, GstCaps* caps) {
    const Held<GstCaps> taken(gst_pad_peer_query_caps(source, caps));
    return gst_caps_is_empty(taken.get()) == 0;
}

bool Send(GstPad* source, GstCaps* caps) {
    return gst_pad_push_event(source, gst_event_new_caps(caps)) != 0;
}

} // namespace

Held<GstCaps> InputFor(GstCaps* output) {
    return Translate(output, [](const Kind& kind, GstCaps* result) {
        if (HasOverlays(kind.features) || CanBeDrawnInto(kind.features))
            kind.AddTo(result);
        if (HasOverlays(kind.features))
            kind.AddTo(result, gst_caps_features_remove);
    });
}

Held<GstCaps> OutputFor(GstCaps* input) {
    return Translate(input, [](const Kind& kind, GstCaps* result) {
        if (gst_caps_features_is_any(kind.features) == 0)
            kind.AddTo(result, gst_caps_features_add);
        if (!HasOverlays(kind.features) && CanBeDrawnInto(kind.features))
            kind.AddTo(result);
    });
}

void AnswerCapsQuery(GstQuery* query, GstPad* otherSide, Held<GstCaps> (*translate)(GstCaps*)) {
    GstCaps* filter = nullptr;
    gst_query_parse_caps(query, &filter);
    const Held<GstCaps> there(gst_pad_peer_query_caps(otherSide, nullptr));
    const Held<GstCaps> general(gst_pad_get_pad_template_caps(otherSide));
    Held<GstCaps> answer(
        gst_caps_intersect_full(translate(there.get()).get(), general.get(), GST_CAPS_INTERSECT_FIRST));
    if (filter)
        answer.reset(gst_caps_intersect_full(filter, answer.get(), GST_CAPS_INTERSECT_FIRST));
    gst_query_set_caps_result(query, answer.get());
}

bool Negotiate(GstPad* source, GstCaps* input, Way& way) {
    const Held<GstCaps> attached = WithOverlays(input);
    const bool hasOverlays = HasOverlays(gst_caps_get_features(input, 0));
    const bool isAttached = MayTake(source, attached.get()) && Send(source, attached.get()) &&
                            (hasOverlays || TakesOverlays(source, attached.get()));
    way = isAttached ? Way::ATTACHED : Way::BLENDED;
    return isAttached || Send(source, input);
}

} // namespace xttml::gstreamer
