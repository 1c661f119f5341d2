// A TTML document and what it shows when.
#ifndef XTTML_PLAYERS_GSTREAMER_DOCUMENT_H
#define XTTML_PLAYERS_GSTREAMER_DOCUMENT_H

#include "render/geometry.h"
#include "render/owned_parser.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::gstreamer {

/// Bytes that are no document that could be shown; what() says why.
class UnusableDocument : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// More bytes than this are no document and no block of pictures.
inline constexpr std::size_t mostBytes = std::size_t{64} << 20U;

/// A document with a parser of its own. It belongs to one thread at a time.
class Document {
public:
    /// x_ttml_try_init() has run. Throws UnusableDocument and std::bad_alloc.
    /// @param bytes the document, read during the call only
    /// @param isTrusted whether it may have all that x_ttml_set_untrusted() refuses
    /// @param pictures PNG files, one after the other, to which its images refer; none: its text is shown
    explicit Document(std::string_view bytes, bool isTrusted, std::string_view pictures = {});

    /// What is on screen, in the order of drawing; the document owns the items.
    /// @param time ms
    /// @param forcedOnly only what is shown while subtitles are off
    std::vector<DisplayItem*> OnScreen(std::int32_t time, bool forcedOnly) const;
    /// The first ms after a time at which not the same is on screen, or X_TTML_NEVER.
    std::int64_t NextChange(std::int32_t time) const;

    render::Size Root() const;                                ///< the root container
    const std::string& Language() const { return language_; } ///< BCP 47; may be empty

private:
    void Require(int status) const;

    render::OwnedParser parser_;
    std::string language_;
};

/// Reads a document from the file system. Throws UnusableDocument and std::bad_alloc.
/// @param images the path of its PNG files; empty: it has none
std::unique_ptr<Document> ReadDocument(const std::string& path, const std::string& images, bool isTrusted);

} // namespace xttml::gstreamer

#endif
