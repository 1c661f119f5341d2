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

/// A tt with `depth` levels of elements, itself one of them.
std::string NestedTo(std::size_t depth) {
    return "<tt>" + Repeated("<span>", depth - 1) + Repeated("</span>", depth - 1) + "</tt>";
}

/// The text inside the document that `load` gives, or the message of its refusal.
template <class Load>
std::string Outcome(Load&& load) {
    try {
        xercesc::DOMDocument* document = load();
        std::string text = XercesTreeOperations::GetTextValue(document);
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
        WithDocumentType("<!ENTITY a 'boom'><!ENTITY e '&a;&a;'>", "&e;"),
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

std::string WithValue(std::size_t length) {
    return "<tt id='" + Letters(length) + "'/>";
}

std::string Inside(const std::string& piece, std::size_t count) {
    return "<tt>" + Repeated(piece, count) + "</tt>";
}

/// What a document may have so many of, or of such a length; a document that has it; what is said of one
/// more.
struct Bound {
    std::size_t limit;
    std::string (*make)(std::size_t);
    const char* before;
    const char* after;

    std::string Refusal() const {
        return std::string("Xerces SAX error while loading: ") + before + std::to_string(limit) + after;
    }
};

const Bound depth = {XTTML_UNTRUSTED_MAX_DEPTH, NestedTo, "Elements are nested more than ", " deep."};
const Bound value = {XTTML_UNTRUSTED_MAX_VALUE, WithValue, "An attribute value is longer than ",
                     " characters."};

Bound Nodes(std::string (*make)(std::size_t)) {
    return {XTTML_UNTRUSTED_MAX_NODES, make, "The document has more than ", " nodes."};
}

Bound Names(std::string (*make)(std::size_t)) {
    return {XTTML_UNTRUSTED_MAX_NAMES, make, "The document has more than ", " different names."};
}

Bound Name(std::string (*make)(std::size_t)) {
    return {XTTML_UNTRUSTED_MAX_NAME, make, "A name is longer than ", " characters."};
}

const Bound bounds[] = {
    depth,
    Nodes([](std::size_t count) { return Inside("<b/>", count - 1); }),
    Nodes([](std::size_t count) {
        return "<tt>" + Repeated("<b a='' b=''/>", (count - 1) / 3) + Repeated("<b/>", (count - 1) % 3) +
               "</tt>";
    }),
    Nodes([](std::size_t count) { return Inside("<!---->", count - 1); }),
    Nodes([](std::size_t count) { return Inside("<?a?>", count - 1); }),
    {XTTML_UNTRUSTED_MAX_ATTRIBUTES, WithAttributes, "An element has more than ", " attributes."},
    value,
    {XTTML_UNTRUSTED_MAX_VALUE, [](std::size_t length) { return WithColor("urn:other", length); },
     value.before, value.after},
    {XTTML_UNTRUSTED_MAX_STYLING_VALUE,
     [](std::size_t length) { return WithColor("http://www.w3.org/ns/ttml#styling", length); },
     "A styling value is longer than ", " characters."},
    Names([](std::size_t count) { return Numbered("<e", "/>", count - 1); }),
    Names([](std::size_t count) { return Numbered("<e a", "=''/>", count - 2); }),
    Name([](std::size_t length) { return "<" + Letters(length) + "/>"; }),
    Name([](std::size_t length) { return "<tt " + Letters(length) + "=''/>"; }),
    {XTTML_UNTRUSTED_MAX_NAMESPACES,
     [](std::size_t count) { return Numbered("<e xmlns='urn:", "'/>", count); },
     "The document has more than ", " namespaces."},
    {XTTML_UNTRUSTED_MAX_NAMESPACE,
     [](std::size_t length) { return "<tt><e xmlns:p='" + Letters(length) + "'/></tt>"; },
     "A namespace is longer than ", " characters."},
    {XTTML_UNTRUSTED_MAX_DECLARATIONS, Declaring, "More than ", " namespace declarations are in scope."},
};

TEST(UntrustedXml, BoundsWhatADocumentHas) {
    const XercesSession session;
    for (const Bound& bound : bounds) {
        EXPECT_EQ(TextOrRefusal(bound.make(bound.limit), UNTRUSTED), "") << bound.make(4);
        EXPECT_EQ(TextOrRefusal(bound.make(bound.limit + 1), UNTRUSTED), bound.Refusal()) << bound.make(4);
    }
    EXPECT_EQ(TextOrRefusal(NestedTo(20000), UNTRUSTED), depth.Refusal());
    EXPECT_EQ(TextOrRefusal(WithValue(2000000), UNTRUSTED), value.Refusal());
    // one after the other, not one in the other; one text
    EXPECT_EQ(TextOrRefusal(Inside("<br/>", 2 * depth.limit), UNTRUSTED), "");
    constexpr std::size_t declarations = XTTML_UNTRUSTED_MAX_DECLARATIONS;
    EXPECT_EQ(TextOrRefusal(Inside("<e xmlns='u' xmlns:p='u'/>", declarations), UNTRUSTED), "");
    constexpr std::size_t nodes = XTTML_UNTRUSTED_MAX_NODES;
    EXPECT_EQ(TextOrRefusal(Inside("&#65;", nodes), UNTRUSTED).size(), nodes);
}

TEST(UntrustedXml, BoundsTheSizeOfADocument) {
    const XercesSession session;
    EXPECT_EQ(TextOrRefusal(OfSize(MAX_BYTES), UNTRUSTED).size(), OfSize(MAX_BYTES).size() - 9);
    LoadFault fault;
    for (const std::string& refused : {OfSize(MAX_BYTES + 1), OfSize(1000) + std::string(MAX_BYTES, ' ')}) {
        EXPECT_EQ(TextOrRefusal(refused, {true, &fault}), TooLarge());
        EXPECT_EQ(fault.kind, LoadFault::REFUSED);
        EXPECT_EQ(fault.line, 0U);
        EXPECT_EQ(fault.column, 0U);
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
    const std::string document = "<!DOCTYPE tt><tt/>";
    const TemporaryFile file(document);
    int status = X_TTML_OK;
    CapturedOutput([&] {
        x_ttml_init_xerces();
        x_ttml_create_new_parser(&parser);
        x_ttml_set_untrusted(parser, 1);
    });
    const std::string output = CapturedOutput([&] {
        status = x_ttml_load_subtitle_from_data(parser, document.data(),
                                                static_cast<std::uint32_t>(document.size()));
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
