// The tool's own output.
#ifndef XTTML_TOOLS_XTTML_TOOL_OUTPUT_H
#define XTTML_TOOLS_XTTML_TOOL_OUTPUT_H

#include <string>
#include <string_view>

namespace xttml {

/// Collects text and writes it to a descriptor in large pieces. What is not flushed is lost.
class ToolOutput {
public:
    /// @param descriptor borrowed
    explicit ToolOutput(int descriptor) : descriptor_(descriptor) {}

    /// Adds text. Throws std::system_error as Flush() does.
    void Write(std::string_view text);
    /// Writes what has been collected. Throws std::system_error when the descriptor does not take it.
    void Flush();

private:
    int descriptor_;
    std::string pending_;
};

/// What becomes of a file that is there already.
enum class ExistingFile { KEPT, REPLACED };

/// Writes a whole file. Throws std::system_error, which names it, when it cannot be written or is to be kept.
void WriteFile(const std::string& path, std::string_view bytes, ExistingFile existing);

} // namespace xttml

#endif
