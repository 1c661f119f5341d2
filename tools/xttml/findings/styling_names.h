// The styling attributes that the library reads, and where.
#ifndef XTTML_TOOLS_XTTML_FINDINGS_STYLING_NAMES_H
#define XTTML_TOOLS_XTTML_FINDINGS_STYLING_NAMES_H

#include "tools/xttml/findings/attribute.h"
#include "tools/xttml/findings/checked_document.h"

namespace xttml {

/// What the value of a styling attribute is.
enum class ValueForm { COLOR, KEYWORD, LENGTH, PAIR };

/// A tts: attribute that the library reads.
struct StylingName {
    const char* name; ///< local
    ValueForm form;
    unsigned roles;       ///< bits of the roles of the elements on which it is read
    const char* fallback; ///< the keyword that every text counts as that is none; null for other forms
};

/// Whether it is read on an element.
bool IsReadOn(const StylingName& name, const Element& element);

/// What an attribute is called as if it were a tts: attribute; null when the library reads none of that name.
const StylingName* FindStylingName(const Attribute& attribute);

/// Calls `take(element, attribute, name)` for each attribute of a form that is read.
template <class Take>
void VisitValues(const CheckedDocument& document, ValueForm form, Take&& take) {
    for (const Element& element : document.Elements()) {
        if (!element.isRead)
            continue;
        for (const Attribute& attribute : AttributesOf(*element.node)) {
            const StylingName* const name =
                attribute.HasNamespace(stylingNamespace) ? FindStylingName(attribute) : nullptr;
            if (name && name->form == form && IsReadOn(*name, element))
                take(element, attribute, *name);
        }
    }
}

} // namespace xttml

#endif
