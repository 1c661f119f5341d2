// The elements of a document as a check sees them.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_ELEMENT_H
#define XTTML_TOOLS_XTTML_FINDINGS_ELEMENT_H

#include "tools/xttml/document/placed_document.h"

#include <string>
#include <vector>
#include <x_ttml_items.h>

namespace xttml {

/// What the library takes an element for: by its name and what it stands in.
enum class Role {
    ROOT, ///< the first tt
    HEAD,
    STYLING,
    LAYOUT,
    STYLE, ///< below the first styling
    REGION,
    REGION_STYLE, ///< a style inside a region
    BODY,
    DIVISION,
    PICTURE, ///< a division with an image
    PARAGRAPH,
    SPAN,
    LINE_BREAK,
    ANIMATION,
    DESCRIPTION, ///< says nothing of what is on screen
    UNKNOWN,     ///< any other
    INSIDE       ///< below an animation, a description or an unknown element
};

/// An element; lives as long as its document.
struct Element {
    const xercesc::DOMNode* node;
    Place place;
    const Element* parent; ///< null for the root element
    Role role;
    bool isRead;             ///< stands where the library looks for such elements
    const DisplayItem* item; ///< what is made from it; null: nothing
};

/// Elements in the order of the document.
using ElementList = std::vector<Element>;

/// The roles of the elements of a document.
/// @param showsImages whether items are made from pictures or else from paragraphs
ElementList FindRoles(const std::vector<PlacedElement>& elements, bool showsImages);

/// Whether the elements with a role are read where an element stands, but only the first of them.
bool IsOneTooMany(const Element& element);

/// Whether a division stands where one with an image is looked for: in the body, or in a division of the
/// body's that has none itself.
bool IsPlaceOfPicture(const Element& division);

/// "<p>", as the document writes it.
std::string TagOf(const Element& element);

} // namespace xttml

#endif
