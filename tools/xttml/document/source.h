// Where a document comes from.
#ifndef XTTML_TOOLS_XTTML_DOCUMENT_SOURCE_H
#define XTTML_TOOLS_XTTML_DOCUMENT_SOURCE_H

#include <string>
#include <utility>

namespace xttml {

/// What messages add where a document that is not trusted has more than it may.
constexpr const char* refusalRemedy = " (--trusted reads it all the same)";

/// A document before it is parsed.
class Source {
public:
    /// Reads a local file, or standard input for "-". Throws UnusableFile.
    /// @param isTrusted whether the document may name others, which are then read
    Source(std::string name, bool isTrusted);
    /// A document that stands in memory and is its own author's.
    static Source Of(std::string name, std::string bytes) {
        Source source;
        source.name_ = std::move(name);
        source.bytes_ = std::move(bytes);
        return source;
    }

    /// As the user wrote it.
    const std::string& Name() const { return name_; }
    bool IsTrusted() const { return isTrusted_; }
    /// The file that the XML library is to read itself, since what a trusted document names lies beside it;
    /// empty: there are Bytes().
    const std::string& Path() const { return path_; }
    /// The document; empty when there is a Path().
    const std::string& Bytes() const { return bytes_; }

private:
    Source() = default;

    std::string name_;
    bool isTrusted_ = true;
    std::string path_;
    std::string bytes_;
};

} // namespace xttml

#endif
