#include "style/length.h"

#include "runtime/number.h"

#include <iostream>
#include <limits>
#include <new>

#include <regex.h>

namespace {

constexpr char pixelPairPattern[] = "^[0-9]+(\\.[0-9]+)?px\\s[0-9]+(\\.[0-9]+)?px$";
constexpr char percentPairPattern[] = "^[0-9]+(\\.[0-9]+)?%\\s[0-9]+(\\.[0-9]+)?%$";
constexpr char lengthPattern[] = "^[0-9]+(\\.[0-9]+)?(px|%|c|em)$";

/// A pattern that is compiled once for the life of the process.
class CompiledPattern {
public:
    /// Throws std::bad_alloc, so that the next length compiles the pattern after all.
    explicit CompiledPattern(const char* pattern) {
        const int iError = regcomp(&expression_, pattern, REG_EXTENDED | REG_NOSUB);
        if (iError == REG_ESPACE)
            throw std::bad_alloc();
        fgValid_ = iError == 0;
    }
    ~CompiledPattern() {
        if (fgValid_)
            regfree(&expression_);
    }
    CompiledPattern(const CompiledPattern&) = delete;
    CompiledPattern& operator=(const CompiledPattern&) = delete;

    bool fgIsValid() const { return fgValid_; }
    bool fgMatches(const std::string& strText) const {
        return fgValid_ && regexec(&expression_, strText.c_str(), 0, nullptr, 0) == 0;
    }

private:
    regex_t expression_;
    bool fgValid_;
};

/// The characters by which a unit is found, in the order in which units are looked for.
struct UnitMark {
    const char* characters;
    length_unit_e eUnit;
};

constexpr UnitMark unitMarks[] = {
    {"px", LENGTH_UNIT_PX},
    {"%", LENGTH_UNIT_PERCENT},
    {"c", LENGTH_UNIT_C},
    {"em", LENGTH_UNIT_EM},
};

/// A form of pair: the numbers stand before and after the mark that ends the first length.
struct PairForm {
    const CompiledPattern& pattern;
    const char* markCharacters;
    std::string::size_type uMarkLength;
    length_unit_e eUnit;
};

float fNarrow(double value) {
    constexpr double largest = std::numeric_limits<float>::max();
    if (value > largest)
        return std::numeric_limits<float>::infinity();
    if (value < -largest)
        return -std::numeric_limits<float>::infinity();
    return static_cast<float>(value);
}

bool fgReadPair(const PairForm& form, const std::string& strText, float& fFirst, float& fSecond,
                length_unit_e& eUnit) {
    if (!form.pattern.fgMatches(strText))
        return false;
    const std::string::size_type uMark = strText.find_first_of(form.markCharacters);
    fFirst = fStr2Float(strText.substr(0, uMark));
    fSecond = fStr2Float(strText.substr(uMark + form.uMarkLength));
    eUnit = form.eUnit;
    return true;
}

} // namespace

bool fgGetLength(const std::string& strText, float& fValue, length_unit_e& eUnit) {
    static const CompiledPattern pattern(lengthPattern);
    fValue = 0;
    eUnit = LENGTH_UNIT_NONE;
    if (!pattern.fgIsValid()) {
        std::cout << "incorrect regular express: " << lengthPattern << std::endl;
        return false;
    }
    if (!pattern.fgMatches(strText))
        return false;
    for (const UnitMark& mark : unitMarks) {
        const std::string::size_type uPosition = strText.find_first_of(mark.characters);
        if (uPosition == std::string::npos)
            continue;
        eUnit = mark.eUnit;
        const std::string strNumber = strText.substr(0, uPosition);
        std::cout << strNumber << std::endl;
        fValue = fStr2Float(strNumber);
        return true;
    }
    return false;
}

bool fgGetDoubleLength(const std::string& strText, float& fFirst, float& fSecond, length_unit_e& eUnit) {
    static const CompiledPattern pixelPair(pixelPairPattern);
    static const CompiledPattern percentPair(percentPairPattern);
    fFirst = 0;
    fSecond = 0;
    eUnit = LENGTH_UNIT_NONE;
    return fgReadPair({pixelPair, "px", 2, LENGTH_UNIT_PX}, strText, fFirst, fSecond, eUnit) ||
           fgReadPair({percentPair, "%", 1, LENGTH_UNIT_PERCENT}, strText, fFirst, fSecond, eUnit);
}

float fStr2Float(const std::string& strText) {
    return fNarrow(tessera::ReadDouble(strText.c_str()));
}
