// From display items to what is seen of them: read through the C interface, scaled, grouped and bounded.
#ifndef XTTML_RENDER_SCENE_READER_H
#define XTTML_RENDER_SCENE_READER_H

#include "render/geometry.h"
#include "render/picture.h"
#include "render/renderer.h"
#include "render/scene.h"
#include "render/white_space.h"

#include <cstddef>
#include <vector>
#include <x_ttml_items.h>

namespace xttml::render {

/// Makes one scene.
class SceneReader {
public:
    /// The mapping and the cache must outlive the reader.
    SceneReader(const RootMapping& mapping, WhiteSpace whiteSpace, PictureCache& pictures)
        : mapping_(mapping), whiteSpace_(whiteSpace), pictures_(pictures) {}

    /// Adds what is seen of items, in their order, as far as the bounds allow.
    void Read(const DisplayItem* const* items, std::size_t count);

    Scene scene;                 ///< what has been read
    std::vector<Remark> remarks; ///< what of it is not seen, and why

private:
    void ReadItem(const DisplayItem* item);
    void ReadText(const DisplayItem* item, const x_ttml_styling& styling);
    void ReadImage(const DisplayItem* item, const x_ttml_styling& styling);
    void ReadRegionBackground(const x_ttml_styling& region);

    Paragraph ReadParagraph(const DisplayItem* item, const x_ttml_styling& styling,
                            const x_ttml_styling* region) const;
    Look ReadLook(const x_ttml_styling& styling, const x_ttml_styling* region) const;
    TextBlock& BlockAt(const Box& area, std::int32_t displayAlign);
    Box AreaOf(const x_ttml_styling& styling) const;
    bool SpendText(const DisplayItem* item);
    bool SpendArea(double area);
    void Leave(std::string reason);

    const RootMapping& mapping_;
    WhiteSpace whiteSpace_;
    PictureCache& pictures_;
    std::size_t itemNumber_ = 0;
    std::size_t textSpent_ = 0;
    double areaSpent_ = 0;
};

} // namespace xttml::render

#endif
