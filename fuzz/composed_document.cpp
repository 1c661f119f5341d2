// A well-formed document made out of the input: every paragraph comes out as it was written.
#include "fuzz/choices.h"
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/player.h"

#include <iterator>
#include <vector>

namespace {

constexpr unsigned DEEPEST_SPAN = 40;

/// A run of a paragraph as it was written.
struct Run {
    std::u16string text;
    std::string color; ///< of the innermost span that gives one
    bool isStyled;     ///< inside a span
    bool isBreak;
};

struct Paragraph {
    std::int32_t begin;
    std::int32_t end;
    bool isForced;
    std::vector<Run> runs;
};

/// Writes a document and keeps in mind what it says.
class Composer {
public:
    explicit Composer(Choices& choices) : choices_(choices) { WriteDocument(); }

    const std::string& Document() const { return document_; }
    /// Those of the first division.
    const std::vector<Paragraph>& Paragraphs() const { return paragraphs_; }

private:
    void WriteDocument();
    void WriteHead();
    void WriteStyling();
    void WriteParagraph();
    std::int32_t WriteTime(const char* name);
    void WriteContent(const std::string& color, unsigned depth);
    void WriteText(const std::string& color, bool isStyled);
    void WriteSpan(const std::string& color, unsigned depth);
    void WriteBreak();
    void WriteAside();

    Choices& choices_;
    std::string document_;
    std::vector<Paragraph> paragraphs_;
    bool isAfterText_ = false; ///< one more text would belong to the same node
};

/// Neighbours are chosen together, so no three in a row name one attribute twice.
constexpr const char* STYLINGS[] = {
    "tts:fontSize='50%'",        "tts:lineHeight='125%'",  "tts:extent='10px 20px'",
    "tts:origin='10% 80%'",      "tts:fontSize='1e9px'",   "tts:fontStyle='italic'",
    "tts:extent='50% 50%'",      "tts:origin='x'",         "tts:fontSize='99999999999px'",
    "tts:lineHeight='-1px'",     "tts:fontWeight='bold'",  "tts:textAlign='right'",
    "tts:visibility='hidden'",   "tts:fontSize='2em'",     "tts:displayAlign='after'",
    "tts:textDecoration='none'", "tts:backgroundColor=''", "tts:unknown='&lt;'",
    "other='&#10;&amp;'",        "xml:space='preserve'",
};

void Composer::WriteStyling() {
    const unsigned first = choices_.OneOf(static_cast<unsigned>(std::size(STYLINGS)));
    const unsigned count = choices_.OneOf(4);
    for (unsigned i = first; i < first + count && i < std::size(STYLINGS); ++i)
        document_.append(" ").append(STYLINGS[i]);
}

void Composer::WriteHead() {
    document_ += "<head><styling>";
    for (unsigned i = choices_.OneOf(4); i > 0; --i) {
        document_ += "<style xml:id='s" + std::to_string(choices_.OneOf(4)) + "'";
        WriteStyling();
        document_ += "/>";
    }
    document_ += "</styling><layout>";
    for (unsigned i = choices_.OneOf(4); i > 0; --i) {
        document_ += "<region xml:id='r" + std::to_string(choices_.OneOf(4)) + "'";
        WriteStyling();
        document_ += "/>";
    }
    document_ += "</layout></head>";
}

/// A time whose milliseconds every form of expression holds exactly; -1 when none is written.
std::int32_t Composer::WriteTime(const char* name) {
    if (choices_.Once(8))
        return -1;
    const auto time = static_cast<std::int32_t>(choices_.Number() % 10000000);
    const auto two = [](std::int32_t number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    document_.append(" ").append(name).append("='");
    if (choices_.Once(2))
        document_ += std::to_string(time) + "ms'";
    else
        document_ += std::to_string(time / 3600000) + ":" + two(time / 60000 % 60) + ":" +
                     two(time / 1000 % 60) + "." + std::to_string(time % 1000 + 1000).substr(1) + "'";
    return time;
}

void Composer::WriteText(const std::string& color, bool isStyled) {
    static constexpr struct {
        const char* written;
        const char16_t* read;
    } texts[] = {{"text", u"text"},
                 {" ", u" "},
                 {"&amp;", u"&"},
                 {"&#xD;", u"\r"},
                 {"\r\n", u"\n"},
                 {"\xC3\xA9", u"\u00E9"},
                 {"&#x1F600;", u"\U0001F600"},
                 {"\xE2\x80\x8F", u"\u200F"}};
    const auto& text = choices_.OneOf(texts);
    document_ += text.written;
    std::vector<Run>& runs = paragraphs_.back().runs;
    if (!isAfterText_)
        runs.push_back({{}, color, isStyled, false});
    runs.back().text += text.read;
    isAfterText_ = true;
}

void Composer::WriteBreak() {
    static constexpr const char* breaks[] = {"<br/>", "<BR></BR>", "<o:Br xmlns:o='urn:o'>never read</o:Br>"};
    document_ += choices_.OneOf(breaks);
    paragraphs_.back().runs.push_back({u"\n", "", false, true});
}

/// What is passed over, and divides the texts before and after it.
void Composer::WriteAside() {
    static constexpr const char* asides[] = {"<!-- aside -->", "<?aside data?>", "<metadata>aside</metadata>",
                                             "<![CDATA[aside]]>", "<set begin='0s' tts:color='red'/>"};
    document_ += choices_.OneOf(asides);
}

void Composer::WriteSpan(const std::string& color, unsigned depth) {
    static constexpr const char* names[] = {"span", "SPAN", "o:Span"};
    static constexpr const char* colors[] = {"", "red", "#123456"};
    const std::string name = choices_.OneOf(names);
    const std::string own = choices_.OneOf(colors);
    document_ += "<" + name + " xmlns:o='urn:o'";
    if (!own.empty())
        document_ += " tts:color='" + own + "'";
    document_ += ">";
    isAfterText_ = false;
    WriteContent(own.empty() ? color : own, depth + 1);
    document_ += "</" + name + ">";
}

void Composer::WriteContent(const std::string& color, unsigned depth) {
    for (unsigned count = choices_.OneOf(6); count > 0; --count) {
        const unsigned kind = choices_.OneOf(8);
        if (kind < 3) {
            WriteText(color, depth > 0);
            continue;
        }
        if (kind < 5)
            WriteBreak();
        else if (kind == 5 || depth == DEEPEST_SPAN)
            WriteAside();
        else
            WriteSpan(color, depth);
        isAfterText_ = false;
    }
}

void Composer::WriteParagraph() {
    paragraphs_.push_back({});
    document_ += "<p";
    paragraphs_.back().begin = WriteTime("begin");
    paragraphs_.back().end = WriteTime("end");
    paragraphs_.back().isForced = choices_.Once(4);
    if (paragraphs_.back().isForced)
        document_ += " cff:forcedDisplayMode=' true'";
    if (choices_.Once(2))
        document_ += " region='r" + std::to_string(choices_.OneOf(5)) + "'";
    if (choices_.Once(2))
        document_ += " style='s" + std::to_string(choices_.OneOf(5)) + "'";
    WriteStyling();
    document_ += ">";
    isAfterText_ = false;
    WriteContent("", 0);
    document_ += "</p>";
}

void Composer::WriteDocument() {
    document_ = "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
                "xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta'>";
    if (choices_.Once(2))
        WriteHead();
    document_ += "<body><div>";
    while (!choices_.IsUsedUp()) {
        if (choices_.Once(8))
            document_ += "<div><p>of another division</p></div> ";
        WriteParagraph();
    }
    document_ += "</div><div><p>of the second division</p></div></body></tt>";
}

void RequireRun(const Sentence& sentence, const Run& run) {
    Require(std::u16string(sentence.vecText.begin(), sentence.vecText.end()) == run.text,
            "the text of a run");
    Require(sentence.fgLineBreak == run.isBreak, "a run is a line break");
    Require((sentence.pStylingAttrib != nullptr) == run.isStyled, "a run inside a span is styled");
    if (sentence.pStylingAttrib && !run.color.empty())
        Require(sentence.pStylingAttrib->strColor == run.color, "the colour of a run");
}

std::int32_t Shifted(std::int32_t time, std::int32_t offset) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(time) + static_cast<std::uint32_t>(offset));
}

void RequireItem(const DisplayItem& item, const Paragraph& paragraph, std::int32_t offset) {
    Require(item.iGetBeginTime() == Shifted(paragraph.begin, offset), "the begin of a paragraph");
    Require(item.iGetEndTime() == Shifted(paragraph.end, offset), "the end of a paragraph");
    Require(item.fgForcedDisplay == paragraph.isForced, "a paragraph is forced");
    const std::vector<Sentence*>& sentences = *dynamic_cast<const TextItem&>(item).pGetSentenceSeq();
    Require(sentences.size() == paragraph.runs.size(), "a sentence for each run");
    for (std::size_t i = 0; i < sentences.size(); ++i)
        RequireRun(*sentences[i], paragraph.runs[i]);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Choices choices(bytes, size);
    const std::int32_t offset = choices.Once(4) ? choices.SignedNumber() : choices.Byte();
    const Composer composer(choices);
    Player player;
    Require(player.Load(composer.Document()), "a well-formed document loads");
    Require(player.GenerateText(offset) == Player::Generation::DONE, "its attributes convert");
    const std::vector<Paragraph>& paragraphs = composer.Paragraphs();
    Require(player.Items().size() == paragraphs.size(), "an item for each paragraph");
    for (std::size_t i = 0; i < paragraphs.size(); ++i)
        RequireItem(*player.Items()[i], paragraphs[i], offset);
    player.RequireQueriesAgree();
    return 0;
}
