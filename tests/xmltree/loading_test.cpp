#include "runtime/exceptions.h"
#include "tests/support/captured_output.h"
#include "tests/support/outcomes.h"
#include "tests/support/plain_parse.h"
#include "tests/support/temporary_file.h"
#include "tests/xmltree/sample_document.h"

#include <gtest/gtest.h>
#include <xercesc/util/XercesVersion.hpp>

namespace {

constexpr char NAMESPACED[] = "<p:tt xmlns:p='urn:tt'/>";
constexpr char STEPS_BEFORE_PARSING[] = "XercesTreeOperations::LoadDocument called!\n"
                                        "declare parser OK\n"
                                        "parser Created OK\n"
                                        "defaultHandler Created OK\n"
                                        "setErrorHandler OK\n"
                                        "setDoNamespaces OK\n";

std::vector<unsigned char> Bytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string LittleEndian(const std::string& text) {
    std::string units = "\xFF\xFE";
    for (const char c : text) {
        units += {c, '\0'};
    }
    return units;
}

/// What a load gives: the namespace and local name of the root, or the message of its failure.
template <class Load>
std::string Outcome(Load&& load) {
    try {
        xercesc::DOMDocument* document = load();
        const xercesc::DOMElement* root = document->getDocumentElement();
        const std::string name =
            XercesUnstringTemp(root->getNamespaceURI()) + " " + XercesUnstringTemp(root->getLocalName());
        Tree::FreeDocument(document);
        return name;
    } catch (const tessera::DataSourceUnavailableException& failure) {
        return failure.message();
    }
}

TEST(Loading, FromAFileReportsEveryStep) {
    const XercesSession session;
    const struct {
        const char* content;
        const char* lastSteps;
        const char* outcome; // its beginning, after the path where there is no document
        LoadFault::Kind fault;
        std::uint64_t line; // of the fault; 0: none is known
    } cases[] = {
        {NAMESPACED, "parse OK\nadoptDocument OK\n", "urn:tt tt", LoadFault::NONE, 0},
        {"<tt>", "SAXException catched\n", ": Xerces SAX error while loading: ", LoadFault::MALFORMED, 1},
#if _XERCES_VERSION >= 30200 // before, this was a fault like others
        {"<?xml version='1.4'?><!DOCTYPE tt [<!ENTITY e 'text'><!ELEMENT ", "DOMException catched\n",
         ": Xerces DOM error while loading", LoadFault::MALFORMED, 0},
#endif
    };
    for (const auto& test : cases) {
        const TemporaryFile file(test.content);
        std::string outcome;
        LoadFault fault;
        const auto load = [&] { return Tree::LoadDocument(file.path, {false, &fault}); };
        EXPECT_EQ(CapturedOutput([&] { outcome = Outcome(load); }),
                  std::string(STEPS_BEFORE_PARSING) + test.lastSteps);
        EXPECT_EQ(fault.kind, test.fault);
        EXPECT_EQ(fault.line, test.line);
        EXPECT_EQ(outcome.find((test.outcome[0] == ':' ? file.path : "") + test.outcome), 0U) << outcome;
    }
    std::string outcome;
    EXPECT_EQ(CapturedOutput([&] { outcome = Outcome([] { return Tree::LoadDocument("no/such/file"); }); }),
              std::string(STEPS_BEFORE_PARSING) + "SAXException catched\n");
    EXPECT_EQ(outcome.find("no/such/file: Xerces SAX error while loading: "), 0U) << outcome;
}

TEST(Loading, FromMemoryReadsWhatTheXmlLibraryReads) {
    const XercesSession session;
    const std::string texts[] = {
        NAMESPACED,
        LittleEndian(NAMESPACED),
        "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>\n<!-- a --><tt>\r\n<?pi b?></tt>\n<!-- c "
        "-->",
        "<?xml version='1.1'?><tt a='&#1;'>\xC2\x85</tt>",
        "\xEF\xBB\xBF<tt xml:id='i' xml:space='preserve' a=' b\tc\r\nd&#10;&lt;\xC3\xA4'/>",
        "<tt xmlns='urn:a' xmlns:b='urn:b'><p xmlns=''><b:c b:d='1' "
        "d='2'/></p>&amp;<![CDATA[&<]]>&#x1F600;</tt>",
        "<tt>a<p/>b<!-- c -->d<![CDATA[e]]>f<p>g</p>&#104;<?i j?>k</tt>",
        "<tt><!-- a -->b<p/>c</tt>",
        "<tt><![CDATA[a]]><p/><![CDATA[b]]>c</tt>",
        "<tt>" + std::string((1 << 20) + 1, 'a') + "<p/></tt>",
        "<tt a='1' xmlns:b='u' xmlns:c='u' b:d='1' c:d='2'/>",
        "<a:tt xmlns:a='urn:a' a:b='1'><a:p b='2' a:b='3'/><a:p xmlns:a='urn:c' a:b='4' a='5'/><a:p "
        "a:b=''/></a:tt>",
        "<tt><p a='' b='' c='' d='' e='' f='' g='' h='' i='' j='' k='' l='' m='' n='' o='' p='' q='' r=''/>"
        "<p r='' q='' a='' b=''/></tt>",
        "<tt a='<p>' a=''/>",
        "<tt a='1'b='2'/>",
        "<tt>&unknown;</tt>",
        "<tt>]]></tt>",
        "<tt xmlns:a=''/>",
        "<a:tt/>",
        "<tt>\xFF</tt>",
        "<tt/><tt/>",
        "<tt><!DOCTYPE tt></tt>",
        "<tt>",
        LittleEndian("<tt>"),
        "",
        "no markup",
        "<tt a='1' a='2'/>",
        "<?xml version='1.0' encoding='no-such'?><tt/>",
        "<!DOCTYPE tt [<!ENTITY e 'text'>]><tt>&e;</tt>",
        "<!DOCTYPE tt [<!ENTITY e '<p>'>]><tt>&e;</tt>",
        "<!DOCTYPE tt [<!ENTITY e 'a<p>b</p>c'>]><tt>&e;d<p/>&e;<p/>e&e;</tt>",
        "<!DOCTYPE tt [<!ATTLIST tt a CDATA 'b' i ID #IMPLIED>]><tt i=' c ' x='&#x20;'/>",
    };
    const std::string output = CapturedOutput([&texts] {
        for (const std::string& text : texts) {
            SCOPED_TRACE(text.substr(0, 99));
            PlainParse plain(text);
            const std::string outcome = Outcome([&text] { return Tree::LoadXml(text); });
            EXPECT_EQ(outcome, Outcome([&text] { return Tree::LoadFromBinary(Bytes(text)); }));
            if (plain.Message().empty()) {
                const SampleDocument document(text);
                EXPECT_TRUE(plain.IsSame(*document.Get()));
                EXPECT_TRUE(plain.HasSameCopy(*document.Get()));
            } else {
                EXPECT_EQ(outcome, plain.Message());
            }
        }
    });
    EXPECT_EQ(output, "");
}

TEST(Loading, AttributesCanBeEditedLikeAnyNode) {
    const SampleDocument document("<tt a='1'/>");
    xercesc::DOMElement* root = document.Root();
    xercesc::DOMAttr* attribute = root->getAttributeNode(XercesStringTemp("a"));
    const auto value = [&attribute] { return XercesUnstringTemp(attribute->getValue()); };
    attribute->appendChild(document.Get()->createTextNode(XercesStringTemp("2")));
    EXPECT_EQ(value(), "12");
    attribute->removeChild(attribute->getFirstChild())->release();
    EXPECT_EQ(value(), "2");
    attribute->setValue(XercesStringTemp("3"));
    EXPECT_EQ(value(), "3");
    root->removeAttributeNode(attribute)->release();
    root->setAttributeNS(nullptr, XercesStringTemp("b"), XercesStringTemp("4"));
    attribute = root->getAttributeNode(XercesStringTemp("b"));
    EXPECT_EQ(value(), "4");
}

TEST(Loading, NodesCanBeMovedLikeAnyOther) {
    const SampleDocument document("<tt><p a='1'/>text<br/></tt>");
    const SampleDocument target("<tt/>");
    xercesc::DOMElement* root = document.Root();
    const auto children = [&root] {
        std::string names;
        for (const xercesc::DOMNode* child = root->getFirstChild(); child; child = child->getNextSibling()) {
            names += XercesUnstringTemp(child->getNodeName()) + " ";
        }
        return names;
    };
    const XercesStringTemp key("key");
    int number = 1;
    xercesc::DOMNode* paragraph = root->getFirstChild();
    paragraph->setUserData(key, &number, nullptr);
    root->insertBefore(root->getLastChild(), paragraph);
    EXPECT_EQ(children(), "br p #text ");
    root->appendChild(root->removeChild(root->getFirstChild()->getNextSibling()));
    EXPECT_EQ(children(), "br #text p ");
    EXPECT_EQ(root->getLastChild()->getUserData(key), &number);
    xercesc::DOMNode* import = target.Get()->importNode(root, true);
    EXPECT_TRUE(import->isEqualNode(root));
    target.Root()->appendChild(import);
    root->removeChild(root->getFirstChild())->release();
    root->appendChild(document.Get()->createElement(XercesStringTemp("span")));
    EXPECT_EQ(children(), "#text p span ");
}

TEST(Loading, WithoutTheXmlLibraryFailsInsteadOfCrashing) {
    EXPECT_EQ(Outcome([] { return Tree::LoadXml(NAMESPACED); }),
              "Xerces XML error while loading: The XML library is not initialised.");
    EXPECT_EQ(ThrownMessage<tessera::InvalidOperationException>([] { Tree::CreateDocument(); }),
              "The XML library is not initialised.");
}

} // namespace
