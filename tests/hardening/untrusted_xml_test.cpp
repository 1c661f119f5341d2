// What is refused of untrusted documents, and what is said of it.
#include "api/x_ttml_items.h"
#include "runtime/exceptions.h"
#include "tests/support/captured_output.h"
#include "tests/support/repeated.h"
#include "tests/support/temporary_file.h"
#include "tests/support/xerces_session.h"
#include "xmltree/transcode.h"
#include "xmltree/tree_operations.h"

#include <stdlib.h>

namespace {

/// A tt whose document type declares things and whose content uses them.
std::string WithDocumentType(const std::string& declarations, const std::string& content) {
    return "<!DOCTYPE tt [" + declarations + "]><tt>" + content + "</tt>";
}

/// A text that ten times ten times ... itself is the content of.
std::string EntityBomb(int levels) {
    std::string declarations = "<!ENTITY e0 'boom'>";
    for (int level = 1; level <= levels; ++level) {
        const std::string inner = "&e" + std::to_string(level - 1) + ";";
        declarations += "<!ENTITY e" + std::to_string(level) + " '" + Repeated(inner, 10) + "'>";
    }
    return WithDocumentType(declarations, "&e" + std::to_string(levels) + ";");
}

/// A tt with `depth` levels of elements, itself one of them.
std::string NestedTo(std::size_t depth) {
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

constexpr LoadOptions UNTRUSTED = {true, nullptr};

std::string TextOrRefusal(const std::string& document, const LoadOptions& options) {
    return Outcome([&] { return XercesTreeOperations::LoadXml(document, options); });
}

/// The same of a file; `output` becomes what the load writes to standard output.
std::string FileTextOrRefusal(const std::string& path, std::string& output,
                              const LoadOptions& options = UNTRUSTED) {
    std::string outcome;
    output = CapturedOutput(
        [&] { outcome = Outcome([&] { return XercesTreeOperations::LoadDocument(path, options); }); });
    return outcome;
}

constexpr std::size_t MAX_BYTES = XTTML_UNTRUSTED_MAX_BYTES;
constexpr char NO_DOCUMENT_TYPE[] =
    "Xerces SAX error while loading: A document type declaration is not allowed.";

std::string TooLarge() {
    return "Xerces SAX error while loading: The document is larger than " + std::to_string(MAX_BYTES) +
           " bytes.";
}

/// A well-formed document of so many bytes.
std::string OfSize(std::size_t size) {
    const std::string begin = "<tt>";
    const std::string end = "</tt>";
    return begin + std::string(size - begin.size() - end.size(), ' ') + end;
}

TEST(UntrustedXml, RefusesDocumentTypes) {
    const XercesSession session;
    const std::string documents[] = {
        "<!DOCTYPE tt><tt/>",
        "<!DOCTYPE tt []><tt/>",
        "<!DOCTYPE tt SYSTEM '/etc/hostname'><tt>&e;</tt>",
        "<!DOCTYPE tt PUBLIC 'public' 'http://127.0.0.1/'><tt>&e;</tt>",
        WithDocumentType("<!ENTITY e SYSTEM '/etc/hostname'>", "&e;"),
        WithDocumentType("<!ENTITY % p SYSTEM '/etc/hostname'> %p;", "&e;"),
        WithDocumentType("<!ATTLIST tt id CDATA 'default'>", ""),
        EntityBomb(9),
        "<?xml version='1.1'?><!-- first --><!DOCTYPE tt><tt/>",
    };
    for (const std::string& document : documents)
        EXPECT_EQ(TextOrRefusal(document, UNTRUSTED), NO_DOCUMENT_TYPE) << document;
    EXPECT_EQ(TextOrRefusal("<tt>&lt;&#65;&amp;</tt>", UNTRUSTED), "<A&");
}

std::string Letters(std::size_t length) {
    return std::string(length, 'v');
}

/// A tt with so many pieces, the number of the piece in each.
std::string Numbered(const std::string& before, const std::string& after, std::size_t count) {
    std::string content = "<tt>";
    for (std::size_t i = 0; i < count; ++i)
        content.append(before).append(std::to_string(i)).append(after);
    return content + "</tt>";
}

std::string WithAttributes(std::size_t count) {
    std::string tag = "<tt";
    for (std::size_t i = 0; i < count; ++i)
        tag += " a" + std::to_string(i) + "=''";
    return tag + "/>";
}

/// A tt that makes so many declarations, of one namespace, at three levels.
std::string Declaring(std::size_t count) {
    std::string tags[3] = {"<tt", "<a", "<a"};
    for (std::size_t i = 0; i < count; ++i)
        tags[i % 3] += i == 0 ? " xmlns='u'" : " xmlns:p" + std::to_string(i / 3) + "='u'";
    return tags[0] + ">" + tags[1] + ">" + tags[2] + "/></a></tt>";
}

std::string WithColor(const char* namespaceName, std::size_t length) {
    return std::string("<tt xmlns:s='") + namespaceName + "' s:color='" + Letters(length) + "'/>";
}

TEST(UntrustedXml, BoundsWhatADocumentHas) {
    const XercesSession session;
    constexpr std::size_t depth = XTTML_UNTRUSTED_MAX_DEPTH;
    constexpr std::size_t nodes = XTTML_UNTRUSTED_MAX_NODES;
    constexpr std::size_t attributes = XTTML_UNTRUSTED_MAX_ATTRIBUTES;
    constexpr std::size_t value = XTTML_UNTRUSTED_MAX_VALUE;
    constexpr std::size_t stylingValue = XTTML_UNTRUSTED_MAX_STYLING_VALUE;
    constexpr std::size_t names = XTTML_UNTRUSTED_MAX_NAMES;
    constexpr std::size_t name = XTTML_UNTRUSTED_MAX_NAME;
    constexpr std::size_t namespaces = XTTML_UNTRUSTED_MAX_NAMESPACES;
    constexpr std::size_t namespaceLength = XTTML_UNTRUSTED_MAX_NAMESPACE;
    constexpr std::size_t declarations = XTTML_UNTRUSTED_MAX_DECLARATIONS;
    constexpr char styling[] = "http://www.w3.org/ns/ttml#styling";
    const auto content = [](const std::string& piece, std::size_t count) {
        return "<tt>" + Repeated(piece, count) + "</tt>";
    };
    const auto tag = [](std::size_t length) { return "<" + Letters(length) + "/>"; };
    const auto valued = [](std::size_t length) { return "<tt id='" + Letters(length) + "'/>"; };
    const auto message = [](const char* before, std::size_t limit, const char* after) {
        return before + std::to_string(limit) + after;
    };
    const std::string tooDeep = message("Elements are nested more than ", depth, " deep.");
    const std::string tooManyNodes = message("The document has more than ", nodes, " nodes.");
    const std::string tooManyNames = message("The document has more than ", names, " different names.");
    const std::string longName = message("A name is longer than ", name, " characters.");
    const std::string longValue = message("An attribute value is longer than ", value, " characters.");
    const std::string tooManyNamespaces = message("The document has more than ", namespaces, " namespaces.");
    const std::string longNamespace = message("A namespace is longer than ", namespaceLength, " characters.");
    const std::string tooManyDeclarations =
        message("More than ", declarations, " namespace declarations are in scope.");
    const struct {
        const char* what;
        std::string accepted;
        std::string refused;
        std::string message;
    } cases[] = {
        {"depth", NestedTo(depth), NestedTo(depth + 1), tooDeep},
        {"depth of empty elements", content("<br/>", 2 * depth), NestedTo(20000), tooDeep},
        {"elements", content("<b/>", nodes - 1), content("<b/>", nodes), tooManyNodes},
        {"attributes of elements", content("<b a='' b=''/>", (nodes - 1) / 3),
         content("<b a='' b=''/>", nodes / 3 + 1), tooManyNodes},
        {"comments", content("<!---->", nodes - 1), content("<!---->", nodes), tooManyNodes},
        {"instructions", content("<?a?>", nodes - 1), content("<?a?>", nodes), tooManyNodes},
        {"attributes", WithAttributes(attributes), WithAttributes(attributes + 1),
         message("An element has more than ", attributes, " attributes.")},
        {"values", valued(value), valued(value + 1), longValue},
        {"a huge value", valued(1000), valued(2000000), longValue},
        {"styling values", WithColor(styling, stylingValue), WithColor(styling, stylingValue + 1),
         message("A styling value is longer than ", stylingValue, " characters.")},
        {"values of another namespace", WithColor("urn:other", value), WithColor("urn:other", value + 1),
         longValue},
        {"element names", Numbered("<e", "/>", names - 1), Numbered("<e", "/>", names), tooManyNames},
        {"attribute names", Numbered("<e a", "=''/>", names - 2), Numbered("<e a", "=''/>", names - 1),
         tooManyNames},
        {"an element's name", tag(name), tag(name + 1), longName},
        {"an attribute's name", "<tt " + Letters(name) + "=''/>", "<tt " + Letters(name + 1) + "=''/>",
         longName},
        {"namespaces", Numbered("<e xmlns='urn:", "'/>", namespaces),
         Numbered("<e xmlns='urn:", "'/>", namespaces + 1), tooManyNamespaces},
        {"a namespace", "<tt xmlns='" + Letters(namespaceLength) + "'/>",
         "<tt><e xmlns:p='" + Letters(namespaceLength + 1) + "'/></tt>", longNamespace},
        {"declarations", Declaring(declarations), Declaring(declarations + 1), tooManyDeclarations},
        {"declarations one after the other", content("<e xmlns='u' xmlns:p='u'/>", declarations),
         Declaring(declarations + 1), tooManyDeclarations},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(TextOrRefusal(test.accepted, UNTRUSTED), "") << test.what;
        EXPECT_EQ(TextOrRefusal(test.refused, UNTRUSTED), "Xerces SAX error while loading: " + test.message)
            << test.what;
    }
    EXPECT_EQ(TextOrRefusal(content("&#65;", nodes), UNTRUSTED).size(), nodes) << "one text";
}

TEST(UntrustedXml, BoundsTheSizeOfADocument) {
    const XercesSession session;
    EXPECT_EQ(TextOrRefusal(OfSize(MAX_BYTES), UNTRUSTED).size(), OfSize(MAX_BYTES).size() - 9);
    LoadFault fault;
    for (const std::string& refused : {OfSize(MAX_BYTES + 1), OfSize(1000) + std::string(MAX_BYTES, ' ')}) {
        EXPECT_EQ(TextOrRefusal(refused, {true, &fault}), TooLarge());
        EXPECT_EQ(fault.kind, LoadFault::REFUSED);
        EXPECT_EQ(fault.line, 0U);
    }
    const TemporaryFile largest(OfSize(MAX_BYTES));
    const TemporaryFile tooLarge(OfSize(MAX_BYTES + 1));
    std::string output;
    EXPECT_EQ(FileTextOrRefusal(largest.path, output).size(), MAX_BYTES - 9);
    EXPECT_NE(output.find("parse OK\nadoptDocument OK\n"), std::string::npos);
    EXPECT_EQ(FileTextOrRefusal(tooLarge.path, output), tooLarge.path + ": " + TooLarge());
    EXPECT_NE(output.find("setDoNamespaces OK\nSAXException catched\n"), std::string::npos);
}

TEST(UntrustedXml, TakesAPathForNothingElse) {
    const XercesSession session;
    const TemporaryFile file("<tt>content</tt>");
    std::string output;
    for (const std::string& path :
         {std::string("http://127.0.0.1/"), "file://" + file.path, file.path + ".missing", std::string()}) {
        const std::string outcome = FileTextOrRefusal(path, output);
        EXPECT_EQ(outcome.rfind(path + ": Xerces ", 0), 0U) << outcome;
    }
    EXPECT_EQ(FileTextOrRefusal(file.path, output), "content");
}

// The XML library loses memory when it cannot read what it has opened.
TEST(Xml, ADirectoryIsNotOpened) {
    const XercesSession session;
    std::string path = testing::TempDir() + "xttml_XXXXXX";
    ASSERT_TRUE(mkdtemp(path.data()));
    for (const bool isUntrusted : {false, true}) {
        LoadFault fault;
        std::string output;
        const std::string outcome = FileTextOrRefusal(path, output, {isUntrusted, &fault});
        EXPECT_EQ(outcome.rfind(path + ": Xerces SAX error while loading: ", 0), 0U) << outcome;
        EXPECT_NE(output.find("setDoNamespaces OK\nSAXException catched\n"), std::string::npos);
        EXPECT_EQ(fault.kind, LoadFault::UNREADABLE);
    }
    rmdir(path.c_str());
}

TEST(UntrustedXml, RefusesAsItRefusesMalformedXml) {
    x_ttml_handle parser = nullptr;
    const std::string bomb = EntityBomb(9);
    const TemporaryFile file(bomb);
    int status = X_TTML_OK;
    CapturedOutput([&] {
        x_ttml_init_xerces();
        x_ttml_create_new_parser(&parser);
        x_ttml_set_untrusted(parser, 1);
    });
    const std::string output = CapturedOutput([&] {
        status = x_ttml_load_subtitle_from_data(parser, bomb.data(), static_cast<std::uint32_t>(bomb.size()));
    });
    EXPECT_EQ(status, X_TTML_UNUSABLE);
    EXPECT_EQ(output, std::string(NO_DOCUMENT_TYPE) + "\n");
    EXPECT_THROW(CapturedOutput([&] { x_ttml_load_subtitle_from_file(parser, file.path.c_str()); }),
                 tessera::DataSourceUnavailableException);
    CapturedOutput([&] {
        x_ttml_destory_doc(parser);
        x_ttml_delete_parser(parser);
        x_ttml_uninit_xerces();
        x_ttml_uninit_xerces();
    });
}

} // namespace
