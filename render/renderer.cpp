#include "render/renderer.h"

#include "render/layer_painting.h"
#include "render/scene_reader.h"
#include "render/text_painter.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace xttml::render {

namespace {

Size CheckedTarget(Size size) {
    const auto isPossible = [](std::int32_t side) { return side >= 1 && side <= longestSide; };
    if (!isPossible(size.width) || !isPossible(size.height))
        throw std::invalid_argument("a picture of " + std::to_string(size.width) + " x " +
                                    std::to_string(size.height) + " pixels cannot be drawn");
    return size;
}

} // namespace

struct Renderer::Parts {
    Parts(Size size, Size root, const Options& options)
        : target(CheckedTarget(size)), mapping(target, root), whiteSpace(options.whiteSpace),
          textPainter(options.fontFamily, options.language) {}

    bool CanHold(const Frame& frame) const {
        return frame.pixels && frame.width == target.width && frame.height == target.height &&
               frame.stride >= 4 * frame.width && frame.stride % 4 == 0;
    }

    void Paint(cairo_t* context) const {
        for (const Layer& layer : scene)
            std::visit([&](const auto& part) { PaintPart(context, part); }, layer);
    }

    void PaintPart(cairo_t* context, const TextBlock& block) const { textPainter.Paint(context, block); }
    template <class Part>
    void PaintPart(cairo_t* context, const Part& part) const {
        render::Paint(context, part);
    }

    Size target;
    RootMapping mapping;
    WhiteSpace whiteSpace;
    PictureCache pictures;
    TextPainter textPainter;
    Scene scene;
    std::vector<Remark> remarks;
};

Renderer::Renderer(Size target, Size root, const Options& options)
    : parts_(std::make_unique<Parts>(target, root, options)) {}
Renderer::~Renderer() = default;
Renderer::Renderer(Renderer&& other) noexcept = default;
Renderer& Renderer::operator=(Renderer&& other) noexcept = default;

bool Renderer::Show(const DisplayItem* const* items, std::size_t count) {
    SceneReader reader(parts_->mapping, parts_->whiteSpace, parts_->pictures);
    reader.Read(items, count);
    parts_->remarks = std::move(reader.remarks);
    if (reader.scene == parts_->scene)
        return false;
    parts_->scene = std::move(reader.scene);
    return true;
}

const std::vector<Remark>& Renderer::Remarks() const {
    return parts_->remarks;
}

bool Renderer::Draw(const Frame& frame, Ground ground) {
    if (!parts_->CanHold(frame))
        return false;
    const Surface surface(cairo_image_surface_create_for_data(frame.pixels, CAIRO_FORMAT_ARGB32, frame.width,
                                                              frame.height, frame.stride));
    const DrawingContext context(cairo_create(surface.get()));
    if (ground == Ground::CLEARED) {
        cairo_set_operator(context.get(), CAIRO_OPERATOR_CLEAR);
        cairo_paint(context.get());
        cairo_set_operator(context.get(), CAIRO_OPERATOR_OVER);
    }
    parts_->Paint(context.get());
    cairo_surface_flush(surface.get());
    if (cairo_status(context.get()) == CAIRO_STATUS_NO_MEMORY)
        throw std::bad_alloc();
    return cairo_status(context.get()) == CAIRO_STATUS_SUCCESS;
}

Box Renderer::Bounds() const {
    Box bounds;
    for (const Layer& layer : parts_->scene)
        bounds = Union(bounds, std::visit([](const auto& part) { return part.area; }, layer));
    return bounds;
}

Box Renderer::RootArea() const {
    return parts_->mapping.RootArea();
}

} // namespace xttml::render
