#include "players/gstreamer/properties.h"

#include <gst/gst.h>
#include <iterator>
#include <limits>

namespace xttml::gstreamer {

namespace {

constexpr auto flags =
    static_cast<GParamFlags>(static_cast<int>(G_PARAM_READWRITE) | static_cast<int>(G_PARAM_STATIC_STRINGS) |
                             GST_PARAM_MUTABLE_PLAYING);

GType TimeBaseType() {
    static const GEnumValue values[] = {
        {static_cast<int>(TimeBase::STREAM), "From the start of the stream", "stream"},
        {static_cast<int>(TimeBase::BUFFER), "From the time of the document's buffer", "buffer"},
        {0, nullptr, nullptr}};
    static const GType type = g_enum_register_static("XttmlTimeBase", values);
    return type;
}

template <std::string Files::*member>
void SetFile(Settings& settings, const GValue* value) {
    const char* const path = g_value_get_string(value);
    settings.ChangeFiles([path](Files& files) { files.*member = path ? path : ""; });
}

template <std::string Files::*member>
void GetFile(const Settings& settings, GValue* value) {
    const std::string path = settings.CurrentFiles().*member;
    g_value_set_string(value, path.empty() ? nullptr : path.c_str());
}

template <auto member, auto get>
void SetChoice(Settings& settings, const GValue* value) {
    settings.ChangeChoices([value](Choices& choices) {
        using Choice = std::remove_reference_t<decltype(choices.*member)>;
        choices.*member = static_cast<Choice>(get(value));
    });
}

template <auto member, auto set>
void GetChoice(const Settings& settings, GValue* value) {
    set(value, static_cast<int>(settings.CurrentChoices().*member));
}

GParamSpec* FileSpec(const char* name, const char* nick, const char* words) {
    return g_param_spec_string(name, nick, words, nullptr, flags);
}

GParamSpec* SwitchSpec(const char* name, const char* nick, const char* words) {
    return g_param_spec_boolean(name, nick, words, FALSE, flags);
}

GParamSpec* MillisecondsSpec(const char* name, const char* nick, const char* words) {
    using Range = std::numeric_limits<std::int32_t>;
    return g_param_spec_int(name, nick, words, Range::min(), Range::max(), 0, flags);
}

GParamSpec* TimeBaseSpec(const char* name, const char* nick, const char* words) {
    return g_param_spec_enum(name, nick, words, TimeBaseType(), static_cast<int>(TimeBase::STREAM), flags);
}

struct Property {
    const char* name;
    const char* nick;
    const char* words;
    GParamSpec* (*specify)(const char* name, const char* nick, const char* words);
    void (*set)(Settings& settings, const GValue* value);
    void (*get)(const Settings& settings, GValue* value);
};

constexpr Property properties[] = {
    {"location", "Location", "TTML file, shown where the text pad has no document", FileSpec,
     SetFile<&Files::location>, GetFile<&Files::location>},
    {"images", "Images", "File of the PNG files that location's images refer to, one after the other",
     FileSpec, SetFile<&Files::images>, GetFile<&Files::images>},
    {"offset", "Offset", "Milliseconds added to the times of the documents", MillisecondsSpec,
     SetChoice<&Choices::offset, g_value_get_int>, GetChoice<&Choices::offset, g_value_set_int>},
    {"forced-only", "Forced only", "Show only what is shown while subtitles are off", SwitchSpec,
     SetChoice<&Choices::forcedOnly, g_value_get_boolean>,
     GetChoice<&Choices::forcedOnly, g_value_set_boolean>},
    {"trusted", "Trusted", "Let documents read from now on have document types and any size", SwitchSpec,
     SetChoice<&Choices::isTrusted, g_value_get_boolean>,
     GetChoice<&Choices::isTrusted, g_value_set_boolean>},
    {"time-base", "Time base", "What the times of documents from the text pad count from", TimeBaseSpec,
     SetChoice<&Choices::timeBase, g_value_get_enum>, GetChoice<&Choices::timeBase, g_value_set_enum>},
};

const Property* Find(guint number) {
    return number >= 1 && number <= std::size(properties) ? &properties[number - 1] : nullptr;
}

} // namespace

void InstallProperties(GObjectClass* objectClass) {
    for (guint number = 1; const Property* const property = Find(number); ++number)
        g_object_class_install_property(objectClass, number,
                                        property->specify(property->name, property->nick, property->words));
    gst_type_mark_as_plugin_api(TimeBaseType(), static_cast<GstPluginAPIFlags>(0));
}

void SetProperty(Settings& settings, guint number, const GValue* value) {
    if (const Property* const property = Find(number))
        property->set(settings, value);
}

void GetProperty(const Settings& settings, guint number, GValue* value) {
    if (const Property* const property = Find(number))
        property->get(settings, value);
}

} // namespace xttml::gstreamer
