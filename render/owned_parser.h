// A parser of the library with an owner, for clients in C++.
#ifndef XTTML_RENDER_OWNED_PARSER_H
#define XTTML_RENDER_OWNED_PARSER_H

#include <memory>
#include <new>
#include <string>
#include <x_ttml_items.h>

namespace xttml::render {

/// Releases the document of a parser and the parser.
struct ParserDeleter {
    void operator()(x_ttml_handle parser) const {
        x_ttml_destory_doc(parser);
        x_ttml_delete_parser(parser);
    }
};

/// A parser and its document.
using OwnedParser = std::unique_ptr<void, ParserDeleter>;

/// A new parser. Throws std::bad_alloc.
inline OwnedParser MakeParser() {
    x_ttml_handle parser = nullptr;
    if (x_ttml_try_create_parser(&parser) != X_TTML_OK)
        throw std::bad_alloc();
    return OwnedParser(parser);
}

/// The language of the loaded document, BCP 47 as it stands there; empty without one. Throws std::bad_alloc.
inline std::string ReadLanguage(x_ttml_handle parser) {
    std::string language(x_ttml_get_language(parser, nullptr, 0) + 1, '\0');
    language.resize(x_ttml_get_language(parser, language.data(), language.size()));
    return language;
}

} // namespace xttml::render

#endif
