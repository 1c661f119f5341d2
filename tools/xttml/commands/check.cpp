#include "tools/xttml/commands/commands.h"

#include "tools/xttml/document/placed_document.h"
#include "tools/xttml/document/shown_content.h"
#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/findings/findings.h"
#include "tools/xttml/output/json_output.h"
#include "tools/xttml/text/text_encoding.h"

#include <fmt/format.h>

namespace xttml {

namespace {

/// The items of a document, or why there are none though it can be read.
struct ShownItems {
    std::optional<DisplaySequence> sequence;
    std::optional<UnusableFile> failure;

    /// Throws UnusableFile for what cannot be read.
    ShownItems(const Source& source, const ImageBlock& images) {
        try {
            sequence.emplace(source, images, 0);
        } catch (const UnusableFile& error) {
            failure = error;
            const DocumentModel readable(source);
        }
    }
    const DisplaySequence* Sequence() const { return sequence ? &*sequence : nullptr; }
};

/// "<p> dur="5s": not read"
std::string MessageOf(const Finding& finding) {
    return fmt::format("{}{}{}: {}", TagOf(*finding.element), finding.what.empty() ? "" : " ", finding.what,
                       finding.loss);
}

std::string ToLine(const Finding& finding, const std::string& file) {
    const Place& place = finding.element->place;
    return OnOneLine(fmt::format("{}:{}:{}: warning: {} [{}]", file, place.line, place.column,
                                 MessageOf(finding), finding.kind->name)) +
           '\n';
}

std::string Plural(std::size_t count, const char* name) {
    return fmt::format("{} {}{}", count, name, count == 1 ? "" : "s");
}

std::string SummaryLine(const std::string& file, std::size_t findings, const ShownContent& content) {
    std::string line =
        fmt::format("{}: {}", OnOneLine(file), findings == 0 ? "nothing found" : Plural(findings, "finding"));
    const auto add = [&](std::size_t ContentCount::*kind, const char* name) {
        if (content.all.*kind > 0)
            line += fmt::format(", {} of {} shown", content.shown.*kind, Plural(content.all.*kind, name));
    };
    add(&ContentCount::paragraphs, "paragraph");
    add(&ContentCount::pictures, "picture");
    return line + '\n';
}

Json ToJson(const Finding& finding) {
    return {{"line", finding.element->place.line},
            {"column", finding.element->place.column},
            {"name", finding.kind->name},
            {"message", MessageOf(finding)}};
}

Json ToJson(const ContentCount& all, const ContentCount& shown) {
    return {{"paragraphs", all.paragraphs},
            {"paragraphsShown", shown.paragraphs},
            {"pictures", all.pictures},
            {"picturesShown", shown.pictures}};
}

void WriteLines(StandardOutput& output, const std::vector<Finding>& findings, const std::string& file,
                const ShownContent& content) {
    for (const Finding& finding : findings)
        output.Write(ToLine(finding, file));
    output.Write(SummaryLine(file, findings.size(), content));
}

void WriteJson(StandardOutput& output, const std::vector<Finding>& findings, const std::string& file,
               const ShownContent& content) {
    output.Write("{\"file\":" + Quoted(file) + ",\n\"shown\":" + ToText(ToJson(content.all, content.shown)) +
                 ",\n\"findings\":[");
    const char* separator = "\n";
    for (const Finding& finding : findings) {
        output.Write(separator + ToText(ToJson(finding)));
        separator = ",\n";
    }
    output.Write("\n]}\n");
}

} // namespace

void RunCommand(const CheckOptions& options, const Input& input, StandardOutput& output) {
    const Source source(input.file, input.isTrusted);
    const ImageBlock images(input.images);
    const ShownItems items(source, images);
    const PlacedDocument placed(source);
    const CheckedDocument document(placed, items.Sequence(), !images.Empty());
    const std::vector<Finding> findings = FindAll(document, options.kinds);
    const auto write = options.json ? WriteJson : WriteLines;
    write(output, findings, input.file, CountShown(placed.Root(), items.Sequence()));
    if (items.failure)
        throw UnusableFile(*items.failure);
    if (!findings.empty())
        throw DocumentNotClean();
}

} // namespace xttml
