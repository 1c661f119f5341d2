// The document itself: elements and attributes, read and written.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_DOCUMENT_MODEL_H
#define XTTML_TOOLS_XTTML_DOCUMENT_DOCUMENT_MODEL_H

#include "tools/xttml/document/source.h"

#include <cstdint>
#include <xttml/binding/ttaf1_dfxp.h>

namespace xttml {

/// Frames a second as the library counts them (TTML 1.0, 6.2.4): ttp:frameRate, 30 without it; 0 for what is
/// no such number.
std::int32_t FrameRateOf(const ttaf1_dfxp::tt::Cttaf1_dfxp& document);

/// A parsed document; the XML library must be initialised as long as it lives.
class DocumentModel {
public:
    /// Throws UnusableFile for what is no well-formed document with a tt root element.
    explicit DocumentModel(const Source& source);
    /// A document that somebody else has loaded and releases later.
    /// @param document has a tt root element
    explicit DocumentModel(xercesc::DOMNode* document) : root_(document), isOwn_(false) {}
    ~DocumentModel() {
        if (isOwn_)
            root_.DestroyDocument();
    }
    DocumentModel(const DocumentModel&) = delete;
    DocumentModel& operator=(const DocumentModel&) = delete;

    const ttaf1_dfxp::tt::Cttaf1_dfxp& Root() const { return root_; }
    /// Frames a second.
    std::int32_t FrameRate() const { return FrameRateOf(root_); }

private:
    ttaf1_dfxp::tt::Cttaf1_dfxp root_;
    bool isOwn_ = true;
};

} // namespace xttml

#endif
