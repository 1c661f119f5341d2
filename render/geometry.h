// Sizes, boxes and the way from the root container to the picture that is drawn.
#ifndef XTTML_RENDER_GEOMETRY_H
#define XTTML_RENDER_GEOMETRY_H

#include <cstdint>

namespace xttml::render {

/// A width and a height in px.
struct Size {
    std::int32_t width = 0;  ///< px
    std::int32_t height = 0; ///< px
};

/// A rectangle between four edges, in px of the target.
struct Box {
    double left = 0;   ///< px from the target's left edge
    double top = 0;    ///< px from the target's top edge
    double right = 0;  ///< px from the target's left edge
    double bottom = 0; ///< px from the target's top edge

    double Width() const { return right - left; }  ///< px; negative for some empty boxes
    double Height() const { return bottom - top; } ///< px; negative for some empty boxes
    /// Whether nothing lies inside.
    bool IsEmpty() const { return !(left < right && top < bottom); }
};

/// Whether all four edges are the same.
bool operator==(const Box& a, const Box& b);
/// What lies in both; empty when there is nothing.
Box Intersection(const Box& a, const Box& b);
/// The smallest box around both; an empty box adds nothing.
Box Union(const Box& a, const Box& b);

/// The root container scaled into a target as large as its proportions allow and in the middle of it.
class RootMapping {
public:
    /// @param target both sides above 0
    /// @param root the root extent; a side that is not above 0 makes it the target's size
    RootMapping(Size target, Size root);

    double Scale() const { return scale_; }               ///< px of the target for each px of the root
    double RootWidth() const { return rootWidth_; }       ///< px of the root, above 0
    double RootHeight() const { return rootHeight_; }     ///< px of the root, above 0
    const Box& RootArea() const { return rootArea_; }     ///< where the root stands in the target
    const Box& TargetArea() const { return targetArea_; } ///< the whole target

    /// A box of the root as a box of the target, edges on whole pixels. It may reach out of the root.
    /// @param left, top, width, height px of the root
    Box ToTarget(double left, double top, double width, double height) const;

private:
    Box targetArea_;
    double rootWidth_;
    double rootHeight_;
    double scale_;
    Box rootArea_;
};

} // namespace xttml::render

#endif
