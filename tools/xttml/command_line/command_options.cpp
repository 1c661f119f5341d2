#include "tools/xttml/command_line/command_options.h"

#include "tools/xttml/command_line/picture_options.h"
#include "tools/xttml/command_line/shared_options.h"
#include "tools/xttml/text/media_time.h"

namespace xttml {

namespace {

const CLI::Validator stepFormat(
    [](const std::string& text) {
        const auto step = ParseInteger(text);
        return step && *step > 0 ? "" : "'" + text + "' is not a whole number of 1 or more";
    },
    "");

const CLI::Validator formatName(
    [](const std::string& text) {
        return FindFormat(text) ? "" : "'" + text + "' is none of " + FormatNames(", ");
    },
    "");

// Options of more than one command.

void AddJson(CLI::App& command, Arguments& arguments, const std::string& description) {
    CLI::Option* const json = command.add_flag("--json", arguments.json, description);
    command.add_flag("--full", arguments.full, "JSON with every field, used or not")->needs(json);
}

void AddFirst(CLI::App& command, Arguments& arguments) {
    command.add_flag("--first", arguments.first,
                     "Only the first item on screen and those right after it with the same times");
}

// The commands.

Command AddList(CLI::App& app, Arguments& arguments) {
    CLI::App* const list = AddCommand(app, "list", "Show every item of the documents", arguments);
    AddFile(*list, arguments.files);
    AddImages(*list, arguments);
    AddOffset(*list, arguments);
    AddJson(*list, arguments, "JSON for programs, an object a document, fields as in xttml(1)");
    AddQuiet(*list, arguments);
    return {list, [](const Arguments& given) {
                return ListOptions{given.json, given.HowMuch(), given.files.size() > 1};
            }};
}

AtOptions MakeAtOptions(const Arguments& arguments) {
    return {TimesOf(arguments), arguments.HowAsked(), arguments.combine, arguments.json, arguments.HowMuch()};
}

Command AddAt(CLI::App& app, Arguments& arguments) {
    CLI::App* const at = AddCommand(app, "at", "Show what is on screen at each time", arguments);
    AddFile(*at, arguments.file);
    AddTimes(*at, arguments)->required();
    AddImages(*at, arguments);
    AddOffset(*at, arguments);
    AddFirst(*at, arguments);
    at->add_flag("--combine", arguments.combine, "As --first, with the text of the items merged");
    AddJson(*at, arguments, "JSON for programs, fields as in xttml(1)");
    AddQuiet(*at, arguments);
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
    AddQuiet(*play, arguments);
    play->add_option("--step", arguments.step, "Of no effect any more: every change is shown")
        ->check(stepFormat)
        ->type_name("MS");
    return {play, MakePlayOptions};
}

const CLI::Validator findingName(
    [](const std::string& text) {
        return IsFindingKind(text) ? "" : "'" + text + "' is no name that --list tells";
    },
    "");

CheckOptions MakeCheckOptions(const Arguments& arguments) {
    return {FindingKindsFor(arguments.all, arguments.ignored), arguments.json};
}

Command AddCheck(CLI::App& app, Arguments& arguments) {
    CLI::App* const check =
        AddCommand(app, "check", "Say what of the documents is not shown, and why", arguments);
    AddFile(*check, arguments.files);
    AddImages(*check, arguments);
    check->add_option("--ignore", arguments.ignored, "Leave out findings of this name; may be repeated")
        ->allow_extra_args(false)
        ->check(findingName)
        ->type_name("NAME");
    check->add_flag("--all", arguments.all, "Also what is left out by default");
    check->add_flag_callback(
        "--list", [] { throw CallForText(DescribeFindingKinds()); }, "Show the names of all findings");
    check->add_flag("--json", arguments.json,
                    "JSON for programs, an object a document, fields as in xttml(1)");
    check->footer("Exit codes: 0 nothing found, 1 something found or a document is unusable, 2 wrong usage.");
    return {check, MakeCheckOptions};
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
    AddQuiet(*extract, arguments);
    return {extract, [](const Arguments& given) { return ExtractOptions{given.target, given.Existing()}; }};
}

ConvertOptions MakeConvertOptions(const Arguments& arguments) {
    const Format* const format =
        arguments.format.empty() ? FormatOfFile(arguments.target) : FindFormat(arguments.format);
    if (!format)
        throw CLI::ValidationError("--to",
                                   "is required where OUT does not end in one of " + FormatNames(", "));
    return {arguments.target, format, arguments.forced ? Selection::FORCED : Selection::ALL,
            arguments.Existing()};
}

Command AddConvert(CLI::App& app, Arguments& arguments) {
    CLI::App* const convert = AddCommand(
        app, "convert", "Write the subtitles in a format of players that do not read TTML", arguments);
    AddFile(*convert, arguments.file);
    AddOutput(*convert, arguments)->required();
    convert->add_option("--to", arguments.format, "The format (default: what OUT ends in)")
        ->check(formatName)
        ->type_name(FormatNames("|"));
    convert->add_flag("--forced", arguments.forced,
                      "Only the items that are shown even when subtitles are off");
    AddOffset(*convert, arguments);
    AddForce(*convert, arguments);
    AddQuiet(*convert, arguments);
    return {convert, MakeConvertOptions};
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
    AddOutput(*save, arguments)->required();
    save->add_option("--encoding", form.encoding, "UTF-8 (default), UTF-16, UTF-16BE, ISO-8859-1, ...")
        ->type_name("NAME");
    save->add_flag("--bom", form.byteOrderMark, "With a byte order mark, as UTF-16 has it anyway");
    save->add_flag("--big-endian", form.bigEndian,
                   "Big-endian, as UTF-16BE is anyway; UTF-16 and UCS-2 only");
    save->add_flag("--pretty", form.pretty, "Indent the elements");
    AddForce(*save, arguments);
    return {save, MakeSaveOptions};
}

} // namespace

std::vector<Command> AddCommands(CLI::App& app, Arguments& arguments) {
    return {AddList(app, arguments),   AddAt(app, arguments),       AddPlay(app, arguments),
            AddCheck(app, arguments),  AddExtract(app, arguments),  AddConvert(app, arguments),
            AddRender(app, arguments), AddTimeline(app, arguments), AddSave(app, arguments)};
}

} // namespace xttml
