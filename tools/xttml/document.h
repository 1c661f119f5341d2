// A subtitle document behind the library's C functions.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_H
#define XTTML_TOOLS_XTTML_DOCUMENT_H

#include "api/x_ttml.h"
#include "tools/xttml/image_block.h"
#include "tools/xttml/library_output.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace xttml {

/// Why a document cannot be used; what() is UTF-8 and names no file.
class UnusableDocument : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A loaded document: the XML library is initialised and the parser lives as long as the object does.
class Document {
public:
    /// Loads a local file, or standard input for "-". Throws UnusableDocument.
    Document(const std::string& file, ImageBlock images, LibraryOutput& libraryOutput);

    /// Makes the display items: those of images when there are any, else those of text.
    /// @param offset ms added to every begin and end time
    /// Throws UnusableDocument for an attribute that does not convert and for an image without a time.
    void Generate(std::int32_t offset);

    /// The image data; empty for text subtitles.
    const ImageBlock& Images() const { return images_; }

    /// The parser, owned by this object.
    x_ttml_handle Handle() const { return parser_.get(); }

private:
    /// Terminates the XML library as often as it was initialised.
    struct XmlLibrary {
        XmlLibrary() { x_ttml_init_xerces(); }
        ~XmlLibrary();
        XmlLibrary(const XmlLibrary&) = delete;
        XmlLibrary& operator=(const XmlLibrary&) = delete;

        int initialisations = 1;
    };
    struct ParserDeleter {
        void operator()(x_ttml_handle parser) const;
    };

    void LoadFile(const std::string& path);
    void LoadStandardInput(LibraryOutput& libraryOutput);

    ImageBlock images_;
    XmlLibrary xmlLibrary_;
    std::unique_ptr<void, ParserDeleter> parser_;
};

} // namespace xttml

#endif
