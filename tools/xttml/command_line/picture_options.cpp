#include "tools/xttml/command_line/picture_options.h"

#include "render/renderer.h"
#include "tools/xttml/command_line/shared_options.h"
#include "tools/xttml/output/file_pattern.h"

#include <filesystem>

namespace xttml {

namespace {

const CLI::Validator sizeFormat(
    [](const std::string& text) {
        return ParsePictureSize(text) ? "" : "'" + text + "' is not the size of a picture such as 1280x720";
    },
    "");

const CLI::Validator backgroundFormat(
    [](const std::string& text) {
        return ParseBackground(text) ? "" : "'" + text + "' is not a colour as TTML writes it";
    },
    "");

PictureLook LookOf(const Arguments& arguments) {
    PictureLook look = arguments.look;
    look.size = ParsePictureSize(arguments.size);
    look.background = ParseBackground(arguments.background).value_or(Background());
    return look;
}

void AddLook(CLI::App& command, Arguments& arguments) {
    command
        .add_option("--size", arguments.size,
                    "The picture's size in px (default: the frame's, else the root container's)")
        ->check(sizeFormat)
        ->type_name("WxH");
    command
        .add_option("--background", arguments.background,
                    "A colour as TTML writes it (default: black), transparent or checkerboard")
        ->check(backgroundFormat)
        ->type_name("COLOUR");
    command.add_option("--over", arguments.look.frame, "A frame of the video, which lies on the background")
        ->type_name("FRAME");
    command.add_flag("--outline", arguments.look.outline,
                     "Draw the boxes of regions with their identifiers, and the safe areas");
}

RenderOptions MakeRenderOptions(const Arguments& arguments) {
    if (arguments.times.empty() || arguments.target.empty())
        throw CLI::ValidationError("render", "needs a TIME and --output, or --sheet");
    if (arguments.times.size() > 1 && !NamesSeveral(arguments.target))
        throw CLI::ValidationError("--output", "needs a % that stands for the time: there are several");
    return {TimesOf(arguments), arguments.target, LookOf(arguments), arguments.Existing()};
}

TimelineOptions MakeTimelineOptions(const Arguments& arguments) {
    const std::string& file = arguments.target;
    const std::string extension = std::filesystem::path(file).extension();
    if (file != standardOutputPath && extension != ".svg" && extension != ".png")
        throw CLI::ValidationError("--output", "is neither an .svg nor a .png file");
    return {file, extension == ".png", arguments.Existing()};
}

} // namespace

Command AddRender(CLI::App& app, Arguments& arguments) {
    CLI::App* const render =
        AddCommand(app, "render", "Write a PNG picture of the screen at each time", arguments);
    AddFile(*render, arguments.file);
    CLI::Option* const times = AddTimes(*render, arguments);
    CLI::Option* const output = AddOutput(*render, arguments);
    CLI::Option* const sheet =
        render->add_option("--sheet", arguments.sheet, "Instead: all items on one picture, or on several")
            ->excludes(times)
            ->excludes(output)
            ->type_name("OUT");
    render->add_option("--columns", arguments.columns, "How many items stand side by side on it (default: 6)")
        ->needs(sheet)
        ->check(CLI::Range(std::size_t{1}, std::size_t{render::longestSide}).description(""))
        ->type_name("N");
    AddLook(*render, arguments);
    AddImages(*render, arguments);
    AddOffset(*render, arguments);
    AddForce(*render, arguments);
    AddQuiet(*render, arguments);
    return {render, [](const Arguments& given) -> decltype(Invocation::command) {
                if (given.sheet.empty())
                    return MakeRenderOptions(given);
                return SheetOptions{given.sheet, given.columns, LookOf(given), given.Existing()};
            }};
}

Command AddTimeline(CLI::App& app, Arguments& arguments) {
    CLI::App* const timeline = AddCommand(
        app, "timeline", "Write a chart of when the items are on screen, as SVG or PNG", arguments);
    AddFile(*timeline, arguments.file);
    AddOutput(*timeline, arguments)->required();
    AddImages(*timeline, arguments);
    AddOffset(*timeline, arguments);
    AddForce(*timeline, arguments);
    AddQuiet(*timeline, arguments);
    return {timeline, MakeTimelineOptions};
}

} // namespace xttml
