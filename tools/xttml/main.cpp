// xttml: a player without a screen.
#include "tools/xttml/commands.h"
#include "tools/xttml/text_encoding.h"

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <langinfo.h>

namespace xttml {

namespace {

enum ExitCode { DONE = 0, FAILED = 1, WRONG_USAGE = 2 };

// The XML library reads paths in the process's character set; plain ASCII would lose every other letter.
void UseCharacterSetOfEnvironment() {
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

void Complain(const std::string& text) {
    std::fputs((OnOneLine("xttml: " + text) + '\n').c_str(), stderr);
}

int ShowNotice(const Notice& notice) {
    if (notice.usageError) {
        std::fputs(notice.text.c_str(), stderr);
        return WRONG_USAGE;
    }
    ToolOutput output(STDOUT_FILENO);
    output.Write(notice.text);
    output.Flush();
    return DONE;
}

int Run(const Invocation& invocation) {
    try {
        LibraryOutput libraryOutput(invocation.verbose ? LibraryOutput::Lines::ON_STANDARD_ERROR
                                                       : LibraryOutput::Lines::DROPPED);
        Document document(invocation.file, ImageBlock(invocation.images), libraryOutput);
        ToolOutput output(libraryOutput.ToolDescriptor());
        std::visit([&](const auto& options) { RunCommand(options, document, output); }, invocation.command);
        output.Flush();
        return DONE;
    } catch (const UnusableDocument& error) {
        Complain(invocation.file + ": " + error.what());
        return FAILED;
    }
}

int Main(int argc, const char* const* argv) {
    UseCharacterSetOfEnvironment();
    std::signal(SIGPIPE, SIG_IGN);
    const auto request = ParseCommandLine(argc, argv);
    if (const auto* const notice = std::get_if<Notice>(&request))
        return ShowNotice(*notice);
    return Run(std::get<Invocation>(request));
}

} // namespace

} // namespace xttml

int main(int argc, char** argv) {
    try {
        return xttml::Main(argc, argv);
    } catch (const std::exception& error) {
        xttml::Complain(error.what());
        return xttml::FAILED;
    }
}
