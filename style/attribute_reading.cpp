#include "style/attribute_reading.h"

#include "style/length.h"

namespace {

constexpr float fHundredPercent = 100.0F;
constexpr std::uint32_t uHundredPercent = 100;

std::uint32_t uPercentOfLength(std::uint32_t uBase, float fPercent) {
    const float fProduct = static_cast<float>(uBase) * fPercent;
    return uWholePixels(fProduct / fHundredPercent);
}

/// Truncated before the division as well as after it.
std::uint32_t uPercentOfExtent(std::uint32_t uBase, float fPercent) {
    return uWholePixels(static_cast<float>(uBase) * fPercent) / uHundredPercent;
}

} // namespace

std::uint32_t uReadLength(const std::string& strText, const LengthRule& rule, std::uint32_t uCurrent,
                          std::uint32_t uFontSize) {
    float fValue = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    fgGetLength(strText, fValue, eUnit);
    if (eUnit == LENGTH_UNIT_PX)
        return uWholePixels(fValue);
    switch (eUnit == LENGTH_UNIT_PERCENT ? rule.ePercent : rule.eOther) {
    case LengthOutcome::PERCENTAGE:
        return uPercentOfLength(uFontSize, fValue);
    case LengthOutcome::UNCHANGED:
        return uCurrent;
    case LengthOutcome::ZERO:
        break;
    }
    return 0;
}

void vReadPair(const std::string& strText, PairOutcome eOther, const Extent& base, std::uint32_t& uFirst,
               std::uint32_t& uSecond) {
    float fFirst = 0;
    float fSecond = 0;
    length_unit_e eUnit = LENGTH_UNIT_NONE;
    fgGetDoubleLength(strText, fFirst, fSecond, eUnit);
    if (eUnit == LENGTH_UNIT_PX) {
        uFirst = uWholePixels(fFirst);
        uSecond = uWholePixels(fSecond);
    } else if (eUnit == LENGTH_UNIT_PERCENT) {
        uFirst = uPercentOfExtent(base.uWidth, fFirst);
        uSecond = uPercentOfExtent(base.uHeight, fSecond);
    } else if (eOther == PairOutcome::ZERO) {
        uFirst = 0;
        uSecond = 0;
    }
}
