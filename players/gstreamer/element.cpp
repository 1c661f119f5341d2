#include "players/gstreamer/element.h"

#include "players/gstreamer/containment.h"
#include "players/gstreamer/properties.h"
#include "players/gstreamer/text_stream.h"
#include "players/gstreamer/video_stream.h"

#include <memory>
#include <x_ttml_items.h>

namespace xttml::gstreamer {

namespace {

/// What an element consists of beside GStreamer's own part.
struct Overlay {
    Overlay(GstElement* element, const Pads& elementPads)
        : pads(elementPads), text(element, settings, track), video(element, pads, settings, track) {}

    Pads pads;
    Settings settings;
    TextTrack track;
    TextStream text;
    VideoStream video;
};

struct Element {
    GstElement parent;
    Overlay* overlay;
};

struct ElementClass {
    GstElementClass parent;
};

GstElementClass* parentClass = nullptr;

Overlay& OverlayOf(void* element) {
    return *static_cast<Element*>(element)->overlay;
}

GstFlowReturn ChainVideo(GstPad* /*pad*/, GstObject* element, GstBuffer* buffer) {
    return Contain(GST_ELEMENT(element), GST_FLOW_ERROR,
                   [&] { return OverlayOf(element).video.Chain(Held<GstBuffer>(buffer)); });
}

gboolean HandleVideoEvent(GstPad* /*pad*/, GstObject* element, GstEvent* event) {
    return Contain(GST_ELEMENT(element), false,
                   [&] { return OverlayOf(element).video.HandleEvent(Held<GstEvent>(event)); });
}

GstFlowReturn ChainText(GstPad* /*pad*/, GstObject* element, GstBuffer* buffer) {
    const Held<GstBuffer> held(buffer);
    return Contain(GST_ELEMENT(element), GST_FLOW_OK, [&] { return OverlayOf(element).text.Chain(held); });
}

// None of them goes on: the events of the video do.
gboolean HandleTextEvent(GstPad* /*pad*/, GstObject* element, GstEvent* event) {
    const Held<GstEvent> held(event);
    return Contain(GST_ELEMENT(element), true, [&] {
        OverlayOf(element).text.HandleEvent(event);
        return true;
    });
}

// A seek is for both streams; the text may come from a source that cannot.
gboolean HandleSourceEvent(GstPad* /*pad*/, GstObject* element, GstEvent* event) {
    const Pads& pads = OverlayOf(element).pads;
    Held<GstEvent> forText(GST_EVENT_TYPE(event) == GST_EVENT_SEEK ? gst_event_ref(event) : nullptr);
    const gboolean isDone = gst_pad_push_event(pads.video, event);
    if (forText)
        gst_pad_push_event(pads.text, forText.release());
    return isDone;
}

gboolean AnswerVideoQuery(GstPad* pad, GstObject* element, GstQuery* query) {
    if (GST_QUERY_TYPE(query) != GST_QUERY_CAPS)
        return gst_pad_query_default(pad, element, query);
    AnswerCapsQuery(query, OverlayOf(element).pads.source, InputFor);
    return TRUE;
}

gboolean AnswerSourceQuery(GstPad* /*pad*/, GstObject* element, GstQuery* query) {
    const Pads& pads = OverlayOf(element).pads;
    if (GST_QUERY_TYPE(query) != GST_QUERY_CAPS)
        return gst_pad_peer_query(pads.video, query);
    AnswerCapsQuery(query, pads.video, OutputFor);
    return TRUE;
}

GstPad* AddPad(GstElement* element, const char* name) {
    GstPadTemplate* const description =
        gst_element_class_get_pad_template(GST_ELEMENT_GET_CLASS(element), name);
    GstPad* const pad = gst_pad_new_from_template(description, name);
    gst_element_add_pad(element, pad);
    return pad;
}

void InitElement(GTypeInstance* instance, void* /*klass*/) {
    GstElement* const element = GST_ELEMENT(instance);
    const Pads pads = {AddPad(element, "video_sink"), AddPad(element, "text_sink"), AddPad(element, "src")};
    gst_pad_set_chain_function(pads.video, ChainVideo);
    gst_pad_set_event_function(pads.video, HandleVideoEvent);
    gst_pad_set_query_function(pads.video, AnswerVideoQuery);
    GST_PAD_SET_PROXY_ALLOCATION(pads.video);
    gst_pad_set_chain_function(pads.text, ChainText);
    gst_pad_set_event_function(pads.text, HandleTextEvent);
    gst_pad_set_event_function(pads.source, HandleSourceEvent);
    gst_pad_set_query_function(pads.source, AnswerSourceQuery);
    reinterpret_cast<Element*>(instance)->overlay = std::make_unique<Overlay>(element, pads).release();
}

void FinishElement(GObject* object) {
    const std::unique_ptr<Overlay> overlay(&OverlayOf(object));
    G_OBJECT_CLASS(parentClass)->finalize(object);
}

void SetElementProperty(GObject* object, guint number, const GValue* value, GParamSpec* /*spec*/) {
    Contain(GST_ELEMENT(object), 0,
            [&] { return SetProperty(OverlayOf(object).settings, number, value), 0; });
}

void GetElementProperty(GObject* object, guint number, GValue* value, GParamSpec* /*spec*/) {
    Contain(GST_ELEMENT(object), 0,
            [&] { return GetProperty(OverlayOf(object).settings, number, value), 0; });
}

void BeforeChange(Overlay& overlay, GstStateChange change) {
    if (change == GST_STATE_CHANGE_READY_TO_PAUSED) {
        overlay.settings.RenewFiles();
        overlay.track.Open();
    } else if (change == GST_STATE_CHANGE_PAUSED_TO_READY) {
        overlay.track.Close();
    }
}

void AfterChange(Overlay& overlay, GstStateChange change) {
    if (change == GST_STATE_CHANGE_PAUSED_TO_READY) {
        overlay.track.StartText();
        overlay.text.Reset();
        overlay.video.Reset();
    }
}

GstStateChangeReturn ChangeState(GstElement* element, GstStateChange change) {
    Contain(element, 0, [&] { return BeforeChange(OverlayOf(element), change), 0; });
    const GstStateChangeReturn result = parentClass->change_state(element, change);
    Contain(element, 0, [&] { return AfterChange(OverlayOf(element), change), 0; });
    return result;
}

void AddTemplate(GstElementClass* klass, const char* name, GstPadDirection direction, const char* text) {
    const Held<GstCaps> caps(gst_caps_from_string(text));
    gst_element_class_add_pad_template(klass,
                                       gst_pad_template_new(name, direction, GST_PAD_ALWAYS, caps.get()));
}

void InitClass(void* klass, void* /*data*/) {
    parentClass = static_cast<GstElementClass*>(g_type_class_peek_parent(klass));
    auto* const objectClass = static_cast<GObjectClass*>(klass);
    objectClass->finalize = FinishElement;
    objectClass->set_property = SetElementProperty;
    objectClass->get_property = GetElementProperty;
    InstallProperties(objectClass);

    auto* const elementClass = static_cast<GstElementClass*>(klass);
    elementClass->change_state = ChangeState;
    AddTemplate(elementClass, "video_sink", GST_PAD_SINK, videoCaps);
    AddTemplate(elementClass, "text_sink", GST_PAD_SINK, "application/ttml+xml");
    AddTemplate(elementClass, "src", GST_PAD_SRC, videoCaps);
    gst_element_class_set_static_metadata(elementClass, "TTML subtitle overlay",
                                          "Mixer/Video/Overlay/Subtitle", "Puts TTML subtitles over video",
                                          "xttml maintainers");
    x_ttml_drop_lines();
    x_ttml_try_init(); // without it every document is refused, with the reason
}

} // namespace

GType ElementType() {
    static const GType type =
        g_type_register_static_simple(GST_TYPE_ELEMENT, "XttmlOverlay", sizeof(ElementClass), InitClass,
                                      sizeof(Element), InitElement, static_cast<GTypeFlags>(0));
    return type;
}

} // namespace xttml::gstreamer
