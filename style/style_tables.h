// The table of styles and the table of regions that a document declares, with lookup by xml:id.
//
// Entries stand in document order, earlier generations first, and never move: display items point at their
// records. A lookup gives the first entry with the identifier, compared byte for byte.
#ifndef XTTML_STYLE_STYLE_TABLES_H
#define XTTML_STYLE_STYLE_TABLES_H

#include "binding/ttaf1_dfxp.h"
#include "style/attribute_reading.h"
#include "style/styling_attrib.h"

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <string_view>

/// What both tables share.
class StylingTable {
public:
    /// The record of an entry, owned by the table and not to be changed; null when the identifier is unknown.
    StylingAttrib* prGetByID(const std::string& strId) const;
    /// A copy of an entry; a default group when the identifier is unknown.
    StylingAttribGroup rGetByID(const std::string& strId) const;
    /// How many entries there are.
    std::size_t uGetCount() const { return entries_.size(); }
    /// Removes all entries; records handed out before are gone.
    void vClear();

protected:
    void vAppend(const StylingAttribGroup& group);

private:
    StylingAttribGroup* prFind(const std::string& strId) const;

    std::deque<StylingAttribGroup> entries_;
    // Ordered: a document could choose identifiers with one hash. The keys stand in the entries.
    std::map<std::string_view, StylingAttribGroup*> firstById_;
};

class StyleTable : public StylingTable {
public:
    /// Appends an entry for each style of the first head/styling below `root` (may wrap null).
    void vGenerate(const ttaf1_dfxp::tt::Ctt_eltype& root);
};

class RegionTable : public StylingTable {
public:
    /// Appends an entry for each region of the first head/layout below `root` (may wrap null).
    /// @param rootExtent the extent of a region that gives none, and what percentages are of
    void vGenerate(const ttaf1_dfxp::tt::Ctt_eltype& root, const Extent& rootExtent);
};

#endif
