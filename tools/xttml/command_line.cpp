#include "tools/xttml/command_line.h"

#include "tools/xttml/media_time.h"

#include <CLI/CLI.hpp>
#include <x_ttml_version.h>

namespace xttml {

namespace {

constexpr const char* exitCodes = "Exit codes: 0 done, 1 the document is unusable or the output cannot be "
                                  "written, 2 wrong usage.";

constexpr const char* generalExamples = R"(
Examples:
  xttml list film.ttml                    every subtitle with its place, colours, font and text
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
    std::string file;
    std::vector<std::string> images;
    std::string offset = "0";
    std::vector<std::string> times;
    std::string from, to, step;
    bool json = false;
    bool combine = false;
    bool realtime = false;
    bool verbose = false;
    ExtractOptions extract;
    SaveOptions save;
};

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& description,
                     Arguments& arguments) {
    CLI::App* const command = app.add_subcommand(name, description);
    command->footer(exitCodes);
    command->add_option("FILE", arguments.file, "The document; - for standard input")
        ->required()
        ->type_name("");
    command->add_flag("--verbose", arguments.verbose, "Show the library's own lines on standard error");
    return command;
}

CLI::Option* AddImages(CLI::App& command, Arguments& arguments) {
    return command
        .add_option("--images", arguments.images,
                    "The block of PNG files of image subtitles, or several PNG files one after the other")
        ->type_name("BLOCK");
}

void AddOffset(CLI::App& command, Arguments& arguments) {
    command.add_option("--offset", arguments.offset, "Milliseconds added to every time")
        ->check(integerFormat)
        ->type_name("MS");
}

CLI::App* AddList(CLI::App& app, Arguments& arguments) {
    CLI::App* const list = AddCommand(app, "list", "Show every item of the document", arguments);
    AddImages(*list, arguments);
    AddOffset(*list, arguments);
    list->add_flag("--json", arguments.json, "JSON for programs, fields as in xttml(1)");
    return list;
}

CLI::App* AddAt(CLI::App& app, Arguments& arguments) {
    CLI::App* const at = AddCommand(app, "at", "Show what is on screen at each time", arguments);
    at->add_option("TIME", arguments.times, "1500 (milliseconds), 1.5s (also h, m, ms) or 00:00:01.500")
        ->required()
        ->check(timeFormat)
        ->type_name("");
    AddImages(*at, arguments);
    at->add_flag("--combine", arguments.combine, "Merge the text of items that share their times");
    at->add_flag("--json", arguments.json, "JSON for programs, fields as in xttml(1)");
    return at;
}

CLI::App* AddPlay(CLI::App& app, Arguments& arguments) {
    CLI::App* const play =
        AddCommand(app, "play", "Show what a viewer would see change, line by line", arguments);
    AddImages(*play, arguments);
    play->add_option("--from", arguments.from, "Start here (default: the document's start)")
        ->check(timeFormat)
        ->type_name("TIME");
    play->add_option("--to", arguments.to, "End here (default: the document's end)")
        ->check(timeFormat)
        ->type_name("TIME");
    play->add_option("--step", arguments.step,
                     "The longest time to pass without asking the library (default: 40, more in a long "
                     "silence)")
        ->check(stepFormat)
        ->type_name("MS");
    play->add_flag("--realtime", arguments.realtime, "Wait between the lines as long as a viewer would");
    return play;
}

CLI::App* AddExtract(CLI::App& app, Arguments& arguments) {
    CLI::App* const extract =
        AddCommand(app, "extract", "Write the PNG file of every image item, named by its begin", arguments);
    AddImages(*extract, arguments)->required();
    AddOffset(*extract, arguments);
    extract->add_option("--to", arguments.extract.folder, "Where to; made when it is missing")
        ->required()
        ->type_name("DIR");
    extract->add_flag("--force", arguments.extract.force, "Replace files that are there");
    return extract;
}

CLI::App* AddSave(CLI::App& app, Arguments& arguments) {
    CLI::App* const save = AddCommand(app, "save", "Write the document anew", arguments);
    SaveOptions& options = arguments.save;
    save->add_option("-o,--output", options.file, "The file to write; - for standard output")
        ->required()
        ->type_name("OUT");
    save->add_option("--encoding", options.encoding, "UTF-8 (default), UTF-16, UTF-16BE, ISO-8859-1, ...")
        ->type_name("NAME");
    save->add_flag("--bom", options.byteOrderMark, "With a byte order mark, as UTF-16 has it anyway");
    save->add_flag("--big-endian", options.bigEndian, "Big-endian, as UTF-16BE is anyway");
    save->add_flag("--pretty", options.pretty, "Indent the elements");
    return save;
}

std::optional<std::int32_t> OptionalTime(const std::string& text) {
    return text.empty() ? std::nullopt : ParseTime(text);
}

AtOptions MakeAtOptions(const Arguments& arguments) {
    AtOptions options;
    for (const std::string& time : arguments.times)
        options.times.push_back(ParseTime(time).value());
    options.combine = arguments.combine;
    options.json = arguments.json;
    return options;
}

PlayOptions MakePlayOptions(const Arguments& arguments) {
    PlayOptions options;
    options.from = OptionalTime(arguments.from);
    options.to = OptionalTime(arguments.to);
    options.step = ParseInteger(arguments.step);
    options.realtime = arguments.realtime;
    if (options.from && options.to && *options.to < *options.from)
        throw CLI::ValidationError("--to", "lies before --from");
    return options;
}

} // namespace

std::variant<Invocation, Notice> ParseCommandLine(int argc, const char* const* argv) {
    CLI::App app("A player without a screen for TTML subtitles.", "xttml");
    Arguments arguments;
    app.require_subcommand(1);
    app.set_version_flag("--version", "xttml " XTTML_VERSION);
    app.footer(std::string(generalExamples) + exitCodes);
    const CLI::App* const list = AddList(app, arguments);
    const CLI::App* const at = AddAt(app, arguments);
    const CLI::App* const play = AddPlay(app, arguments);
    const CLI::App* const extract = AddExtract(app, arguments);
    AddSave(app, arguments);
    try {
        app.parse(argc, argv);
        const std::int32_t offset = ParseInteger(arguments.offset).value();
        arguments.extract.offset = offset;
        Invocation invocation{arguments.file, arguments.images, arguments.verbose, arguments.save};
        if (list->parsed())
            invocation.command = ListOptions{offset, arguments.json};
        else if (at->parsed())
            invocation.command = MakeAtOptions(arguments);
        else if (play->parsed())
            invocation.command = MakePlayOptions(arguments);
        else if (extract->parsed())
            invocation.command = arguments.extract;
        return invocation;
    } catch (const CLI::CallForVersion& version) {
        return Notice{std::string(version.what()) + "\n", false};
    } catch (const CLI::CallForHelp&) {
        return Notice{app.help(), false};
    } catch (const CLI::ParseError& error) {
        return Notice{std::string("xttml: ") + error.what() + "\nTry 'xttml --help'.\n", true};
    }
}

} // namespace xttml
