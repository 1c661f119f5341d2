#include "tools/xttml/command_line.h"

#include "tools/xttml/command_names.h"
#include "tools/xttml/text/media_time.h"
#include "tools/xttml/text/text_encoding.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/ranges.h>
#include <functional>
#include <x_ttml_version.h>

namespace xttml {

namespace {

constexpr const char* exitCodes = "Exit codes: 0 done, 1 a document is unusable or the output cannot be "
                                  "written, 2 wrong usage.";

constexpr const char* generalExamples = R"(
Examples:
  xttml film.ttml                         every subtitle with its place, colours, font and text (list)
  xttml list --json film.ttml | jq .items the same for programs
  xttml at film.ttml 1500 2.5s 00:01:00   what is on screen at these times
  xttml play film.ttml --realtime         the subtitles as a viewer would see them come and go
  zcat film.ttml.gz | xttml play -        a document from standard input
  xttml list film.ttml --images film.png  image subtitles with their block of PNG files
  xttml extract film.ttml --images film.png --to pictures
  xttml save film.ttml -o film16.ttml --encoding UTF-16

)";

const CLI::Validator timeFormat(
    [](const std::string& text) {
        return ParseTime(text) ? "" : "'" + text + "' is not a time such as 1500, 1.5s or 00:00:01.500";
    },
    "");

const CLI::Validator integerFormat(
    [](const std::string& text) {
        return ParseInteger(text) ? "" : "'" + text + "' is not a whole number of 32 bits";
    },
    "");

const CLI::Validator stepFormat(
    [](const std::string& text) {
        const auto step = ParseInteger(text);
        return step && *step > 0 ? "" : "'" + text + "' is not a whole number of 1 or more";
    },
    "");

/// The options as they stand on the command line, checked.
struct Arguments {
    std::string file;               // of a command that takes one
    std::vector<std::string> files; // of one that takes several
    std::vector<std::string> images;
    std::string offset = "0";
    std::vector<std::string> times;
    std::string from, to, step;
    std::string target;
    DocumentForm form;
    bool json = false;
    bool full = false;
    bool first = false;
    bool combine = false;
    bool realtime = false;
    bool force = false;
    bool trusted = false;
    bool verbose = false;

    Detail HowMuch() const { return full ? Detail::FULL : Detail::ESSENTIAL; }
    Query HowAsked() const { return first || combine ? Query::FIRST : Query::ALL; }
    ExistingFile Existing() const { return force ? ExistingFile::REPLACED : ExistingFile::KEPT; }
};

/// A command and how its options are read.
struct Command {
    CLI::App* app;
    std::function<decltype(Invocation::command)(const Arguments&)> makeOptions;
};

// Options of more than one command.

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& description,
                     Arguments& arguments) {
    CLI::App* const command = app.add_subcommand(name, description);
    command->footer(exitCodes);
    command->add_flag("--trusted", arguments.trusted,
                      "The document may have a document type declaration, name others and be of any size");
    command->add_flag("--verbose", arguments.verbose, "Show the library's own lines on standard error");
    return command;
}

/// @param files one name or several
template <class Files>
void AddFile(CLI::App& command, Files& files) {
    command.add_option("FILE", files, "The document; - for standard input")->required()->type_name("");
}

CLI::Option* AddImages(CLI::App& command, Arguments& arguments) {
    return command
        .add_option("--images", arguments.images,
                    "The block of PNG files of image subtitles; given again, a block's next part")
        ->allow_extra_args(false)
        ->type_name("BLOCK");
}

void AddOffset(CLI::App& command, Arguments& arguments) {
    command.add_option("--offset", arguments.offset, "Milliseconds added to every time")
        ->check(integerFormat)
        ->type_name("MS");
}

void AddJson(CLI::App& command, Arguments& arguments, const std::string& description) {
    CLI::Option* const json = command.add_flag("--json", arguments.json, description);
    command.add_flag("--full", arguments.full, "JSON with every field, used or not")->needs(json);
}

void AddFirst(CLI::App& command, Arguments& arguments) {
    command.add_flag("--first", arguments.first,
                     "Only the first item on screen and those right after it with the same times");
}

void AddForce(CLI::App& command, Arguments& arguments) {
    command.add_flag("--force", arguments.force, "Replace what is there");
}

CLI::Option* AddTime(CLI::App& command, const std::string& name, std::string& time,
                     const std::string& description) {
    return command.add_option(name, time, description)->check(timeFormat)->type_name("TIME");
}

// The commands.

Command AddList(CLI::App& app, Arguments& arguments) {
    CLI::App* const list = AddCommand(app, "list", "Show every item of the documents", arguments);
    AddFile(*list, arguments.files);
    AddImages(*list, arguments);
    AddOffset(*list, arguments);
    AddJson(*list, arguments, "JSON for programs, an object a document, fields as in xttml(1)");
    return {list, [](const Arguments& given) {
                return ListOptions{given.json, given.HowMuch(), given.files.size() > 1};
            }};
}

AtOptions MakeAtOptions(const Arguments& arguments) {
    AtOptions options{{}, arguments.HowAsked(), arguments.combine, arguments.json, arguments.HowMuch()};
    for (const std::string& time : arguments.times)
        options.times.push_back(ParseTime(time).value());
    return options;
}

Command AddAt(CLI::App& app, Arguments& arguments) {
    CLI::App* const at = AddCommand(app, "at", "Show what is on screen at each time", arguments);
    AddFile(*at, arguments.file);
    at->add_option("TIME", arguments.times,
                   "1500 (milliseconds), 1.5s (also h, m, ms), 00:00:01.500 or, with frames, 00:00:01:12")
        ->required()
        ->check(timeFormat)
        ->type_name("");
    AddImages(*at, arguments);
    AddOffset(*at, arguments);
    AddFirst(*at, arguments);
    at->add_flag("--combine", arguments.combine, "As --first, with the text of the items merged");
    AddJson(*at, arguments, "JSON for programs, fields as in xttml(1)");
    return {at, MakeAtOptions};
}

std::optional<WrittenTime> OptionalTime(const std::string& text) {
    return text.empty() ? std::nullopt : ParseTime(text);
}

PlayOptions MakePlayOptions(const Arguments& arguments) {
    PlayOptions options{OptionalTime(arguments.from),
                        OptionalTime(arguments.to),
                        arguments.HowAsked(),
                        arguments.realtime,
                        arguments.json,
                        arguments.HowMuch()};
    if (options.from && options.to && IsBefore(*options.to, *options.from))
        throw CLI::ValidationError("--to", "lies before --from");
    return options;
}

Command AddPlay(CLI::App& app, Arguments& arguments) {
    CLI::App* const play =
        AddCommand(app, "play", "Show what a viewer would see change, line by line", arguments);
    AddFile(*play, arguments.file);
    AddImages(*play, arguments);
    AddOffset(*play, arguments);
    AddTime(*play, "--from", arguments.from, "Start here (default: the document's start)");
    AddTime(*play, "--to", arguments.to, "End here (default: the document's end)");
    AddFirst(*play, arguments);
    play->add_flag("--realtime", arguments.realtime, "Wait between the lines as long as a viewer would");
    AddJson(*play, arguments, "JSON for programs, an object a line, fields as in xttml(1)");
    play->add_option("--step", arguments.step, "Of no effect any more: every change is shown")
        ->check(stepFormat)
        ->type_name("MS");
    return {play, MakePlayOptions};
}

Command AddExtract(CLI::App& app, Arguments& arguments) {
    CLI::App* const extract =
        AddCommand(app, "extract", "Write the PNG file of every image item, named by its begin", arguments);
    AddFile(*extract, arguments.file);
    AddImages(*extract, arguments)->required();
    AddOffset(*extract, arguments);
    extract->add_option("--to", arguments.target, "Where to; made when it is missing")
        ->required()
        ->type_name("DIR");
    AddForce(*extract, arguments);
    return {extract, [](const Arguments& given) { return ExtractOptions{given.target, given.Existing()}; }};
}

SaveOptions MakeSaveOptions(const Arguments& arguments) {
    if (arguments.form.bigEndian && !CanBeBigEndian(arguments.form.encoding))
        throw CLI::ValidationError("--big-endian", "has no meaning in " + arguments.form.encoding);
    return {arguments.target, arguments.form, arguments.Existing()};
}

Command AddSave(CLI::App& app, Arguments& arguments) {
    CLI::App* const save = AddCommand(app, "save", "Write the document anew", arguments);
    DocumentForm& form = arguments.form;
    AddFile(*save, arguments.file);
    save->add_option("-o,--output", arguments.target, "The file to write; - for standard output")
        ->required()
        ->type_name("OUT");
    save->add_option("--encoding", form.encoding, "UTF-8 (default), UTF-16, UTF-16BE, ISO-8859-1, ...")
        ->type_name("NAME");
    save->add_flag("--bom", form.byteOrderMark, "With a byte order mark, as UTF-16 has it anyway");
    save->add_flag("--big-endian", form.bigEndian,
                   "Big-endian, as UTF-16BE is anyway; UTF-16 and UCS-2 only");
    save->add_flag("--pretty", form.pretty, "Indent the elements");
    AddForce(*save, arguments);
    return {save, MakeSaveOptions};
}

std::vector<Command> AddCommands(CLI::App& app, Arguments& arguments) {
    return {AddList(app, arguments), AddAt(app, arguments), AddPlay(app, arguments),
            AddExtract(app, arguments), AddSave(app, arguments)};
}

// What a parse ends in.

Invocation MakeInvocation(const Command& command, const Arguments& arguments) {
    Invocation invocation{{}, arguments.verbose, command.makeOptions(arguments)};
    const std::vector<std::string> one = {arguments.file};
    for (const std::string& file : arguments.files.empty() ? one : arguments.files)
        invocation.inputs.push_back(
            {file, arguments.images, ParseInteger(arguments.offset).value(), arguments.trusted});
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
    const auto parsed = [](const Command& command) { return command.app->parsed(); };
    auto used = commands.end();
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
        used = std::find_if(commands.begin(), commands.end(), parsed);
        if (used == commands.end())
            return WrongUsage(WhatIsMissing(words, names), "");
        return MakeInvocation(*used, arguments);
    } catch (const CLI::CallForVersion& version) {
        return Notice{std::string(version.what()) + "\n", false};
    } catch (const CLI::CallForHelp&) {
        return Notice{app.help(), false};
    } catch (const CLI::ParseError& error) {
        used = std::find_if(commands.begin(), commands.end(), parsed);
        if (used == commands.end() && !words.empty())
            return WrongUsage(WhatIsMissing(words, names), "");
        return WrongUsage(Describe(error, app), used->app->get_name());
    }
}

} // namespace xttml
