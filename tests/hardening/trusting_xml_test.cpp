// What becomes of trusted documents that want more than to be shown: they are left to the XML library. These
// are the reasons to distrust.
#include "tests/hardening/xml_attacks.h"
#include "tests/support/temporary_file.h"
#include "tests/support/xerces_session.h"

namespace {

TEST(TrustingXml, ReadsTheFilesThatADocumentNames) {
    const XercesSession session;
    const TemporaryFile secret("secret");
    const FileWatch watch(secret.path);
    EXPECT_EQ(TextOrRefusal(WithDocumentType("<!ENTITY e SYSTEM '" + secret.path + "'>", "&e;"), TRUSTED),
              "secret");
    EXPECT_TRUE(watch.HasBeenOpened());
    const TemporaryFile declarations("<!ENTITY e 'declared elsewhere'>");
    EXPECT_EQ(TextOrRefusal(WithDocumentType("<!ENTITY % p SYSTEM '" + declarations.path + "'> %p;", "&e;"),
                            TRUSTED),
              "declared elsewhere");
}

TEST(TrustingXml, ExpandsEntities) {
    const XercesSession session;
    const std::string bomb = EntityBomb(4);
    EXPECT_LT(bomb.size(), 500U);
    EXPECT_EQ(TextOrRefusal(bomb, TRUSTED), Repeated("boom", 10000));
}

TEST(TrustingXml, KeepsWhatIsDeepAndLarge) {
    const XercesSession session;
    EXPECT_EQ(TextOrRefusal(NestedTo(20000), TRUSTED), "");
    const std::string value(5000000, 'v');
    EXPECT_EQ(TextOrRefusal("<tt id='" + value + "'>" + value + "</tt>", TRUSTED), value);
}

} // namespace
