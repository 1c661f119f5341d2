// The screen as a viewer sees it, on a picture.
#ifndef XTTML_TOOLS_XTTML_PICTURES_SCREEN_PAINTER_H
#define XTTML_TOOLS_XTTML_PICTURES_SCREEN_PAINTER_H

#include "render/renderer.h"
#include "tools/xttml/document/document.h"
#include "tools/xttml/pictures/backdrop.h"
#include "tools/xttml/pictures/outline.h"
#include "tools/xttml/pictures/picture_look.h"

#include <optional>
#include <string>

namespace xttml {

/// The size that a picture of the screen has when none is asked for: the frame's, else the root container's,
/// else that of a document without an extent. No side is below 1 px.
render::Size NaturalSize(const Backdrop& backdrop, const DisplaySequence& sequence);

/// Paints screens of one document, all of one size.
class ScreenPainter {
public:
    /// @param document outlives the painter
    /// @param size one that IsPossible()
    ScreenPainter(const Document& document, Backdrop backdrop, render::Size size, bool withOutline);

    /// Paints items as if they, and no others, were on screen. Says on standard error why one is not painted.
    /// @param frame of the painter's size
    void Paint(const render::Frame& frame, const ItemList& items);

private:
    const DisplaySequence& sequence_;
    Backdrop backdrop_;
    render::Size root_;
    render::Renderer renderer_;
    std::optional<Outline> outline_;
};

} // namespace xttml

#endif
