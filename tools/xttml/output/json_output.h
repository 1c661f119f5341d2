// Display items as JSON. The fields are documented in docs/xttml.1.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_JSON_OUTPUT_H
#define XTTML_TOOLS_XTTML_OUTPUT_JSON_OUTPUT_H

#include "tools/xttml/document/item_origins.h"

#include <nlohmann/json.hpp>

namespace xttml {

/// Objects keep their fields in the order in which they are documented.
using Json = nlohmann::ordered_json;

/// How much of an item is told.
enum class Detail {
    ESSENTIAL, ///< without what the library does not use and what a run has as its item has it
    FULL       ///< every field of the item, of its records and of its runs
};

/// The items of a sequence as JSON.
class JsonItems {
public:
    JsonItems(const DisplaySequence& sequence, const ItemOrigins& origins, Detail detail)
        : sequence_(sequence), origins_(origins), detail_(detail) {}

    Json ToJson(const DisplayItem& item) const;
    /// An item or null.
    Json ToJson(const DisplayItem* item) const { return item ? ToJson(*item) : Json(); }

private:
    Json RunsToJson(const DisplayItem& item) const;

    const DisplaySequence& sequence_;
    const ItemOrigins& origins_;
    Detail detail_;
};

/// A time; -1 when it is unknown.
Json TimeToJson(const std::optional<MediaTime>& time);

/// A text or null.
Json TextToJson(const std::optional<std::string>& text);

/// JSON on one line. Every control character in it is escaped, those beyond ASCII included; what is no UTF-8, a
/// file's name at most, becomes U+FFFD.
std::string ToText(const Json& json);

} // namespace xttml

#endif
