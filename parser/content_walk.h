// The walk over the content of a paragraph or span: text, line breaks and spans; all else is skipped.
#ifndef XTTML_PARSER_CONTENT_WALK_H
#define XTTML_PARSER_CONTENT_WALK_H

#include <xercesc/dom/DOMNode.hpp>

/// What a child of a paragraph or span is.
enum class ContentKind {
    TEXT,
    LINE_BREAK, ///< an element named br, ignoring case and prefix
    SPAN,       ///< an element named span, ignoring case and prefix
    OTHER       ///< skipped with its content
};

ContentKind eGetContentKind(const xercesc::DOMNode& node);

/// Visits what is inside a span in document order: visitor.vText(node), visitor.vLineBreak(), and
/// visitor.vEnterSpan(node), visitor.vLeaveSpan() around the content of each span, `span` included. Goes by
/// the nodes' own links, so that no depth of nesting exhausts the stack.
template <class Visitor>
void vWalkSpan(xercesc::DOMNode& span, Visitor& visitor) {
    visitor.vEnterSpan(span);
    xercesc::DOMNode* pParent = &span;
    xercesc::DOMNode* pNode = span.getFirstChild();
    for (;;) {
        if (!pNode) { // the content of pParent is done
            visitor.vLeaveSpan();
            if (pParent == &span)
                return;
            pNode = pParent->getNextSibling();
            pParent = pParent->getParentNode();
            continue;
        }
        switch (eGetContentKind(*pNode)) {
        case ContentKind::TEXT:
            visitor.vText(*pNode);
            break;
        case ContentKind::LINE_BREAK:
            visitor.vLineBreak();
            break;
        case ContentKind::SPAN:
            visitor.vEnterSpan(*pNode);
            pParent = pNode;
            pNode = pNode->getFirstChild();
            continue;
        case ContentKind::OTHER:
            break;
        }
        pNode = pNode->getNextSibling();
    }
}

#endif
