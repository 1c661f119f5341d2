#include "tools/xttml/command_line/shared_options.h"

#include "tools/xttml/text/media_time.h"

namespace xttml {

namespace {

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

} // namespace

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& description,
                     Arguments& arguments) {
    CLI::App* const command = app.add_subcommand(name, description);
    command->footer(exitCodes);
    command->add_flag("--trusted", arguments.trusted,
                      "The document may have a document type declaration, name others and be of any size");
    command->add_flag("--verbose", arguments.verbose, "Show the library's own lines on standard error");
    return command;
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

CLI::Option* AddTimes(CLI::App& command, Arguments& arguments) {
    return command
        .add_option("TIME", arguments.times,
                    "1500 (milliseconds), 1.5s (also h, m, ms), 00:00:01.500 or, with frames, 00:00:01:12")
        ->check(timeFormat)
        ->type_name("");
}

std::vector<WrittenTime> TimesOf(const Arguments& arguments) {
    std::vector<WrittenTime> times;
    for (const std::string& time : arguments.times)
        times.push_back(ParseTime(time).value());
    return times;
}

CLI::Option* AddTime(CLI::App& command, const std::string& name, std::string& time,
                     const std::string& description) {
    return command.add_option(name, time, description)->check(timeFormat)->type_name("TIME");
}

CLI::Option* AddOutput(CLI::App& command, Arguments& arguments) {
    return command.add_option("-o,--output", arguments.target, "The file to write; - for standard output")
        ->type_name("OUT");
}

void AddForce(CLI::App& command, Arguments& arguments) {
    command.add_flag("--force", arguments.force, "Replace what is there");
}

void AddQuiet(CLI::App& command, Arguments& arguments) {
    command.add_flag("--quiet", arguments.quiet,
                     "Do not say on standard error how much of the document is not shown");
}

} // namespace xttml
