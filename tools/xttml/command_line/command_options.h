// The commands and the options of each.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_OPTIONS_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_OPTIONS_H

#include "tools/xttml/command_line/command_line.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

namespace xttml {

constexpr const char* exitCodes = "Exit codes: 0 done, 1 a document is unusable or the output cannot be "
                                  "written, 2 wrong usage.";

/// The options as they stand on the command line, checked.
struct Arguments {
    std::string file;               // of a command that takes one
    std::vector<std::string> files; // of one that takes several
    std::vector<std::string> images;
    std::string offset = "0";
    std::vector<std::string> times;
    std::string from, to, step;
    std::string target;
    std::string format;
    DocumentForm form;
    std::string size;
    std::string sheet;
    std::size_t columns = SheetOptions().columns;
    std::string background;
    PictureLook look;
    std::vector<std::string> ignored;
    bool all = false;
    bool json = false;
    bool full = false;
    bool first = false;
    bool combine = false;
    bool realtime = false;
    bool force = false;
    bool forced = false;
    bool trusted = false;
    bool verbose = false;
    bool quiet = false;

    Detail HowMuch() const { return full ? Detail::FULL : Detail::ESSENTIAL; }
    Query HowAsked() const { return first || combine ? Query::FIRST : Query::ALL; }
    ExistingFile Existing() const { return force ? ExistingFile::REPLACED : ExistingFile::KEPT; }
};

/// Asks for a text instead of a command's work, as --version does.
struct CallForText : CLI::Success {
    explicit CallForText(const std::string& text) : Success(text, 0) {}
};

/// A command and how its options are read.
struct Command {
    CLI::App* app;
    std::function<decltype(Invocation::command)(const Arguments&)> makeOptions;
};

/// Adds every command; a new one is a row there.
/// @param arguments where their options are read into; lives as long as `app`
std::vector<Command> AddCommands(CLI::App& app, Arguments& arguments);

} // namespace xttml

#endif
