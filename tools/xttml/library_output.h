// The library writes its progress lines to standard output; the tool's output goes there too. This keeps
// them apart, at the level of file descriptors, since the library uses C and C++ streams.
#ifndef XTTML_TOOLS_XTTML_LIBRARY_OUTPUT_H
#define XTTML_TOOLS_XTTML_LIBRARY_OUTPUT_H

#include "tools/xttml/descriptor.h"

#include <functional>
#include <string>

namespace xttml {

/// While an object of this class lives, descriptor 1 is the library's and the descriptor that was standard
/// output is the tool's. There is at most one object at a time.
class LibraryOutput {
public:
    enum class Lines { DROPPED, ON_STANDARD_ERROR };

    /// Moves standard output away. Throws std::system_error when there is no standard output.
    explicit LibraryOutput(Lines lines);
    /// Puts standard output back.
    ~LibraryOutput();
    LibraryOutput(const LibraryOutput&) = delete;
    LibraryOutput& operator=(const LibraryOutput&) = delete;

    /// What was standard output, owned by this object.
    int ToolDescriptor() const { return tool_.Get(); }

    /// Runs the action and gives what the library wrote meanwhile; with ON_STANDARD_ERROR it goes there too.
    /// An exception of the action passes on.
    std::string Captured(const std::function<void()>& action);

private:
    void DirectTo(int descriptor);

    Lines lines_;
    Descriptor tool_;
    Descriptor sink_;
};

} // namespace xttml

#endif
