// What is refused of untrusted documents, and what is said of it.
#include "api/x_ttml_items.h"
#include "tests/hardening/xml_attacks.h"
#include "tests/support/temporary_file.h"
#include "tests/support/xerces_session.h"

#include <arpa/inet.h>
#include <sys/socket.h>

namespace {

constexpr std::size_t MAX_BYTES = XTTML_UNTRUSTED_MAX_BYTES;
constexpr std::size_t MAX_DEPTH = XTTML_UNTRUSTED_MAX_DEPTH;
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

/// Tells whether anybody connects to it.
class Listener {
public:
    Listener() : socket_(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(socket_, generic, length) != 0 || listen(socket_, 1) != 0 ||
            getsockname(socket_, generic, &length) != 0)
            throw std::runtime_error("cannot listen on the loopback device");
        url = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/";
    }
    ~Listener() { close(socket_); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    bool HasBeenCalled() const { return accept(socket_, nullptr, nullptr) >= 0; }

    std::string url;

private:
    int socket_;
};

TEST(UntrustedXml, RefusesDocumentTypesBeforeItReadsWhatTheyName) {
    const XercesSession session;
    const TemporaryFile secret("<!ENTITY e 'secret'>");
    const FileWatch watch(secret.path);
    const Listener listener;
    const std::string documents[] = {
        "<!DOCTYPE tt><tt/>",
        "<!DOCTYPE tt []><tt/>",
        "<!DOCTYPE tt SYSTEM '" + secret.path + "'><tt>&e;</tt>",
        "<!DOCTYPE tt PUBLIC 'public' '" + listener.url + "'><tt>&e;</tt>",
        "<!DOCTYPE tt SYSTEM '" + listener.url + "' [<!ELEMENT tt ANY>]><tt/>",
        WithDocumentType("<!ENTITY e SYSTEM '" + secret.path + "'>", "&e;"),
        WithDocumentType("<!ENTITY e SYSTEM '" + listener.url + "'>", "&e;"),
        WithDocumentType("<!ENTITY % p SYSTEM '" + secret.path + "'> %p;", "&e;"),
        WithDocumentType("<!ENTITY % p SYSTEM '" + listener.url + "'> %p;", "&e;"),
        WithDocumentType("<!ATTLIST tt id CDATA 'default'>", ""),
        EntityBomb(9),
        "<?xml version='1.1'?><!-- first --><!DOCTYPE tt><tt/>",
    };
    for (const std::string& document : documents)
        EXPECT_EQ(TextOrRefusal(document, UNTRUSTED), NO_DOCUMENT_TYPE) << document;
    EXPECT_FALSE(watch.HasBeenOpened());
    EXPECT_FALSE(listener.HasBeenCalled());
    EXPECT_EQ(TextOrRefusal("<tt>&lt;&#65;&amp;</tt>", UNTRUSTED), "<A&");
}

TEST(UntrustedXml, BoundsWhatADocumentHas) {
    const XercesSession session;
    const auto attributes = [](std::size_t count) {
        std::string tag = "<tt";
        for (std::size_t i = 0; i < count; ++i)
            tag += " a" + std::to_string(i) + "=''";
        return tag + "/>";
    };
    const auto value = [](std::size_t length) { return "<tt id='" + std::string(length, 'v') + "'/>"; };
    const auto names = [](const char* before, const char* after, std::size_t count) {
        std::string content = "<tt>";
        for (std::size_t i = 0; i < count; ++i)
            content += before + std::to_string(i) + after;
        return content + "</tt>";
    };
    const std::string tooManyNames = "The document has more than 4096 different names.";
    const struct {
        const char* what;
        std::string accepted;
        std::string refused;
        std::string message;
    } cases[] = {
        {"depth", NestedTo(MAX_DEPTH), NestedTo(MAX_DEPTH + 1),
         "Elements are nested more than " + std::to_string(MAX_DEPTH) + " deep."},
        {"depth of empty elements", "<tt>" + Repeated("<br/>", 2 * MAX_DEPTH) + "</tt>", NestedTo(20000),
         "Elements are nested more than " + std::to_string(MAX_DEPTH) + " deep."},
        {"attributes", attributes(256), attributes(257), "An element has more than 256 attributes."},
        {"declarations", names("<e xmlns:p", "='u'/>", 4000), names("<e xmlns:p", "='u'/>", 5000),
         tooManyNames},
        {"values", value(1024), value(1025), "An attribute value is longer than 1024 characters."},
        {"a huge value", value(1000), value(2000000), "An attribute value is longer than 1024 characters."},
        {"element names", names("<e", "/>", 4000), names("<e", "/>", 5000), tooManyNames},
        {"attribute names", names("<e a", "=''/>", 4000), names("<e a", "=''/>", 5000), tooManyNames},
        {"namespaces", names("<e xmlns='urn:", "'/>", 4000), names("<e xmlns='urn:", "'/>", 5000),
         tooManyNames},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(TextOrRefusal(test.accepted, UNTRUSTED), "") << test.what;
        EXPECT_EQ(TextOrRefusal(test.refused, UNTRUSTED), "Xerces SAX error while loading: " + test.message)
            << test.what;
    }
}

TEST(UntrustedXml, BoundsTheSizeOfADocument) {
    const XercesSession session;
    EXPECT_EQ(TextOrRefusal(OfSize(MAX_BYTES), UNTRUSTED).size(), OfSize(MAX_BYTES).size() - 9);
    EXPECT_EQ(TextOrRefusal(OfSize(MAX_BYTES + 1), UNTRUSTED), TooLarge());
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
    const Listener listener;
    const TemporaryFile file("<tt>content</tt>");
    std::string output;
    for (const std::string& path :
         {listener.url, "file://" + file.path, file.path + ".missing", std::string()}) {
        const std::string outcome = FileTextOrRefusal(path, output);
        EXPECT_EQ(outcome.rfind(path + ": Xerces ", 0), 0U) << outcome;
    }
    EXPECT_FALSE(listener.HasBeenCalled());
    EXPECT_EQ(FileTextOrRefusal(file.path, output), "content");
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
