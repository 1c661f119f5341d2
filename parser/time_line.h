// A division of the time line into parts that follow one another, and the way to the part at a time: a
// directory of equal steps leads to the few parts around it.
#ifndef XTTML_PARSER_TIME_LINE_H
#define XTTML_PARSER_TIME_LINE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

/// @tparam Part has its first ms in iBegin and lasts until the next one begins
template <class Part>
class TimeLine {
public:
    void vReserve(std::size_t uParts) { vecParts_.reserve(uParts); }
    /// Adds a part that begins no earlier than the others; the first begins at the smallest time.
    void vAdd(const Part& part) { vecParts_.push_back(part); }
    /// To be called when all parts are there.
    void vMakeDirectory();
    /// The position of the part that a time lies in; 0 when there is none.
    std::size_t uFind(std::int32_t iTime) const;

    std::size_t uGetSize() const { return vecParts_.size(); }
    Part& operator[](std::size_t uPart) { return vecParts_[uPart]; }
    const Part& operator[](std::size_t uPart) const { return vecParts_[uPart]; }

private:
    static constexpr std::size_t uPartsAStep = 4;

    std::vector<Part> vecParts_;
    std::vector<std::uint32_t> vecDirectory_; // of each step: the first part that begins in it or later;
                                              // at last the end of the parts
    std::int64_t iFirstStep_ = INT64_MAX;     // where the steps begin
    unsigned int uStepBits_ = 0;              // a step is 2^uStepBits_ ms long
};

template <class Part>
void TimeLine<Part>::vMakeDirectory() {
    if (vecParts_.size() < 2)
        return;
    iFirstStep_ = vecParts_[1].iBegin;
    const std::int64_t iSpan = vecParts_.back().iBegin - iFirstStep_;
    const auto iSteps = static_cast<std::int64_t>(vecParts_.size() / uPartsAStep + 1);
    for (uStepBits_ = 0; iSpan >> uStepBits_ >= iSteps; ++uStepBits_) {
    }
    vecDirectory_.reserve(static_cast<std::size_t>(iSpan >> uStepBits_) + 2);
    std::uint32_t uPart = 1;
    for (std::int64_t iStep = 0; iStep <= iSpan >> uStepBits_; ++iStep) {
        while (vecParts_[uPart].iBegin < iFirstStep_ + (iStep << uStepBits_))
            ++uPart;
        vecDirectory_.push_back(uPart);
    }
    vecDirectory_.push_back(static_cast<std::uint32_t>(vecParts_.size()));
}

template <class Part>
std::size_t TimeLine<Part>::uFind(std::int32_t iTime) const {
    if (iTime < iFirstStep_)
        return 0;
    const auto uSteps = static_cast<std::size_t>((iTime - iFirstStep_) >> uStepBits_);
    const std::size_t uStep = std::min(uSteps, vecDirectory_.size() - 2);
    const auto next = std::upper_bound(
        vecParts_.begin() + vecDirectory_[uStep], vecParts_.begin() + vecDirectory_[uStep + 1], iTime,
        [](std::int32_t iSought, const Part& part) { return iSought < part.iBegin; });
    return static_cast<std::size_t>(next - vecParts_.begin()) - 1;
}

#endif
