#include "runtime/exceptions.h"
#include "runtime/qname.h"

#include <gtest/gtest.h>

using namespace tessera;

TEST(Exceptions, KeepTheFixedTextTheMessageAndTheCause) {
    const std::runtime_error cause("cause");
    const InvalidOperationException exception("Cannot read value of non-existent attribute.", &cause);
    EXPECT_STREQ(exception.what(), "tessera::Exception");
    EXPECT_EQ(exception.message(), "Cannot read value of non-existent attribute.");
    EXPECT_EQ(exception.inner(), &cause);

    const Error error("Trying to read NULL value.");
    EXPECT_STREQ(error.what(), "tessera::Error");
    EXPECT_EQ(error.message(), "Trying to read NULL value.");
    EXPECT_EQ(error.inner(), nullptr);
}

TEST(Exceptions, CodedFailuresTellWhoRaisedThem) {
    const CTesseraException user(7, "seven", true);
    EXPECT_EQ(user.GetCode(), 7);
    EXPECT_EQ(user.GetInfo(), "seven");
    EXPECT_TRUE(user.IsUserException());
    try {
        throw CXmlException(-3, "xml");
    } catch (const CTesseraException& xml) {
        EXPECT_EQ(xml.GetCode(), -3);
        EXPECT_EQ(xml.GetInfo(), "xml");
        EXPECT_FALSE(xml.IsUserException());
    }
}

TEST(QNames, AreSplitAndPrinted) {
    const struct {
        QName name;
        const char* uri;
        const char* prefix;
        const char* localName;
        const char* printed;
    } cases[] = {
        {QName("p"), "", "", "p", "p"},
        {QName("{urn:x}p"), "urn:x", "", "p", "p"},
        {QName("{}p"), "", "", "p", "p"},
        {QName("a{urn:x}p"), "", "", "a{urn:x}p", "a{urn:x}p"},
        {QName("{urn:x"), "", "", "{urn:x", "{urn:x"},
        {QName("tt:p"), "", "", "tt:p", "tt:p"},
        {QName(""), "", "", "", ""},
        {QName("urn:x", "tt:p"), "urn:x", "tt", "p", "tt:p"},
        {QName("urn:x", "a:b:c"), "urn:x", "a", "b:c", "a:b:c"},
        {QName("", "p"), "", "", "p", "p"},
        {QName("urn:x", "tt", "p"), "urn:x", "tt", "p", "tt:p"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.name.uri, c.uri) << c.printed;
        EXPECT_EQ(c.name.prefix, c.prefix) << c.printed;
        EXPECT_EQ(c.name.localName, c.localName) << c.printed;
        EXPECT_EQ(c.name.ToString(), c.printed);
    }
}
