#include "render/scene.h"

#include <tuple>

namespace xttml::render {

namespace {

auto Values(const Color& a) {
    return std::tie(a.red, a.green, a.blue, a.alpha);
}
auto Values(const Look& a) {
    return std::tie(a.fontSize, a.lineHeight, a.isBold, a.isItalic, a.isHidden, a.decoration, a.color,
                    a.background);
}
auto Values(const StyledPiece& a) {
    return std::tie(a.end, a.look);
}
auto Values(const Paragraph& a) {
    return std::tie(a.text, a.pieces, a.look, a.textAlign);
}
auto Values(const TextBlock& a) {
    return std::tie(a.area, a.displayAlign, a.paragraphs);
}
auto Values(const Fill& a) {
    return std::tie(a.area, a.color);
}
auto Values(const PlacedPicture& a) {
    return std::tie(a.box, a.area, a.picture);
}

} // namespace

bool operator==(const Color& a, const Color& b) {
    return Values(a) == Values(b);
}
bool operator==(const Look& a, const Look& b) {
    return Values(a) == Values(b);
}
bool operator==(const StyledPiece& a, const StyledPiece& b) {
    return Values(a) == Values(b);
}
bool operator==(const Paragraph& a, const Paragraph& b) {
    return Values(a) == Values(b);
}
bool operator==(const TextBlock& a, const TextBlock& b) {
    return Values(a) == Values(b);
}
bool operator==(const Fill& a, const Fill& b) {
    return Values(a) == Values(b);
}
bool operator==(const PlacedPicture& a, const PlacedPicture& b) {
    return Values(a) == Values(b);
}

} // namespace xttml::render
