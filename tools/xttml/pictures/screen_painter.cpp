#include "tools/xttml/pictures/screen_painter.h"

#include "tools/xttml/output/diagnostics.h"

#include <algorithm>
#include <cstdint>
#include <fmt/format.h>
#include <stdexcept>
#include <utility>

namespace xttml {

namespace {

constexpr render::Size usualRoot = {1024, 768};

render::Size RootOf(const DisplaySequence& sequence) {
    const auto side = [](std::uint32_t length) {
        return static_cast<std::int32_t>(std::min<std::uint32_t>(length, INT32_MAX));
    };
    const PixelSize root = sequence.RootContainer();
    return {side(root.width), side(root.height)};
}

render::Options OptionsFor(const DisplaySequence& sequence) {
    render::Options options;
    options.language = sequence.Language();
    return options;
}

} // namespace

render::Size NaturalSize(const Backdrop& backdrop, const DisplaySequence& sequence) {
    const render::Size root = RootOf(sequence);
    return backdrop.FrameSize().value_or(root.width > 0 && root.height > 0 ? root : usualRoot);
}

ScreenPainter::ScreenPainter(const Document& document, Backdrop backdrop, render::Size size, bool withOutline)
    : sequence_(document.Sequence()), backdrop_(std::move(backdrop)), root_(RootOf(document.Sequence())),
      renderer_(size, root_, OptionsFor(document.Sequence())) {
    if (withOutline)
        outline_.emplace(document.Origins());
}

void ScreenPainter::Paint(const render::Frame& frame, const ItemList& items) {
    backdrop_.Paint(frame);
    renderer_.Show(items.data(), items.size());
    for (const render::Remark& remark : renderer_.Remarks())
        Complain(fmt::format("the item at {} is not drawn: {}",
                             FormatTime(sequence_.SpanOf(*items[remark.item]).begin), remark.reason));
    if (!renderer_.Draw(frame, render::Ground::KEPT))
        throw std::runtime_error("Cairo cannot draw");
    if (outline_)
        outline_->Draw(frame, root_, items);
}

} // namespace xttml
