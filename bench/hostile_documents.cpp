#include "bench/hostile_documents.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t maxNodes = XTTML_UNTRUSTED_MAX_NODES;
constexpr std::size_t maxDepth = XTTML_UNTRUSTED_MAX_DEPTH;
constexpr std::size_t maxAttributes = XTTML_UNTRUSTED_MAX_ATTRIBUTES;
constexpr std::size_t maxValue = XTTML_UNTRUSTED_MAX_VALUE;
constexpr std::size_t maxStylingValue = XTTML_UNTRUSTED_MAX_STYLING_VALUE;
constexpr std::size_t maxNames = XTTML_UNTRUSTED_MAX_NAMES;
constexpr std::size_t maxName = XTTML_UNTRUSTED_MAX_NAME;
constexpr std::size_t maxNamespaces = XTTML_UNTRUSTED_MAX_NAMESPACES;
constexpr std::size_t maxNamespace = XTTML_UNTRUSTED_MAX_NAMESPACE;
constexpr std::size_t maxDeclarations = XTTML_UNTRUSTED_MAX_DECLARATIONS;

constexpr std::size_t spareNames = 16; // of the frame
constexpr char opening[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling'>";
constexpr char bodyOpening[] = "<body><div>";
constexpr char closing[] = "</div></body></tt>";

/// A document with `head`, `first` once and then pieces of content for as long as there is room.
class Document {
public:
    Document(std::size_t bytes, const std::string& head, const std::string& first = {})
        : bytes_(bytes), text_(opening + head + bodyOpening + first) {}

    /// @param nodes how many nodes the piece is
    /// @return whether there was room for it
    bool Add(const std::string& piece, std::size_t nodes) {
        constexpr std::size_t spareNodes = 8192;
        nodes_ += nodes;
        if (text_.size() + piece.size() + tail_.size() + sizeof closing > bytes_ ||
            nodes_ > maxNodes - spareNodes)
            return false;
        text_ += piece;
        return true;
    }
    void CloseWith(const std::string& tail) { tail_ = tail; }
    std::string Finish() const { return text_ + tail_ + closing; }

private:
    std::size_t bytes_;
    std::string text_;
    std::string tail_;
    std::size_t nodes_ = 0;
};

std::string Filled(Document document, const std::string& piece, std::size_t nodes) {
    while (document.Add(piece, nodes)) {
    }
    return document.Finish();
}

std::string Repeated(const std::string& text, std::size_t times) {
    std::string repeated;
    for (std::size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

/// The number `index` of the names that share their length and, whatever the size of a table, their place in
/// the hash tables of the XML library: it multiplies by 38 for each character.
std::string Colliding(std::size_t index, std::size_t length) {
    constexpr const char* pairs[] = {"Az", "BT", "C."};
    constexpr std::size_t digits = 11; // enough for 3 to the 11th names
    std::string end;
    for (std::size_t digit = 0; digit < digits && end.size() + 2 < length; ++digit, index /= 3)
        end += pairs[index % 3];
    return std::string(length - end.size(), 'a') + end;
}

/// Elements, the first and the last of so many colliding names in turn.
std::string Names(std::size_t bytes, std::size_t nameLength, const std::string& before,
                  const std::string& after) {
    const std::size_t count = maxNames - spareNames;
    const std::size_t length = nameLength - (before.back() == ':' ? before.size() - 1 : 0);
    const auto element = [&](std::size_t i) { return before + Colliding(i, length) + after; };
    Document document(bytes, "");
    for (std::size_t i = 0; i < count && document.Add(element(i), 2); ++i) {
    }
    const std::string ends = element(0) + element(count - 1);
    return Filled(document, ends, 4);
}

/// More names than the parser keeps nodes of, so that each looks for its namespace.
std::string ElementsWith(const std::string& prefix) {
    std::string elements;
    for (std::size_t i = 0; i < 64; ++i)
        elements += "<" + prefix + ":a" + std::to_string(i) + "/>";
    return elements;
}

std::string Namespaces(std::size_t bytes) {
    std::string declarations;
    const std::size_t count = maxNamespaces - 2;
    for (std::size_t i = 0; i < count; ++i)
        declarations += " xmlns:p" + std::to_string(i) + "='" + Colliding(i, maxNamespace) + "'";
    Document document(bytes, "", "<span" + declarations + ">");
    document.CloseWith("</span>");
    return Filled(document, ElementsWith("p" + std::to_string(count - 1)), 64);
}

std::string Prefixes(std::size_t bytes) {
    const std::size_t count = maxDeclarations - 2;
    const std::size_t length = maxName - 8;
    std::string declarations;
    for (std::size_t i = 0; i < count; ++i)
        declarations += " xmlns:" + Colliding(i, length) + "='u'";
    Document document(bytes, "", "<span" + declarations + ">");
    document.CloseWith("</span>");
    const std::string ends = ElementsWith(Colliding(0, length)) + ElementsWith(Colliding(count - 1, length));
    return Filled(document, ends, 128);
}

std::string PrefixWalk(std::size_t bytes) {
    std::string first;
    std::string last;
    for (std::size_t i = 0; i + 8 < maxDepth; ++i) {
        first +=
            "<e" + std::string(i + 3 < maxDeclarations ? " xmlns:p" + std::to_string(i) + "='u'" : "") + ">";
        last += "</e>";
    }
    Document document(bytes, "", first);
    document.CloseWith(last);
    return Filled(document, "<a tts:a=''/>", 2);
}

std::string Attributes(std::size_t bytes, std::size_t length) {
    std::string element = "<p";
    for (std::size_t i = 0; i < maxAttributes; ++i)
        element += " " + Colliding(i, length) + "=''";
    return Filled({bytes, ""}, element + "/>", 1 + maxAttributes);
}

std::string Deep(std::size_t bytes, const char* begin, const char* end) {
    const std::size_t levels = maxDepth - 8;
    return Filled({bytes, ""}, "<p>" + Repeated(begin, levels) + "a" + Repeated(end, levels) + "</p>",
                  levels + 2);
}

std::string Runs(std::size_t bytes) {
    const std::string value(maxStylingValue, 'c');
    Document document(bytes, "", "<p><span tts:color='" + value + "' tts:backgroundColor='" + value + "'>");
    document.CloseWith("</span></p>");
    return Filled(document, "a<b/>", 2);
}

std::string StyledParagraphs(std::size_t bytes) {
    const std::string value(maxStylingValue, 'c');
    return Filled({bytes, "<head><styling><style xml:id='s' tts:color='" + value + "' tts:backgroundColor='" +
                              value + "'/></styling></head>"},
                  "<p style='s'/>", 2);
}

/// Byte strings of two blocks with equal hashes in libstdc++, whose steps (MurmurHash64A) can be undone.
std::string CollidingIdentifier(std::uint64_t index) {
    constexpr std::uint64_t multiplier = 0xc6a4a7935bd1e995ULL;
    const auto mix = [](std::uint64_t block) { return block ^ (block >> 47); };
    std::uint64_t inverse = multiplier; // modulo 2 to the 64th, by Newton
    for (int i = 0; i < 5; ++i)
        inverse *= 2 - multiplier * inverse;
    const std::uint64_t seed = 0xc70f6907ULL ^ (16 * multiplier);
    const std::uint64_t afterFirst = (seed ^ (mix(index * multiplier) * multiplier)) * multiplier;
    const std::uint64_t second = mix(afterFirst * inverse) * inverse; // makes the hash 0 whatever came first
    std::string identifier;
    for (const std::uint64_t block : {index, second}) {
        for (int shift = 0; shift < 64; shift += 8) // U+0100 to U+01FF, which are narrowed to a byte each
            identifier += {static_cast<char>(0xC4 + ((block >> shift) % 256) / 64),
                           static_cast<char>(0x80 + ((block >> shift) % 64))};
    }
    return identifier;
}

std::string Styles(std::size_t bytes) {
    std::string styles;
    const std::size_t room = bytes - 1000;
    for (std::uint64_t i = 0; styles.size() < room; ++i)
        styles += "<style xml:id='" + CollidingIdentifier(i) + "'/>";
    return Document(bytes, "<head><styling>" + styles + "</styling></head>").Finish();
}

} // namespace

std::vector<HostileFamily> HostileFamilies() {
    const auto filled = [](const char* piece, std::size_t nodes) {
        return [piece, nodes](std::size_t bytes) { return Filled({bytes, ""}, piece, nodes); };
    };
    std::vector<HostileFamily> families = {
        {"namespaces in one chain", Namespaces},
        {"prefixes in one chain", Prefixes},
        {"prefixes in scope", PrefixWalk},
        {"attributes, short names", [](std::size_t bytes) { return Attributes(bytes, 14); }},
        {"attributes, long names", [](std::size_t bytes) { return Attributes(bytes, maxName); }},
        {"nested spans", [](std::size_t bytes) { return Deep(bytes, "<span>", "</span>"); }},
        {"runs with long colours", Runs},
        {"paragraphs of a style with long colours", StyledParagraphs},
        {"identifiers with one hash", Styles},
        {"empty paragraphs", filled("<p/>", 1)},
        {"empty attributes", filled("<p a='' b='' c='' d=''/>", 5)},
        {"line breaks", filled("<p><br/><br/><br/><br/><br/></p>", 6)},
        {"one text", filled("a", 0)},
        {"character references", filled("&#65;", 0)},
        {"comments between texts", filled("a<!---->", 2)},
        {"long times", [](std::size_t bytes) {
             return Filled({bytes, ""}, "<p begin='" + std::string(maxValue, '9') + "'/>", 2);
         }}};
    for (const std::size_t length : {std::size_t{16}, maxName}) {
        const auto names = [length](const char* before, const char* after) {
            return [=](std::size_t bytes) { return Names(bytes, length, before, after); };
        };
        const std::string words = " in one chain, " + std::to_string(length) + " characters";
        families.push_back({"element names" + words, names("<", "/>")});
        families.push_back({"element names with a prefix" + words, names("<tts:", "/>")});
        families.push_back({"attribute names" + words, names("<p ", "=''/>")});
    }
    return families;
}
