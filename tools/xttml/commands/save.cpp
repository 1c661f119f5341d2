#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/document_model.h"
#include "tools/xttml/document/saved_document.h"
#include "tools/xttml/output/output_file.h"

namespace xttml {

void RunCommand(const SaveOptions& options, const Input& input, StandardOutput& output) {
    const std::vector<unsigned char> bytes =
        Serialise(DocumentModel(Source(input.file, input.isTrusted)), options.form, input.file);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    WriteTo(options.file, text, options.existing, output);
}

} // namespace xttml
