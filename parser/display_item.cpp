#include "parser/display_item.h"

#include "runtime/progress_lines.h"

Sentence::Sentence() : pStylingAttrib(nullptr), fgLineBreak(false) {}

Sentence::~Sentence() {
    delete pStylingAttrib;
}

DisplayItem::DisplayItem()
    : pRegionAttrib(nullptr), pStyleAttrib(nullptr), fgForcedDisplay(false), iBeginTime(-1), iEndTime(-1) {}

DisplayItem::~DisplayItem() = default;

void DisplayItem::vSetTime(std::int32_t iBegin, std::int32_t iEnd) {
    iBeginTime = iBegin;
    iEndTime = iEnd;
}

TextItem::TextItem() : fgCombined(false) {}

TextItem::~TextItem() {
    for (Sentence* pSentence : vecSentence)
        delete pSentence;
}

void TextItem::vSetContent(const std::string& strText) {
    strContent = strText;
}

std::string* TextItem::pstrGetContent() {
    tessera::WriteLine(strContent);
    return &strContent;
}

const std::string* TextItem::pstrGetContent() const {
    tessera::WriteLine(strContent);
    return &strContent;
}

unsigned int TextItem::uGetContentLength() const {
    return static_cast<unsigned int>(strContent.size());
}

ImageItem::ImageItem() : ImageItem(nullptr, 0) {}

ImageItem::ImageItem(const std::uint8_t* pData, std::int32_t iSize)
    : pImageData(pData), iImageDataSize(iSize) {}

ImageItem::~ImageItem() = default;

void ImageItem::SetImageURI(const std::string& strURI) {
    strImageURI = strURI;
}
