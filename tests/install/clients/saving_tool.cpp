// A tool that edits a document through the installed document model and saves it.
#include <x_ttml.h>

#include <xttml/binding/ttaf1_dfxp.h>
#include <xttml/xmltree/tree_operations.h>

#include <cstdio>

using ttaf1_dfxp::tt::Cttaf1_dfxp;

static void shift_first_paragraph(const Cttaf1_dfxp& document) {
    const auto paragraph = document.tt.first().body.first().div.first().p.first();
    std::printf("%s to %s: %s\n", std::string(paragraph.begin).c_str(), std::string(paragraph.end).c_str(),
                std::string(paragraph).c_str());
    XercesTreeOperations::SetAttribute(paragraph.GetNode(), "begin", "", "5s");
}

int main() {
    x_ttml_init_xerces();
    Cttaf1_dfxp document = Cttaf1_dfxp::LoadFromString(
        "<tt xmlns='http://www.w3.org/ns/ttml'><body><div><p begin='1s' end='2s'>text</p></div></body></tt>");
    shift_first_paragraph(document);
    try {
        static_cast<void>(static_cast<bool>(document.tt.first().body.first().div.first().forcedDisplayMode));
    } catch (const tessera::InvalidOperationException& error) {
        std::puts(error.message().c_str());
    }
    std::printf("%s\n", document.SaveToString(false).c_str());
    document.DestroyDocument();
    x_ttml_uninit_xerces();
}
