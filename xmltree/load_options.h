// How a document is loaded, and what a load that failed has to say beyond its exception.
#ifndef XTTML_XMLTREE_LOAD_OPTIONS_H
#define XTTML_XMLTREE_LOAD_OPTIONS_H

#include "runtime/export.h"

#include <cstdint>
#include <string>

/// What was wrong with a document.
struct LoadFault {
    /// The kinds of faults.
    enum Kind : std::uint8_t {
        NONE,       ///< no load has failed
        UNREADABLE, ///< the document cannot be opened or read
        MALFORMED,  ///< it is not well-formed XML
        REFUSED     ///< it has more than an untrusted document may have
    };

    Kind kind = NONE;         ///< what kind of fault; NONE as long as no load has failed
    std::string reason;       ///< in the words of the XML library or of the refusal; UTF-8
    std::uint64_t line = 0;   ///< where, counted from 1; 0: not known
    std::uint64_t column = 0; ///< where, counted from 1; 0: not known
};

/// How a document is loaded.
struct XTTML_API LoadOptions {
    /// Whether documents are untrusted where nobody says so: a decision of the library's build.
    static const bool UNTRUSTED_BY_DEFAULT;

    /// An untrusted document is refused for a document type declaration, before anything that it names is
    /// read, and for more bytes, levels, nodes, names and the like than any TTML document needs; its path is
    /// one of the local file system.
    bool isUntrusted = UNTRUSTED_BY_DEFAULT;
    /// Where a load that fails says why, besides its exception; null: nowhere. Otherwise left alone.
    LoadFault* fault = nullptr;
};

#endif
