// What has been made of styling records.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_KNOWN_STYLINGS_H
#define XTTML_TOOLS_XTTML_OUTPUT_KNOWN_STYLINGS_H

#include "tools/xttml/output/styling_json.h"

#include <algorithm>
#include <vector>

namespace xttml {

/// Things made of styling records, each kept for the records that are alike: most items share a few.
template <class Made>
class KnownStylings {
public:
    /// The thing of a record, until the next call.
    template <class Make>
    Made& Of(const StylingAttrib& styling, Make&& make) {
        constexpr std::size_t mostKnown = 16;
        const auto found = std::find_if(known_.begin(), known_.end(),
                                        [&](const Known& known) { return AreAlike(known.styling, styling); });
        if (found != known_.end())
            return found->made;
        if (known_.size() == mostKnown)
            known_.clear();
        known_.push_back({styling, make(styling)});
        return known_.back().made;
    }

private:
    struct Known {
        StylingAttrib styling;
        Made made;
    };

    std::vector<Known> known_;
};

} // namespace xttml

#endif
