// The tool's own output.
#ifndef XTTML_TOOLS_XTTML_OUTPUT_STANDARD_OUTPUT_H
#define XTTML_TOOLS_XTTML_OUTPUT_STANDARD_OUTPUT_H

#include <string>
#include <string_view>

namespace xttml {

/// Nobody reads standard output any more, which is no failure.
struct ReaderGone {};

/// Collects text and writes it to standard output in large pieces. What is not flushed is lost.
class StandardOutput {
public:
    /// Adds text. Throws as Flush() does.
    void Write(std::string_view text);
    /// Writes what has been collected. Throws ReaderGone, or std::system_error when it cannot be written.
    void Flush();

private:
    std::string pending_;
};

} // namespace xttml

#endif
