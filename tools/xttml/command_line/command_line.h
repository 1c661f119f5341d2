// What the user asked for.
#ifndef XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_LINE_H
#define XTTML_TOOLS_XTTML_COMMAND_LINE_COMMAND_LINE_H

#include "tools/xttml/document/document.h"
#include "tools/xttml/document/saved_document.h"
#include "tools/xttml/document/screen.h"
#include "tools/xttml/findings/finding_kinds.h"
#include "tools/xttml/formats/cue_building.h"
#include "tools/xttml/formats/format_table.h"
#include "tools/xttml/output/detail.h"
#include "tools/xttml/output/output_file.h"
#include "tools/xttml/pictures/picture_look.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace xttml {

/// xttml list
struct ListOptions {
    bool json = false;
    Detail detail = Detail::ESSENTIAL;
    bool namesFiles = false; ///< there are several
};

/// xttml at
struct AtOptions {
    std::vector<WrittenTime> times;
    Query query = Query::ALL;
    bool combine = false;
    bool json = false;
    Detail detail = Detail::ESSENTIAL;
};

/// xttml play
struct PlayOptions {
    std::optional<WrittenTime> from; ///< the document's start when absent
    std::optional<WrittenTime> to;   ///< without end when absent
    Query query = Query::ALL;
    bool realtime = false;
    bool json = false;
    Detail detail = Detail::ESSENTIAL;
};

/// xttml check
struct CheckOptions {
    FindingKinds kinds; ///< what is looked for
    bool json = false;
};

/// xttml extract
struct ExtractOptions {
    std::string folder; ///< made when it is missing
    ExistingFile existing = ExistingFile::KEPT;
};

/// xttml convert
struct ConvertOptions {
    std::string file;     ///< "-" is standard output
    const Format* format; ///< never null
    Selection selection = Selection::ALL;
    ExistingFile existing = ExistingFile::KEPT;
};

/// xttml render FILE TIME...
struct RenderOptions {
    std::vector<WrittenTime> times;
    std::string file; ///< "-" is standard output; with several times a % in its name stands for each
    PictureLook look;
    ExistingFile existing = ExistingFile::KEPT;
};

/// xttml render FILE --sheet OUT
struct SheetOptions {
    std::string file; ///< "-" is standard output; for several sheets a % in its name stands for each
    std::size_t columns = 6;
    PictureLook look; ///< of each item
    ExistingFile existing = ExistingFile::KEPT;
};

/// xttml timeline
struct TimelineOptions {
    std::string file;   ///< "-" is standard output
    bool isPng = false; ///< otherwise SVG
    ExistingFile existing = ExistingFile::KEPT;
};

/// xttml save
struct SaveOptions {
    std::string file; ///< "-" is standard output
    DocumentForm form;
    ExistingFile existing = ExistingFile::KEPT;
};

/// A command with the options of all.
struct Invocation {
    std::vector<Input> inputs; ///< what the command runs on, one after the other
    bool verbose = false;
    std::variant<ListOptions, AtOptions, PlayOptions, CheckOptions, ExtractOptions, ConvertOptions,
                 RenderOptions, SheetOptions, TimelineOptions, SaveOptions>
        command;
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
