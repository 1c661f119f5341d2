// Display items as JSON. The fields are documented in docs/xttml.1.
#ifndef XTTML_TOOLS_XTTML_JSON_OUTPUT_H
#define XTTML_TOOLS_XTTML_JSON_OUTPUT_H

#include "parser/display_item.h"
#include "tools/xttml/image_block.h"

#include <nlohmann/json.hpp>

namespace xttml {

/// Objects keep their fields in the order in which they are documented.
using Json = nlohmann::ordered_json;

/// Every field of an item, of its styling record and of its runs; all text is valid UTF-8.
Json ItemToJson(const DisplayItem& item, const ImageBlock& images);

/// An item or null.
Json ItemToJson(const DisplayItem* item, const ImageBlock& images);

} // namespace xttml

#endif
