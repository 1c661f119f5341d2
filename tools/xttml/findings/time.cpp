// Times that are not read or not as they were meant.
#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/findings/finding_kinds.h"
#include "tools/xttml/findings/hidden_time.h"
#include "tools/xttml/findings/time_faults.h"

#include <algorithm>
#include <fmt/format.h>

namespace xttml {

namespace {

constexpr std::int32_t unknownTime = -1;
constexpr const char* neverOnScreen = "it is never on screen";

bool Has(const Element& element, const AttributeName& name) {
    return static_cast<bool>(AttributeOf(*element.node, name));
}

void FindMissingBegin(const CheckedDocument&, const Element& element, const Report& report) {
    if (element.item && !Has(element, beginName) && x_ttml_item_get_end(element.item) != unknownTime)
        report(element, "",
               "no begin: it is on screen from the start, and counts as yet to come at any time");
}

void FindMissingEnd(const CheckedDocument&, const Element& element, const Report& report) {
    if (!Has(element, endName) && !Has(element, durName))
        report(element, "", std::string("no end: ") + neverOnScreen);
}

void FindDuration(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute duration = AttributeOf(*element.node, durName);
    if (duration)
        report(element, duration.Written(),
               Has(element, endName) ? std::string("not read: its end alone counts")
                                     : std::string("not read: without an end ") + neverOnScreen);
}

void FindSequence(const CheckedDocument&, const Element& element, const Report& report) {
    const Attribute container = AttributeOf(*element.node, {noNamespace, "timeContainer"});
    if (container && container.Value() == "seq")
        report(element, container.Written(), "not read: what it holds does not come one after the other");
}

/// Whether a time is 0 in whichever way it is written, which is what it counts as when it is not read.
bool IsZero(const Attribute& time) {
    return time.Value().find_first_of("123456789") == std::string::npos;
}

void FindTimesOfContainer(const CheckedDocument&, const Element& element, const Report& report) {
    for (const AttributeName& name : {beginName, endName, durName}) {
        const Attribute time = AttributeOf(*element.node, name);
        if (time && !(time.HasLocalName(beginName.localName) && IsZero(time))) {
            report(element, time.Written(), "not read: only times of paragraphs and pictures are");
            return;
        }
    }
}

/// A begin or an end with what the library makes of it.
struct ReadTime {
    Attribute attribute;
    std::int32_t milliseconds;
    const char* loss; ///< when it is not known
};

/// Calls back for each that is not read, with what is wrong with it.
template <class Take>
void VisitUnread(const CheckedDocument& document, const Element& element, Take&& take) {
    if (!element.item)
        return;
    const std::int32_t end = x_ttml_item_get_end(element.item);
    const ReadTime times[] = {{AttributeOf(*element.node, beginName), x_ttml_item_get_begin(element.item),
                               end == unknownTime ? neverOnScreen : "it is on screen from the start"},
                              {AttributeOf(*element.node, endName), end, neverOnScreen}};
    for (const ReadTime& time : times) {
        if (time.attribute && (time.milliseconds == unknownTime || HasColonsOfNoTime(time.attribute.Value())))
            take(time, FaultOfTime(time.attribute.Value(), document.FrameRate()));
    }
}

void FindUnreadableTime(const CheckedDocument& document, const Element& element, const Report& report) {
    VisitUnread(document, element, [&](const ReadTime& time, const std::string& fault) {
        if (!fault.empty())
            report(element, time.attribute.Written(),
                   time.milliseconds == unknownTime ? fmt::format("not read ({}): {}", fault, time.loss)
                                                    : fmt::format("counts as 0: {}", fault));
    });
}

void FindTimeTooLarge(const CheckedDocument& document, const Element& element, const Report& report) {
    VisitUnread(document, element, [&](const ReadTime& time, const std::string& fault) {
        if (fault.empty())
            report(element, time.attribute.Written(),
                   fmt::format("beyond 2147483647 ms, which is no time: {}", time.loss));
    });
}

void FindEndBeforeBegin(const CheckedDocument&, const Element& element, const Report& report) {
    if (!element.item)
        return;
    const std::int32_t end = x_ttml_item_get_end(element.item);
    if (end != unknownTime && end < x_ttml_item_get_begin(element.item))
        report(element, AttributeOf(*element.node, endName).Written(),
               std::string("comes before its begin: ") + neverOnScreen);
}

// An end is on screen, too: what begins at that millisecond is hidden in it, which nobody sees.
bool IsHidden(const HiddenTime& time) {
    return time.hidden > 1 || (time.hidden == 1 && time.onScreen == 1);
}

void FindHidden(const CheckedDocument& document, const Report& report) {
    std::vector<const Element*> elements; // one an item
    for (const Element& element : document.Elements()) {
        if (element.item)
            elements.push_back(&element);
    }
    if (elements.empty())
        return;
    const std::vector<HiddenTime> times = FindHiddenTimes(*document.Sequence());
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (IsHidden(times[i]))
            report(*elements[i], "",
                   fmt::format("hidden from the query by time for {} of its time, first by that of line {}",
                               times[i].hidden == times[i].onScreen ? "all"
                                                                    : fmt::format("{} ms", times[i].hidden),
                               elements[times[i].by]->place.line));
    }
}

bool CountsFrames(const Element& element) {
    for (const AttributeName& name : {beginName, endName}) {
        const std::string time = AttributeOf(*element.node, name).Value();
        if (std::count(time.begin(), time.end(), ':') == 3 || (!time.empty() && time.back() == 'f'))
            return true;
    }
    return false;
}

bool CountsFrames(const CheckedDocument& document) {
    return std::any_of(document.Elements().begin(), document.Elements().end(),
                       [](const Element& element) { return element.item && CountsFrames(element); });
}

void FindFrameRateMultiplier(const CheckedDocument& document, const Element& root, const Report& report) {
    const Attribute multiplier = AttributeOf(*root.node, {parameterNamespace, "frameRateMultiplier"});
    if (!multiplier || multiplier.Value() == "1 1" || multiplier.Value() == "1:1" || !CountsFrames(document))
        return;
    report(root, multiplier.Written(),
           fmt::format("not read: {} frames last exactly a second", document.FrameRate()));
}

void FindTimeBase(const CheckedDocument&, const Element& root, const Report& report) {
    const Attribute base = AttributeOf(*root.node, {parameterNamespace, "timeBase"});
    if (base && base.Value() != "media")
        report(root, base.Written(), "not read: times count from the beginning of the media");
}

} // namespace

const FindingKinds& TimeFindings() {
    static const FindingKinds kinds = {
        {"no-begin", "A paragraph without begin", OnEach<FindMissingBegin, Role::PARAGRAPH>},
        {"no-end", "A paragraph without end", OnEach<FindMissingEnd, Role::PARAGRAPH>},
        {"dur", "A duration", OnEach<FindDuration, Role::PARAGRAPH, Role::PICTURE>},
        {"seq", "Elements that are to be shown one after the other",
         OnEach<FindSequence, Role::BODY, Role::DIVISION, Role::PICTURE, Role::PARAGRAPH, Role::SPAN>},
        {"container-time", "Times of a body, division, span, line break or region",
         OnEach<FindTimesOfContainer, Role::BODY, Role::DIVISION, Role::SPAN, Role::LINE_BREAK,
                Role::REGION>},
        {"unreadable-time", "A time expression that is not read, and why",
         OnEach<FindUnreadableTime, Role::PARAGRAPH, Role::PICTURE>},
        {"time-too-large", "A time beyond 32-bit milliseconds",
         OnEach<FindTimeTooLarge, Role::PARAGRAPH, Role::PICTURE>},
        {"end-before-begin", "An end that comes before the begin",
         OnEach<FindEndBeforeBegin, Role::PARAGRAPH, Role::PICTURE>},
        {"hidden", "An item that another one hides from the query by time", FindHidden},
        {"frame-rate", "A frame rate that is not a whole number",
         OnEach<FindFrameRateMultiplier, Role::ROOT>},
        {"time-base", "Times that do not count from the beginning of the media",
         OnEach<FindTimeBase, Role::ROOT>},
    };
    return kinds;
}

} // namespace xttml
