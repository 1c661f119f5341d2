#include "parser/ttml_parser.h"

#include <xercesc/util/PlatformUtils.hpp>

#include <iostream>
#include <utility>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace {

constexpr std::int32_t iUnknownTime = -1;

} // namespace

TtmlParser::TtmlParser()
    : iDocumentStartTime_(iUnknownTime), iDocumentEndTime_(iUnknownTime), iExtentWidth_(0), iExtentHeight_(0),
      iSubtitleType_(0), iDocumentBufferSize_(0), uCurrentIndex_(0), documentRoot_(nullptr) {}

TtmlParser::~TtmlParser() {
    std::cout << "destruct Parser\n";
    regionTable_.vClear();
    styleTable_.vClear();
    vClearDisplaySequence();
}

bool TtmlParser::fgHoldDocument(const Cttaf1_dfxp& loaded) {
    documentRoot_ = loaded;
    const bool fgHasRoot = documentRoot_.tt.exists();
    std::cout << (fgHasRoot ? "load from file ok\n" : "load from file failed\n");
    return fgHasRoot;
}

bool TtmlParser::fgLoadDocument(const char* path) {
    std::cout << "loadFromFile called!" << std::endl;
    xercesc::XMLPlatformUtils::Initialize();
    const Cttaf1_dfxp loaded = Cttaf1_dfxp::LoadFromFile(path ? path : "");
    std::cout << "loadFromFile finished!" << std::endl;
    return fgHoldDocument(loaded);
}

bool TtmlParser::fgLoadDocument(const void* data, unsigned int size) {
    try {
        const auto* const pBytes = static_cast<const unsigned char*>(data);
        return fgHoldDocument(Cttaf1_dfxp::LoadFromBinary(pBytes, pBytes ? size : 0));
    } catch (const tessera::DataSourceUnavailableException& exception) {
        std::cout << exception.message() << std::endl;
    } catch (...) {
        std::cout << "Unknown Exception Occured!" << std::endl;
    }
    return false;
}

void TtmlParser::vSetDocumentBuffer(const char* buffer, int size) {
    const int iSize = buffer ? size : 0;
    if (iSize >= 1) {
        std::vector<std::uint8_t> vecCopy(buffer, buffer + iSize);
        if (fgItemsUseDocumentBuffer())
            vecEarlierBuffers_.push_back(std::move(vecDocumentBuffer_));
        vecDocumentBuffer_ = std::move(vecCopy);
        aImageTable_.fill({});
    }
    iDocumentBufferSize_ = iSize;
}

void TtmlParser::vCloseDocument() {
    std::cout << "Close Document!" << std::endl;
    if (documentRoot_.GetNode())
        documentRoot_.DestroyDocument();
    std::cout << "Document Closed!" << std::endl;
}

void TtmlParser::vXercesInit() {
    std::cout << "Initialize Xerces" << std::endl;
    xercesc::XMLPlatformUtils::Initialize();
}

void TtmlParser::vXercesTerminate() {
    std::cout << "Terminate Xerces" << std::endl;
    xercesc::XMLPlatformUtils::Terminate();
}

void TtmlParser::vGenerateRegionAttribSequence() {
    const Extent root = {static_cast<std::uint32_t>(iExtentWidth_),
                         static_cast<std::uint32_t>(iExtentHeight_)};
    regionTable_.vGenerate(documentRoot_.tt.first(), root);
}

void TtmlParser::vGenerateStyleAttribSequence() {
    styleTable_.vGenerate(documentRoot_.tt.first());
}

const StylingAttrib* TtmlParser::prGetRegionByID(const std::string& strId) const {
    return regionTable_.prGetByID(strId);
}

const StylingAttrib* TtmlParser::prGetStyleByID(const std::string& strId) const {
    return styleTable_.prGetByID(strId);
}

StylingAttribGroup TtmlParser::rGetRegionByID(const std::string& strId) const {
    return regionTable_.rGetByID(strId);
}

StylingAttribGroup TtmlParser::rGetStyleByID(const std::string& strId) const {
    return styleTable_.rGetByID(strId);
}
