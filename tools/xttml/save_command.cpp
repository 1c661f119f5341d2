#include "tools/xttml/commands.h"

#include "parser/ttml_parser.h"
#include "tools/xttml/text_encoding.h"

namespace xttml {

namespace {

using Bytes = std::vector<unsigned char>;

/// What the encoding's name implies, and what the user asked for beyond it.
Bytes Serialise(const ttaf1_dfxp::tt::Cttaf1_dfxp& root, const SaveOptions& options) {
    const std::string name = XercesTreeOperations::Uppercase(options.encoding);
    return root.SaveToBinary(options.pretty, options.encoding, options.bigEndian || name == "UTF-16BE",
                             options.byteOrderMark || name == "UTF-16");
}

} // namespace

void RunCommand(const SaveOptions& options, Document& document, ToolOutput& output) {
    const TtmlParser& parser = *static_cast<const TtmlParser*>(document.Handle());
    Bytes bytes;
    try {
        bytes = Serialise(parser.rGetDocumentRoot(), options);
    } catch (const tessera::Exception& exception) {
        throw UnusableDocument(Utf8FromLatin1(exception.message()));
    }
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (options.file == "-")
        output.Write(text);
    else
        WriteFile(options.file, text, ExistingFile::REPLACED);
}

} // namespace xttml
