// Options of more than one command.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_SHARED_OPTIONS_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_SHARED_OPTIONS_H

#include "tools/xttml/command_line/command_options.h"

#include <string>
#include <vector>

namespace xttml {

/// Adds a command with the options of all.
CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& description,
                     Arguments& arguments);

/// Adds FILE.
/// @param files one name or several
template <class Files>
void AddFile(CLI::App& command, Files& files) {
    command.add_option("FILE", files, "The document; - for standard input")->required()->type_name("");
}

/// Adds --images.
CLI::Option* AddImages(CLI::App& command, Arguments& arguments);

/// Adds --offset.
void AddOffset(CLI::App& command, Arguments& arguments);

/// Adds TIME...
CLI::Option* AddTimes(CLI::App& command, Arguments& arguments);
/// What was given for them.
std::vector<WrittenTime> TimesOf(const Arguments& arguments);

/// Adds an option that takes a time.
CLI::Option* AddTime(CLI::App& command, const std::string& name, std::string& time,
                     const std::string& description);

/// Adds --output.
CLI::Option* AddOutput(CLI::App& command, Arguments& arguments);

/// Adds --force.
void AddForce(CLI::App& command, Arguments& arguments);

/// Adds --quiet.
void AddQuiet(CLI::App& command, Arguments& arguments);

} // namespace xttml

#endif
