// Documents that want more of a player than to be shown.
#ifndef XTTML_TESTS_HARDENING_XML_ATTACKS_H
#define XTTML_TESTS_HARDENING_XML_ATTACKS_H

#include "runtime/exceptions.h"
#include "tests/support/captured_output.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <cstddef>
#include <string>

inline std::string Repeated(const std::string& text, std::size_t times) {
    std::string repeated;
    repeated.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

/// A tt whose document type declares things and whose content uses them.
inline std::string WithDocumentType(const std::string& declarations, const std::string& content) {
    return "<!DOCTYPE tt [" + declarations + "]><tt>" + content + "</tt>";
}

/// A text that ten times ten times ... itself is the content of.
inline std::string EntityBomb(int levels) {
    std::string declarations = "<!ENTITY e0 'boom'>";
    for (int level = 1; level <= levels; ++level) {
        const std::string inner = "&e" + std::to_string(level - 1) + ";";
        declarations += "<!ENTITY e" + std::to_string(level) + " '" + Repeated(inner, 10) + "'>";
    }
    return WithDocumentType(declarations, "&e" + std::to_string(levels) + ";");
}

/// A tt with `depth` levels of elements, itself one of them.
inline std::string NestedTo(std::size_t depth) {
    return "<tt>" + Repeated("<span>", depth - 1) + Repeated("</span>", depth - 1) + "</tt>";
}

/// The text inside the document that `load` gives, or the message of its refusal.
template <class Load>
std::string Outcome(Load&& load) {
    try {
        xercesc::DOMDocument* document = load();
        const std::string text = XercesTreeOperations::GetTextValue(document);
        XercesTreeOperations::FreeDocument(document);
        return text;
    } catch (const tessera::DataSourceUnavailableException& refusal) {
        return refusal.message();
    }
}

inline constexpr LoadOptions UNTRUSTED = {true, nullptr};

inline std::string TextOrRefusal(const std::string& document, const LoadOptions& options) {
    return Outcome([&] { return XercesTreeOperations::LoadXml(document, options); });
}

/// The same of a file; `output` becomes what the load writes to standard output.
inline std::string FileTextOrRefusal(const std::string& path, std::string& output,
                                     const LoadOptions& options = UNTRUSTED) {
    std::string outcome;
    output = CapturedOutput(
        [&] { outcome = Outcome([&] { return XercesTreeOperations::LoadDocument(path, options); }); });
    return outcome;
}

#endif
