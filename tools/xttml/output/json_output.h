// Display items as JSON. The fields are documented in docs/xttml.1.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_JSON_OUTPUT_H
#define XTTML_TOOLS_XTTML_OUTPUT_JSON_OUTPUT_H

#include "tools/xttml/document/item_origins.h"
#include "tools/xttml/output/detail.h"
#include "tools/xttml/output/known_stylings.h"
#include "tools/xttml/output/styling_json.h"

#include <string>
#include <string_view>

namespace xttml {

/// The items of a sequence as JSON. Text and no Json value: a film has thousands of them.
class JsonItems {
public:
    JsonItems(const DisplaySequence& sequence, const ItemOrigins& origins, Detail detail)
        : sequence_(sequence), origins_(origins), detail_(detail) {}

    /// An object on one line.
    std::string ToText(const DisplayItem& item);
    /// The objects of several as an array.
    std::string ToText(const ItemList& items);

private:
    std::string RunText(const Sentence& run, const DisplayItem& item);
    std::string RunsText(const DisplayItem& item);
    std::string StylingText(const StylingAttrib& styling);
    std::string DifferenceText(const StylingAttrib& run, const StylingAttrib& item);

    const DisplaySequence& sequence_;
    const ItemOrigins& origins_;
    Detail detail_;
    KnownStylings<std::string> stylings_;
    KnownStylings<KnownStylings<std::string>> differences_; // by the item's styling, then by the run's
};

/// A time; -1 when it is unknown.
MediaTime NumberOf(const std::optional<MediaTime>& time);

/// JSON on one line. Every control character in it is escaped, those beyond ASCII included; what is no UTF-8,
/// a file's name at most, becomes U+FFFD.
std::string ToText(const Json& json);

/// A JSON string of UTF-8, escaped likewise.
std::string Quoted(std::string_view text);

} // namespace xttml

#endif
