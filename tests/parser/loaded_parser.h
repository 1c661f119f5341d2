// A parser with a document made from its inner parts, and items as short texts.
#ifndef XTTML_TESTS_PARSER_LOADED_PARSER_H
#define XTTML_TESTS_PARSER_LOADED_PARSER_H

#include "parser/ttml_parser.h"

#include "tests/support/captured_output.h"
#include "tests/support/describe.h"
#include "tests/support/xerces_session.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

/// A TTML document with the usual prefixes: attributes of tt, then what is inside it.
inline std::string strDocument(const std::string& strAttributes, const std::string& strContent) {
    return "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
           "xmlns:ttp='http://www.w3.org/ns/ttml#parameter' "
           "xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta' "
           "xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt' " +
           strAttributes + ">" + strContent + "</tt>";
}

/// UTF-16 as ASCII; anything else as "?".
inline std::string strNarrow(const std::vector<char16_t>& vecText) {
    std::string strText;
    for (const char16_t unit : vecText)
        strText += unit < 0x80 ? static_cast<char>(unit) : '?';
    return strText;
}

inline std::string Describe(const Sentence& sentence) {
    if (sentence.fgLineBreak)
        return strNarrow(sentence.vecText) == "\n" && !sentence.pStylingAttrib ? "br" : "broken br";
    const std::string strText = "'" + strNarrow(sentence.vecText) + "'";
    return sentence.pStylingAttrib ? strText + "{" + Describe(*sentence.pStylingAttrib) + "}" : strText;
}

/// "[begin,end]", "forced", the styling, and the runs after "|".
inline std::string Describe(const DisplayItem& item) {
    std::string strItem =
        "[" + std::to_string(item.iGetBeginTime()) + "," + std::to_string(item.iGetEndTime()) + "]";
    strItem += item.fgForcedDisplay ? " forced " : " ";
    strItem += Describe(item.styling);
    if (const auto* pText = dynamic_cast<const TextItem*>(&item)) {
        for (const Sentence* pSentence : pText->vecSentence)
            strItem += " |" + Describe(*pSentence);
    }
    return strItem;
}

class LoadedParser : public testing::Test {
protected:
    ~LoadedParser() override {
        CapturedOutput([&] { parser.vCloseDocument(); });
    }

    /// Whether a text is loaded; nothing is closed before.
    bool fgLoadBeside(std::string_view text) {
        bool fgLoaded = false;
        strOutput = CapturedOutput(
            [&] { fgLoaded = parser.fgLoadDocument(text.data(), static_cast<unsigned int>(text.size())); });
        return fgLoaded;
    }
    bool fgLoad(std::string_view text) {
        CapturedOutput([&] { parser.vCloseDocument(); });
        return fgLoadBeside(text);
    }
    /// Loads a body of one division with these paragraphs and generates it.
    void vGenerateText(const std::string& strParagraphs, const std::string& strHead = "",
                       const std::string& strAttributes = "", int iOffset = 0) {
        ASSERT_TRUE(
            fgLoad(strDocument(strAttributes, strHead + "<body><div>" + strParagraphs + "</div></body>")));
        strOutput = CapturedOutput([&] { parser.vGenerateTextDisplaySequence(iOffset); });
    }
    const DisplayItem& rItem(std::size_t uIndex) const { return *parser.vecGetDisplaySequence().at(uIndex); }
    const DisplayItem& rLastItem() const { return *parser.vecGetDisplaySequence().back(); }

    XercesSession session;
    TtmlParser parser;
    std::string strOutput; // of the last load or generation
};

#endif
