// The TTML document model: a typed view of a TTML document held as a DOM.
//
// A wrapper class for every element type, in namespaces named after the schema's prefixes, with an accessor
// for every attribute and child element (binding/member_accessors.h). It starts at tt::Cttaf1_dfxp:
//
//     const auto document = ttaf1_dfxp::tt::Cttaf1_dfxp::LoadFromString(text);
//     if (document.tt.exists() && document.tt.first().lang.exists()) ...
//
// Wrappers and accessors are values on the stack that own nothing; the document must outlive them. A name
// that a type has twice, for an attribute and for a child element, is the attribute's; the element's ends in
// 2 (style, style2). One thread at a time uses a document. The XML library must be initialised.
#ifndef XTTML_BINDING_TTAF1_DFXP_H
#define XTTML_BINDING_TTAF1_DFXP_H

#include "binding/generated/animation.h"
#include "binding/generated/content.h"
#include "binding/generated/core.h"
#include "binding/generated/datatype.h"
#include "binding/generated/document.h"
#include "binding/generated/layout.h"
#include "binding/generated/metadata.h"
#include "binding/generated/parameter.h"
#include "binding/generated/smpte.h"
#include "binding/generated/styling.h"
#include "binding/generated/xml_schema.h"
#include "runtime/export.h"
#include "xmltree/load_options.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace ttaf1_dfxp::tt {

/// A document. The wrapper does not own it: whoever loaded or created it ends it with DestroyDocument.
class XTTML_API Cttaf1_dfxp : public DocumentElements {
public:
    using DocumentElements::DocumentElements;

    // Loading throws tessera::DataSourceUnavailableException for what cannot be read or is not well-formed.

    /// Reads the file at `path`. Writes its progress to standard output.
    static Cttaf1_dfxp LoadFromFile(const std::string& path, const LoadOptions& options = {});
    /// Reads the bytes of a string.
    static Cttaf1_dfxp LoadFromString(const std::string& text, const LoadOptions& options = {});
    /// @{
    /// Reads bytes, during the call only.
    static Cttaf1_dfxp LoadFromBinary(const std::vector<unsigned char>& bytes,
                                      const LoadOptions& options = {});
    static Cttaf1_dfxp LoadFromBinary(const unsigned char* bytes, std::size_t size,
                                      const LoadOptions& options = {});
    /// @}
    /// A new, empty document.
    static Cttaf1_dfxp CreateDocument();

    /// Releases the document, which invalidates every wrapper of its nodes; this one views nothing after it.
    /// Without a document nothing happens.
    void DestroyDocument();

    // Saving throws tessera::DataTargetUnavailableException when the document cannot be written and
    // tessera::InvalidOperationException without a document. `encoding` is a name such as "UTF-8"; where
    // the byte order is not given, "UTF-16BE" (in any case of letters) is written big-endian and "UTF-16"
    // with a byte order mark, every other encoding little-endian without one.

    /// @{
    /// Writes a file; without an encoding one in UTF-8 without a byte order mark.
    void SaveToFile(const std::string& path, bool prettyPrint) const;
    void SaveToFile(const std::string& path, bool prettyPrint, const std::string& encoding) const;
    void SaveToFile(const std::string& path, bool prettyPrint, const std::string& encoding, bool bigEndian,
                    bool withBOM) const;
    /// @}
    /// Each UTF-16 unit of the text is narrowed to its low 8 bits.
    std::string SaveToString(bool prettyPrint) const;
    /// @{
    /// The bytes of the document; without an encoding in the one that the XML library chooses.
    std::vector<unsigned char> SaveToBinary(bool prettyPrint) const;
    std::vector<unsigned char> SaveToBinary(bool prettyPrint, const std::string& encoding) const;
    std::vector<unsigned char> SaveToBinary(bool prettyPrint, const std::string& encoding, bool bigEndian,
                                            bool withBOM) const;
    /// @}

    /// Sets xsi:schemaLocation on the root element to its namespace and `location`, or, when it has no
    /// namespace, xsi:noNamespaceSchemaLocation to `location` (XML Schema Part 1, 2.6.3). Throws
    /// tessera::InvalidOperationException without a root element.
    void SetSchemaLocation(const std::string& location);
    /// Puts a document type with the system identifier `location` before the root element, in place of the
    /// one that is there. Throws tessera::InvalidOperationException without a root element.
    void SetDTDLocation(const std::string& location);

private:
    xercesc::DOMDocument* FindDocument() const;
    xercesc::DOMDocument* DocumentToSave() const;
    xercesc::DOMElement* FindRoot() const;
};

} // namespace ttaf1_dfxp::tt

#endif
