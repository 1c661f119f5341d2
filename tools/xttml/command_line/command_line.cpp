#include "tools/xttml/command_line/command_line.h"

#include "tools/xttml/command_line/command_names.h"
#include "tools/xttml/command_line/command_options.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <fmt/ranges.h>
#include <x_ttml_version.h>

namespace xttml {

namespace {

constexpr const char* generalExamples = R"(
Examples:
  xttml film.ttml                         every subtitle with its place, colours, font and text (list)
  xttml list --json film.ttml | jq .items the same for programs
  xttml at film.ttml 1500 2.5s 00:01:00   what is on screen at these times
  xttml play film.ttml --realtime         the subtitles as a viewer would see them come and go
  zcat film.ttml.gz | xttml play -        a document from standard input
  xttml check *.ttml                      what of the documents is not shown, and why
  xttml list film.ttml --images film.png  image subtitles with their block of PNG files
  xttml extract film.ttml --images film.png --to pictures
  xttml convert film.ttml -o film.srt     for players that do not read TTML
  xttml render film.ttml 00:01:00 -o film.png
  xttml timeline film.ttml -o film.svg    when its items are on screen
  xttml save film.ttml -o film16.ttml --encoding UTF-16

)";

Invocation MakeInvocation(const Command& command, const Arguments& arguments) {
    Invocation invocation{{}, arguments.verbose, command.makeOptions(arguments)};
    const std::vector<std::string> one = {arguments.file};
    for (const std::string& file : arguments.files.empty() ? one : arguments.files)
        invocation.inputs.push_back({file, arguments.images, ParseInteger(arguments.offset).value(),
                                     arguments.trusted, arguments.quiet});
    return invocation;
}

/// @param command that the usage is of; empty: the tool
Notice WrongUsage(const std::string& reason, const std::string& command) {
    return {OnOneLine("xttml: " + reason) +
                fmt::format("\nTry 'xttml {}--help'.\n", command.empty() ? "" : command + " "),
            true};
}

// In the order in which they were given, which ExtrasError reverses.
std::string Describe(const CLI::ParseError& error, const CLI::App& app) {
    const std::vector<std::string> extras = app.remaining(true);
    if (!dynamic_cast<const CLI::ExtrasError*>(&error) || extras.empty())
        return error.what();
    return fmt::format("not expected: {}", fmt::join(extras, " "));
}

std::variant<Invocation, Notice> Parse(CLI::App& app, const std::vector<std::string>& words,
                                       const std::vector<Command>& commands, const Arguments& arguments,
                                       const CommandNames& names) {
    const auto findUsed = [&] {
        return std::find_if(commands.begin(), commands.end(),
                            [](const Command& command) { return command.app->parsed(); });
    };
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
        if (const auto used = findUsed(); used != commands.end())
            return MakeInvocation(*used, arguments);
    } catch (const CLI::CallForVersion& version) {
        return Notice{std::string(version.what()) + "\n", false};
    } catch (const CallForText& call) {
        return Notice{call.what(), false};
    } catch (const CLI::CallForHelp&) {
        return Notice{app.help(), false};
    } catch (const CLI::ParseError& error) {
        if (const auto used = findUsed(); used != commands.end())
            return WrongUsage(Describe(error, app), used->app->get_name());
    }
    return WrongUsage(WhatIsMissing(words, names), "");
}

} // namespace

std::variant<Invocation, Notice> ParseCommandLine(int argc, const char* const* argv) {
    CLI::App app("A player without a screen for TTML subtitles.", "xttml");
    Arguments arguments;
    app.set_version_flag("--version", "xttml " XTTML_VERSION);
    app.footer(std::string(generalExamples) + exitCodes);
    const std::vector<Command> commands = AddCommands(app, arguments);
    CommandNames names;
    for (const Command& command : commands)
        names.push_back(command.app->get_name());
    std::vector<std::string> words(argv + 1, argv + argc);
    if (MeansList(words, names))
        words.insert(words.begin(), "list");
    return Parse(app, words, commands, arguments, names);
}

} // namespace xttml
