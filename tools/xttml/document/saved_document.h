// A document as bytes.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_SAVED_DOCUMENT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_SAVED_DOCUMENT_H

#include "tools/xttml/document/document_model.h"

#include <string>
#include <vector>

namespace xttml {

/// How a document is written.
struct DocumentForm {
    std::string encoding = "UTF-8";
    bool pretty = false;
    bool bigEndian = false;     ///< besides what the encoding's name says
    bool byteOrderMark = false; ///< besides what the encoding's name says
};

/// Whether an encoding leaves open which byte of a unit comes first, or says that it is the high one.
bool CanBeBigEndian(const std::string& encoding);

/// The bytes of a document. Throws UnusableFile for an encoding that the XML library does not know and for
/// one that does not hold the whole text.
/// @param file the document's name for messages
std::vector<unsigned char> Serialise(const DocumentModel& model, const DocumentForm& form,
                                     const std::string& file);

} // namespace xttml

#endif
