#include "parser/ttml_parser.h"

#include "runtime/number.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int32_t iInvalid = -1;
constexpr std::int32_t iLargestSixtieth = 59; // of the minutes of an hour and the seconds of a minute

struct MetricUnit {
    const char* text;
    offset_time_metric_e eMetric;
    float fMilliseconds; // 0: a rate decides
};

// In the order in which they are looked for: "ms" before "m" and "s".
constexpr MetricUnit metricUnits[] = {
    {"ms", OFFSET_METRIC_MILLISECONDS, 1}, {"m", OFFSET_METRIC_MINUTES, 60000},
    {"s", OFFSET_METRIC_SECONDS, 1000},    {"h", OFFSET_METRIC_HOURS, 3600000},
    {"f", OFFSET_METRIC_FRAMES, 0},        {"t", OFFSET_METRIC_TICKS, 0},
};

const MetricUnit* prFindUnit(const std::string& strTime) {
    for (const MetricUnit& unit : metricUnits) {
        if (strTime.find(unit.text) != std::string::npos)
            return &unit;
    }
    return nullptr;
}

/// Reads the fields of a clock time from left to right. A field is 0 when it is empty and negative when a
/// character is no digit or the number does not fit; what is read after such a field means nothing.
class ClockFields {
public:
    explicit ClockFields(const std::string& strTime)
        : pNext_(strTime.data()), pEnd_(strTime.data() + strTime.size()) {}

    /// The field before a separator; without one, all that is left.
    std::int32_t iReadUpTo(char separator) {
        const std::int32_t iValue = iRead(pEnd_, separator);
        pNext_ += pNext_ == pEnd_ ? 0 : 1;
        return iValue;
    }
    /// The first three characters of what is left.
    std::int32_t iReadThousandths() { return iRead(pNext_ + iFractionLength()); }
    /// The same as a decimal fraction in thousandths: missing digits count 0.
    std::int32_t iReadFraction() {
        const std::int32_t iPower = iMissingPowers[iFractionLength()];
        return iReadThousandths() * iPower;
    }

private:
    static constexpr int iNoSeparator = -1;
    static constexpr std::int32_t iMissingPowers[] = {1000, 100, 10, 1};

    std::ptrdiff_t iFractionLength() const { return std::min<std::ptrdiff_t>(pEnd_ - pNext_, 3); }

    std::int32_t iRead(const char* pEnd, int iSeparator = iNoSeparator) {
        std::int64_t iValue = 0;
        for (; pNext_ != pEnd && static_cast<unsigned char>(*pNext_) != iSeparator; ++pNext_) {
            if (!TtmlParser::fgIsNumberChar(*pNext_))
                return iInvalid;
            iValue = iValue * 10 + (*pNext_ - '0');
            if (iValue > std::numeric_limits<std::int32_t>::max())
                return iInvalid;
        }
        return static_cast<std::int32_t>(iValue);
    }

    const char* pNext_;
    const char* pEnd_;
};

/// Milliseconds of a clock time; -1 when a field is invalid or the sum does not fit.
std::int32_t iClockTime(std::int32_t iHours, std::int32_t iMinutes, std::int32_t iSeconds,
                        std::int64_t iMilliseconds) {
    const bool fgValid = iHours >= 0 && iMinutes >= 0 && iMinutes <= iLargestSixtieth && iSeconds >= 0 &&
                         iSeconds <= iLargestSixtieth && iMilliseconds >= 0;
    if (!fgValid)
        return iInvalid;
    const std::int64_t iTime =
        1000 * (std::int64_t{3600} * iHours + std::int64_t{60} * iMinutes + iSeconds) + iMilliseconds;
    return iTime <= std::numeric_limits<std::int32_t>::max() ? static_cast<std::int32_t>(iTime) : iInvalid;
}

std::int32_t iTruncated(double fMilliseconds) {
    constexpr double fTooLarge = 2147483648.0;
    return fMilliseconds >= 0 && fMilliseconds < fTooLarge ? static_cast<std::int32_t>(fMilliseconds)
                                                           : iInvalid;
}

/// The number of an offset time in single precision, every product and every sum rounded by itself.
float fReadSingle(const std::string& strNumber) {
    const std::size_t uPoint = std::min(strNumber.find('.'), strNumber.size());
    float fValue = 0;
    for (std::size_t i = 0; i < uPoint; ++i) {
        fValue *= 10;
        fValue += static_cast<float>(strNumber[i] - '0');
    }
    float fWeight = 1;
    for (std::size_t i = uPoint + 1; i < strNumber.size(); ++i) {
        fWeight = static_cast<float>(fWeight * 0.1);
        const float fPart = static_cast<float>(strNumber[i] - '0') * fWeight;
        fValue += fPart;
    }
    return fValue;
}

std::int32_t iFromRate(const std::string& strCount, double fRate) {
    return fRate > 0 ? iTruncated(tessera::ReadDouble(strCount.c_str()) * 1000 / fRate) : iInvalid;
}

/// Whether a text is digits with at most one point among them.
bool fgIsDecimal(const std::string& strNumber) {
    bool fgPoint = false;
    for (const char character : strNumber) {
        if (character == '.' && !fgPoint)
            fgPoint = true;
        else if (!TtmlParser::fgIsNumberChar(character))
            return false;
    }
    return true;
}

} // namespace

std::int32_t TtmlParser::iGetTimeFromString(const std::string& strTime, std::int32_t iFrameRate,
                                            double fTickRate) {
    const auto uColons = static_cast<std::uint16_t>(std::count(strTime.begin(), strTime.end(), ':'));
    switch (uColons) {
    case 0:
        return iGetOffsetTime(strTime, iFrameRate, fTickRate);
    case 2:
        return iGetClockTimeWithoutFrame(strTime);
    case 3:
        return iGetClockTimeWithFrame(strTime, iFrameRate);
    default:
        return 0;
    }
}

std::int32_t TtmlParser::iGetClockTimeWithoutFrame(const std::string& strTime) {
    ClockFields fields(strTime);
    const std::int32_t iHours = fields.iReadUpTo(':');
    const std::int32_t iMinutes = fields.iReadUpTo(':');
    const std::int32_t iSeconds = fields.iReadUpTo('.');
    return iClockTime(iHours, iMinutes, iSeconds, fields.iReadFraction());
}

std::int32_t TtmlParser::iGetClockTimeWithFrame(const std::string& strTime, std::int32_t iFrameRate) {
    ClockFields fields(strTime);
    const std::int32_t iHours = fields.iReadUpTo(':');
    const std::int32_t iMinutes = fields.iReadUpTo(':');
    const std::int32_t iSeconds = fields.iReadUpTo(':');
    const std::int64_t iFrames = fields.iReadUpTo('.');
    const std::int64_t iSubFrames = fields.iReadThousandths();
    if (iFrames < 0 || iSubFrames < 0 || iFrames >= iFrameRate)
        return iInvalid;
    return iClockTime(iHours, iMinutes, iSeconds, (1000 * iFrames + iSubFrames) / iFrameRate);
}

offset_time_metric_e TtmlParser::eGetOffsetTimeMetric(const std::string& strTime) {
    const MetricUnit* pUnit = prFindUnit(strTime);
    return pUnit ? pUnit->eMetric : OFFSET_METRIC_NONE;
}

std::int32_t TtmlParser::iGetOffsetTime(const std::string& strTime, std::int32_t iFrameRate,
                                        double fTickRate) {
    const MetricUnit* pUnit = prFindUnit(strTime);
    if (!pUnit)
        return iInvalid;
    const std::size_t uUnit = strTime.find_first_of(pUnit->text);
    const std::size_t uPoint = strTime.find('.');
    const std::string strNumber = strTime.substr(0, uUnit);
    if ((uPoint != std::string::npos && uPoint > uUnit) || !fgIsDecimal(strNumber))
        return iInvalid;
    switch (pUnit->eMetric) {
    case OFFSET_METRIC_FRAMES:
        return iFromRate(strNumber, iFrameRate);
    case OFFSET_METRIC_TICKS:
        return iFromRate(strNumber, fTickRate);
    default: {
        const float fMilliseconds = fReadSingle(strNumber) * pUnit->fMilliseconds;
        return iTruncated(static_cast<double>(fMilliseconds));
    }
    }
}

bool TtmlParser::fgIsNumberChar(char character) {
    return character >= '0' && character <= '9';
}

std::string& TtmlParser::rTrim(std::string& strText) {
    strText.erase(strText.find_last_not_of(' ') + 1);
    strText.erase(0, std::min(strText.find_first_not_of(' '), strText.size()));
    return strText;
}
