// Any bytes as a document that is loaded, edited, saved and loaded again.
#include "fuzz/fuzzer.h"
#include "fuzz/invariant.h"
#include "fuzz/item_invariants.h"
#include "fuzz/player.h"

#include <iterator>
#include <numeric>
#include <optional>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

namespace {

/// A document that ends with its wrapper.
class OwnedDocument {
public:
    explicit OwnedDocument(const std::string& text) : document_(Cttaf1_dfxp::LoadFromString(text)) {}
    ~OwnedDocument() { document_.DestroyDocument(); }
    OwnedDocument(const OwnedDocument&) = delete;
    OwnedDocument& operator=(const OwnedDocument&) = delete;

    Cttaf1_dfxp& operator*() { return document_; }
    Cttaf1_dfxp* operator->() { return &document_; }

private:
    Cttaf1_dfxp document_;
};

/// Chooses how a document is saved without taking anything of its text.
unsigned Checksum(const std::string& text) {
    return std::accumulate(text.begin(), text.end(), 0U,
                           [](unsigned sum, char c) { return sum * 31 + static_cast<unsigned char>(c); });
}

/// What saving gives, or nothing when the XML library refuses.
template <class Save>
std::optional<std::string> Saved(Save&& save) {
    try {
        const auto bytes = save();
        return std::string(bytes.begin(), bytes.end());
    } catch (const tessera::DataTargetUnavailableException&) {
        return std::nullopt;
    }
}

/// Whether the XML library writes what it has read. It does not do so with parameter entities, and it
/// declares the prefix of an element named xmlns:..., which it reads but must not be declared.
bool IsFaithful(const Cttaf1_dfxp& document, const std::string& saved) {
    const auto& dom = *static_cast<const xercesc::DOMDocument*>(document.GetNode());
    return !dom.getDoctype() && saved.find("xmlns:xmlns=") == std::string::npos;
}

void RequireSameItems(const std::string& document, const std::string& saved) {
    Player before;
    Player after;
    Require(before.Load(document) == after.Load(saved), "a saved document loads");
    Require(before.GenerateText(0) == after.GenerateText(0), "a saved document generates");
    Require(before.Items().size() == after.Items().size(), "a saved document has as many items");
    for (std::size_t i = 0; i < before.Items().size(); ++i)
        Require(Text(*before.Items()[i]) == Text(*after.Items()[i]), "a saved document has the same items");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    constexpr const char* encodings[] = {"UTF-8", "UTF-16", "utf-16be", "UTF-16LE", "ISO-8859-1", "no such"};
    const std::string text(bytes, bytes + size);
    const unsigned flags = Checksum(text);
    const std::string encoding = encodings[flags % std::size(encodings)];
    try {
        OwnedDocument document(text);
        const auto exact = Saved([&] { return document->SaveToBinary(false, "UTF-8"); });
        if (exact && IsFaithful(*document, *exact))
            RequireSameItems(text, *exact);
        Saved([&] {
            return document->SaveToBinary((flags & 1) != 0, encoding, (flags & 2) != 0, (flags & 4) != 0);
        });
        Saved([&] { return document->SaveToString((flags & 1) != 0); });
        document->SetSchemaLocation("other.xsd");
        if ((flags & 8) != 0)
            document->SetDTDLocation("other.dtd");
        Saved([&] { return document->SaveToBinary((flags & 1) != 0); });
    } catch (const tessera::DataSourceUnavailableException&) { // no XML
    }
    return 0;
}
