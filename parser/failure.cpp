#include "parser/failure.h"

#include "parser/ttml_parser.h"
#include "runtime/exceptions.h"
#include "runtime/utf8.h"

#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>

namespace {

/// The library's 8-bit texts hold the low bytes of UTF-16 code units.
std::string strUtf8(const std::string& strNarrowed) {
    std::u16string units;
    for (const char character : strNarrowed)
        units += static_cast<unsigned char>(character);
    return tessera::Utf8FromUtf16(units);
}

failure_kind_e eKindOf(LoadFault::Kind eFault) {
    switch (eFault) {
    case LoadFault::UNREADABLE:
        return FAILURE_UNREADABLE;
    case LoadFault::MALFORMED:
        return FAILURE_MALFORMED;
    case LoadFault::REFUSED:
        return FAILURE_REFUSED;
    case LoadFault::NONE:
        break;
    }
    return FAILURE_OTHER;
}

Failure rFromLoad(const LoadFault& fault) {
    const std::string strPlace =
        fault.line ? std::to_string(fault.line) + ":" + std::to_string(fault.column) + ": " : std::string();
    return {eKindOf(fault.kind), strPlace + fault.reason, fault.line, fault.column};
}

Failure rFromValue(const std::string& strMessage, const char* attribute) {
    const std::string strName = attribute ? std::string(attribute) + ": " : std::string();
    return {FAILURE_BAD_VALUE, strName + strUtf8(strMessage), 0, 0};
}

Failure rDescribe(const LoadFault& fault, const char* attribute) {
    try {
        throw;
    } catch (const tessera::DataSourceUnavailableException& exception) {
        if (fault.kind != LoadFault::NONE)
            return rFromLoad(fault);
        return {FAILURE_OTHER, strUtf8(exception.message()), 0, 0};
    } catch (const tessera::Exception& exception) { // a value that is missing or does not convert
        return rFromValue(exception.message(), attribute);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    } catch (const std::exception& exception) {
        return {FAILURE_OTHER, exception.what(), 0, 0};
    } catch (...) {
        return {FAILURE_OTHER, "unknown exception", 0, 0};
    }
}

} // namespace

Failure rDescribeException(const LoadFault& fault, const char* attribute) noexcept {
    try {
        return rDescribe(fault, attribute);
    } catch (...) {
        return {FAILURE_OUT_OF_MEMORY, "out of memory", 0, 0}; // a text short enough to need no memory
    }
}

void TtmlParser::vForgetFailure() {
    failure_ = {};
    loadFault_ = {};
    pReadAttribute_ = nullptr;
}

void TtmlParser::vRememberFailure(failure_kind_e eKind, const char* reason) {
    failure_ = {eKind, reason, 0, 0};
}

void TtmlParser::vRememberException() noexcept {
    failure_ = rDescribeException(loadFault_, pReadAttribute_);
}
