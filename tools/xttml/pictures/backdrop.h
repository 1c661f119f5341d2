// What a picture shows behind the items.
#ifndef XTTML_TOOLS_XTTML_PICTURES_BACKDROP_H
#define XTTML_TOOLS_XTTML_PICTURES_BACKDROP_H

#include "render/picture.h"
#include "tools/xttml/pictures/drawing.h"
#include "tools/xttml/pictures/picture_look.h"

#include <memory>
#include <optional>

namespace xttml {

/// The background and, when the look names one, a frame of the video.
class Backdrop {
public:
    /// Reads the frame. Throws UnusableFile when it is none.
    explicit Backdrop(const PictureLook& look);

    /// The frame's size; nothing without a frame.
    std::optional<render::Size> FrameSize() const;
    /// Paints all pixels: the frame as large as its proportions allow, in the middle.
    void Paint(const render::Frame& frame) const;

private:
    Background background_;
    std::shared_ptr<const render::Picture> frame_; // null: none
};

} // namespace xttml

#endif
