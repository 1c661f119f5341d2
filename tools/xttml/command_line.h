// What the user asked for.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_H

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace xttml {

/// xttml list
struct ListOptions {
    std::int32_t offset = 0; ///< ms added to every time
    bool json = false;
};

/// xttml at
struct AtOptions {
    std::vector<std::int32_t> times; ///< ms
    bool combine = false;
    bool json = false;
};

/// xttml play
struct PlayOptions {
    std::optional<std::int32_t> from; ///< ms; the document's start when absent
    std::optional<std::int32_t> to;   ///< ms; the document's end when absent
    std::optional<std::int32_t> step; ///< ms, 1 or more; the tool's choice when absent
    bool realtime = false;
};

/// xttml extract
struct ExtractOptions {
    std::int32_t offset = 0; ///< ms added to every time
    std::string folder;      ///< made when it is missing
    bool force = false;      ///< replaces files that are there
};

/// xttml save
struct SaveOptions {
    std::string file; ///< "-" is standard output
    std::string encoding = "UTF-8";
    bool pretty = false;
    bool bigEndian = false;     ///< besides what the encoding's name says
    bool byteOrderMark = false; ///< besides what the encoding's name says
};

/// A command with the options of all.
struct Invocation {
    std::string file;                ///< "-" is standard input
    std::vector<std::string> images; ///< the files of the image block; none for text subtitles
    bool verbose = false;
    std::variant<ListOptions, AtOptions, PlayOptions, ExtractOptions, SaveOptions> command;
};

/// Text to show instead of running a command.
struct Notice {
    std::string text;
    bool usageError; ///< otherwise help or the version
};

/// Reads the command line.
std::variant<Invocation, Notice> ParseCommandLine(int argc, const char* const* argv);

} // namespace xttml

#endif
