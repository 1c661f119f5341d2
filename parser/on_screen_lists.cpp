#include "parser/on_screen_lists.h"

namespace {

constexpr std::uint32_t uSpareItems = 4;

} // namespace

void OnScreenLists::vAddChange(std::int32_t iTime, std::uint32_t uBegun, std::uint32_t uEnded) {
    if (windows_.uGetSize() == 0)
        windows_.vAdd({INT32_MIN, 0, 0});
    uOnScreen_ = uOnScreen_ + uBegun - uEnded;
    uFewest_ = std::min(uFewest_, uOnScreen_);
    if (uListed_ + uBegun <= 2 * uFewest_ + uSpareItems) {
        uListed_ += uBegun;
    } else {
        uListedBefore_ += uListed_;
        windows_.vAdd({iTime, uListedBefore_, uListedBefore_});
        uFewest_ = uListed_ = uOnScreen_;
    }
}

void OnScreenLists::vFill(const std::vector<TimeSpan>& vecSpans) {
    windows_.vMakeDirectory();
    vecListed_.resize(uListedBefore_ + uListed_);
    for (std::uint32_t uItem = 0; uItem < vecSpans.size(); ++uItem) {
        const TimeSpan& span = vecSpans[uItem];
        if (span.fgIsEmpty())
            continue;
        for (std::size_t i = windows_.uFind(span.iBegin);
             i < windows_.uGetSize() && windows_[i].iBegin <= span.iEnd; ++i)
            vecListed_[windows_[i].uEnd++] = {span, uItem};
    }
}
