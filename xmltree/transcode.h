// Strings across the border of the XML library: 8-bit inside the system, UTF-16 on the other side.
//
// The two directions are not symmetric. Into the XML library a string is transcoded from the code page of
// the process, as that library does it; out of it every code unit is narrowed to its low 8 bits, whatever
// the locale, so that a document reads the same in every process.
#ifndef XTTML_XMLTREE_TRANSCODE_H
#define XTTML_XMLTREE_TRANSCODE_H

#include <xercesc/util/XercesDefs.hpp>

#include <memory>
#include <string>

static_assert(sizeof(XMLCh) == 2, "the XML library's strings are UTF-16");

/// The same units under the standard name of their type, which XMLCh is not in every release of the XML
/// library.
inline const char16_t* Units(const XMLCh* utf16) {
    return reinterpret_cast<const char16_t*>(utf16);
}

/// Appends the low 8 bits of every code unit of `utf16`, a zero-terminated string; null appends nothing.
void AppendNarrowed(std::string& target, const XMLCh* utf16);

/// A 16-bit copy of an 8-bit string, for the length of one call into the XML library, which must be
/// initialised. Throws what the XML library's transcoder throws.
class XercesStringTemp {
public:
    /// Transcodes a zero-terminated string; null counts as the empty string.
    explicit XercesStringTemp(const char* chars);
    /// Transcodes up to the first zero byte.
    explicit XercesStringTemp(const std::string& chars) : XercesStringTemp(chars.c_str()) {}
    virtual ~XercesStringTemp();
    XercesStringTemp(const XercesStringTemp&) = delete;
    XercesStringTemp& operator=(const XercesStringTemp&) = delete;

    /// The zero-terminated 16-bit text, never null, valid while the object lives.
    operator const XMLCh*() const { return text.c_str(); }

private:
    struct Release {
        void operator()(XMLCh* transcoded) const;
    };

    std::basic_string<XMLCh> text;
    std::unique_ptr<XMLCh, Release> rawTranscode;
};

/// Whether `utf16` is the transcoded rest of a string, `chars`, which begins with a character that is not
/// ASCII.
bool IsTranscodedRest(const XMLCh* utf16, const char* chars);

/// Whether `utf16` is what XercesStringTemp makes of `chars`; null counts as the empty string. ASCII, which
/// every code page has in common, is compared in place: names are compared many times, mostly in vain.
inline bool IsTranscoded(const XMLCh* utf16, const char* chars) {
    if (!utf16 || !chars) {
        return (!utf16 || !*utf16) && (!chars || !*chars);
    }
    const auto ascii = [](char c) { return static_cast<signed char>(c); }; // negative for any other
    while (ascii(*chars) > 0 && *utf16 == static_cast<XMLCh>(*chars)) {
        ++utf16;
        ++chars;
    }
    return (!*utf16 && !*chars) || (ascii(*chars) < 0 && IsTranscodedRest(utf16, chars));
}

/// The 8-bit copy of a 16-bit string: the low 8 bits of every code unit.
class XercesUnstringTemp : public std::string {
public:
    /// Takes a zero-terminated string; null gives the empty string.
    explicit XercesUnstringTemp(const XMLCh* utf16);
};

#endif
