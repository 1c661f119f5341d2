#include "xmltree/tree_operations.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr int HAS_MARK = 0x10;
constexpr int IS_BIG_ENDIAN = 0x20;
constexpr int MARK_LENGTH_SHIFT = 8;
constexpr int MARK_LENGTH_MASK = 0xF;

/// XML 1.0, appendix F: how a document in a known encoding begins.
struct Beginning {
    int length;
    unsigned char bytes[3];
    int reading;
};

constexpr Beginning BEGINNINGS[] = {
    {2, {0xFE, 0xFF}, 2 | HAS_MARK | IS_BIG_ENDIAN | (2 << MARK_LENGTH_SHIFT)},
    {2, {0xFF, 0xFE}, 2 | HAS_MARK | (2 << MARK_LENGTH_SHIFT)},
    {2, {0x00, 0x3C}, 2 | IS_BIG_ENDIAN},
    {2, {0x3C, 0x00}, 2},
    {3, {0xEF, 0xBB, 0xBF}, 1 | HAS_MARK | (3 << MARK_LENGTH_SHIFT)},
};
constexpr std::size_t LONGEST_BEGINNING = 3;

struct EncodingName {
    const char* part;
    int unitSize;
};

constexpr EncodingName ENCODING_NAMES[] = {{"UTF-8", 1}, {"UTF-16", 2}, {"UCS-2", 2}};

Bytes MarkFor(int unitSize, bool bigEndian) {
    if (unitSize == 1) {
        return {0xEF, 0xBB, 0xBF};
    }
    return bigEndian ? Bytes{0xFE, 0xFF} : Bytes{0xFF, 0xFE};
}

std::ptrdiff_t PutInFront(Bytes& data, const Bytes& mark) {
    data.insert(data.begin(), mark.begin(), mark.end());
    return static_cast<std::ptrdiff_t>(mark.size());
}

void SwapUnits(Bytes& data, std::ptrdiff_t start) {
    for (std::size_t i = static_cast<std::size_t>(start); i + 1 < data.size(); i += 2) {
        std::swap(data[i], data[i + 1]);
    }
}

} // namespace

int XercesTreeOperations::GetEncodingAndByteOrderFromXml(const unsigned char* data, int size) {
    for (const Beginning& known : BEGINNINGS) {
        if (data && size >= known.length && std::equal(known.bytes, known.bytes + known.length, data)) {
            return known.reading;
        }
    }
    return 0;
}

int XercesTreeOperations::GetEncodingAndByteOrderFromXml(const Bytes& data) {
    return GetEncodingAndByteOrderFromXml(data.data(),
                                          static_cast<int>(std::min(data.size(), LONGEST_BEGINNING)));
}

std::string XercesTreeOperations::Uppercase(const std::string& s) {
    std::string upper = s;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char byte) { return static_cast<char>(std::toupper(byte)); });
    return upper;
}

int XercesTreeOperations::GetUnicodeSizeFromEncodingName(const std::string& name) {
    const std::string upper = Uppercase(name);
    for (const EncodingName& known : ENCODING_NAMES) {
        if (upper.find(known.part) != std::string::npos) {
            return known.unitSize;
        }
    }
    return 0;
}

void XercesTreeOperations::CorrectByteOrderAndBOM(Bytes& data, const std::string& encoding, bool bigEndian,
                                                  bool withBOM) {
    const int unitSize = GetUnicodeSizeFromEncodingName(encoding);
    if (data.empty() || unitSize == 0) {
        return;
    }
    const bool wantsBigEndian = bigEndian && unitSize == 2;
    const int current = GetEncodingAndByteOrderFromXml(data);
    const bool hasMark = (current & HAS_MARK) != 0;
    const bool isBigEndian = (current & IS_BIG_ENDIAN) != 0;
    if (hasMark == withBOM && isBigEndian == wantsBigEndian) {
        return;
    }
    const std::ptrdiff_t unwanted = withBOM ? 0 : (current >> MARK_LENGTH_SHIFT) & MARK_LENGTH_MASK;
    const bool lacksMark = withBOM && !hasMark;
    const std::ptrdiff_t textStart =
        lacksMark ? PutInFront(data, MarkFor(unitSize, wantsBigEndian)) : unwanted;
    if (unitSize == 2 && isBigEndian != wantsBigEndian) {
        SwapUnits(data, textStart);
    }
    data.erase(data.begin(), data.begin() + unwanted);
}
