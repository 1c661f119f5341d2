// What the library built without XTTML_UNTRUSTED_XML does with documents that want more than to be shown: it
// leaves them to the XML library. These are the reasons to build with it.
#include "tests/hardening/xml_attacks.h"
#include "tests/support/temporary_file.h"
#include "tests/support/xerces_session.h"

namespace {

TEST(TrustingXml, ReadsTheFilesThatADocumentNames) {
    const XercesSession session;
    const TemporaryFile secret("secret");
    const FileWatch watch(secret.path);
    EXPECT_EQ(TextOrRefusal(WithDocumentType("<!ENTITY e SYSTEM '" + secret.path + "'>", "&e;")), "secret");
    EXPECT_TRUE(watch.HasBeenOpened());
    const TemporaryFile declarations("<!ENTITY e 'declared elsewhere'>");
    EXPECT_EQ(TextOrRefusal(WithDocumentType("<!ENTITY % p SYSTEM '" + declarations.path + "'> %p;", "&e;")),
              "declared elsewhere");
}

TEST(TrustingXml, ExpandsEntities) {
    const XercesSession session;
    const std::string bomb = EntityBomb(4);
    EXPECT_LT(bomb.size(), 500U);
    EXPECT_EQ(TextOrRefusal(bomb), Repeated("boom", 10000));
}

TEST(TrustingXml, KeepsWhatIsDeepAndLarge) {
    const XercesSession session;
    EXPECT_EQ(TextOrRefusal(NestedTo(20000)), "");
    const std::string value(5000000, 'v');
    EXPECT_EQ(TextOrRefusal("<tt id='" + value + "'>" + value + "</tt>"), value);
}

} // namespace
