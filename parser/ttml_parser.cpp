#include "parser/ttml_parser.h"

#include "runtime/progress_lines.h"
#include "xmltree/xml_library.h"

#include <utility>

#include <cxxabi.h>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace {

constexpr std::int32_t iUnknownTime = -1;

} // namespace

TtmlParser::TtmlParser()
    : iDocumentStartTime_(iUnknownTime), iDocumentEndTime_(iUnknownTime), iExtentWidth_(0), iExtentHeight_(0),
      iSubtitleType_(0), iDocumentBufferSize_(0), uCurrentIndex_(0), documentRoot_(nullptr) {}

TtmlParser::~TtmlParser() {
    tessera::WriteLineUnflushed("destruct Parser");
    regionTable_.vClear();
    styleTable_.vClear();
    vClearDisplaySequence();
}

LoadOptions TtmlParser::rTellingFault() {
    LoadOptions options = loadOptions_;
    loadFault_ = {};
    options.fault = &loadFault_;
    return options;
}

bool TtmlParser::fgHoldDocument(const Cttaf1_dfxp& loaded) {
    documentRoot_ = loaded;
    const bool fgHasRoot = documentRoot_.tt.exists();
    tessera::WriteLineUnflushed(fgHasRoot ? "load from file ok" : "load from file failed");
    return fgHasRoot;
}

bool TtmlParser::fgLoadDocument(const char* path) {
    tessera::WriteLine("loadFromFile called!");
    xml_library::Initialise();
    const Cttaf1_dfxp loaded = Cttaf1_dfxp::LoadFromFile(path ? path : "", rTellingFault());
    tessera::WriteLine("loadFromFile finished!");
    return fgHoldDocument(loaded);
}

bool TtmlParser::fgLoadDocument(const void* data, unsigned int size) {
    try {
        const auto* const pBytes = static_cast<const unsigned char*>(data);
        return fgHoldDocument(Cttaf1_dfxp::LoadFromBinary(pBytes, pBytes ? size : 0, rTellingFault()));
    } catch (const tessera::DataSourceUnavailableException& exception) {
        vRememberException();
        tessera::WriteLine(exception.message());
    } catch (const abi::__forced_unwind&) { // a cancelled thread unwinds through here and must not be stopped
        throw;
    } catch (...) {
        vRememberException();
        tessera::WriteLine("Unknown Exception Occured!");
    }
    return false;
}

void TtmlParser::vSetDocumentBuffer(const char* buffer, int size) {
    iDocumentBufferSize_ = size;
    if (!buffer || size < 1)
        return;
    std::vector<std::uint8_t> vecCopy(buffer, buffer + size);
    if (fgItemsUseDocumentBuffer())
        vecEarlierBuffers_.push_back(std::move(vecDocumentBuffer_));
    vecDocumentBuffer_ = std::move(vecCopy);
    aImageTable_.fill({});
}

void TtmlParser::vCloseDocument() {
    tessera::WriteLine("Close Document!");
    if (documentRoot_.GetNode())
        documentRoot_.DestroyDocument();
    tessera::WriteLine("Document Closed!");
}

void TtmlParser::vXercesInit() {
    tessera::WriteLine("Initialize Xerces");
    xml_library::Initialise();
}

void TtmlParser::vXercesTerminate() {
    tessera::WriteLine("Terminate Xerces");
    xml_library::Terminate();
}

void TtmlParser::vGenerateRegionAttribSequence() {
    const Extent root = {static_cast<std::uint32_t>(iExtentWidth_),
                         static_cast<std::uint32_t>(iExtentHeight_)};
    regionTable_.vGenerate(documentRoot_.tt.first(), root);
}

void TtmlParser::vGenerateStyleAttribSequence() {
    styleTable_.vGenerate(documentRoot_.tt.first());
}

StylingAttrib* TtmlParser::prGetRegionByID(const std::string& strId) const {
    return regionTable_.prGetByID(strId);
}

StylingAttrib* TtmlParser::prGetStyleByID(const std::string& strId) const {
    return styleTable_.prGetByID(strId);
}

StylingAttribGroup TtmlParser::rGetRegionByID(const std::string& strId) const {
    return regionTable_.rGetByID(strId);
}

StylingAttribGroup TtmlParser::rGetStyleByID(const std::string& strId) const {
    return styleTable_.rGetByID(strId);
}
