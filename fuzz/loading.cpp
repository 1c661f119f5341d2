// Any bytes as a document: loading them from memory gives what the XML library gives.
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "runtime/exceptions.h"
#include "tests/support/plain_parse.h"
#include "xmltree/tree_operations.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(bytes, bytes + size);
    PlainParse plain(text);
    try {
        xercesc::DOMDocument* document = XercesTreeOperations::LoadXml(text);
        Require(plain.Message().empty(), "what loads is well-formed");
        Require(plain.IsSame(*document), "it is the document that the XML library reads");
        XercesTreeOperations::FreeDocument(document);
    } catch (const tessera::DataSourceUnavailableException& failure) {
#ifndef XTTML_UNTRUSTED_XML // which refuses more, in words of its own
        Require(failure.message() == plain.Message(), "a failure is the XML library's");
#endif
    }
    return 0;
}
