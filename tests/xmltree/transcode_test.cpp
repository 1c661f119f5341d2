#include "xmltree/transcode.h"

#include "tests/support/xerces_session.h"

#include <gtest/gtest.h>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace {

TEST(Transcode, OutOfTheXmlLibraryEveryUnitKeepsItsLowByte) {
    const XMLCh mixed[] = {0x0041, 0x00E9, 0x20AC, 0};
    EXPECT_EQ(XercesUnstringTemp(mixed), "\x41\xE9\xAC");
    EXPECT_EQ(XercesUnstringTemp(nullptr), "");
    std::string text = "a";
    AppendNarrowed(text, mixed);
    AppendNarrowed(text, nullptr);
    EXPECT_EQ(text, "a\x41\xE9\xAC");
}

TEST(Transcode, IntoTheXmlLibraryTheTextIsZeroTerminated) {
    const XercesSession session;
    const std::string withZero("xmlns\0x", 7);
    EXPECT_TRUE(xercesc::XMLString::equals(XercesStringTemp("xmlns"), xercesc::XMLUni::fgXMLNSString));
    EXPECT_TRUE(xercesc::XMLString::equals(XercesStringTemp(withZero), xercesc::XMLUni::fgXMLNSString));
    for (const char* nothing : {"", static_cast<const char*>(nullptr)}) {
        const XercesStringTemp empty(nothing);
        ASSERT_NE(static_cast<const XMLCh*>(empty), nullptr);
        EXPECT_EQ(*static_cast<const XMLCh*>(empty), 0);
    }
}

} // namespace
