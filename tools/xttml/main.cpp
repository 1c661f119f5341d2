// xttml: a player without a screen.
#include "tools/xttml/commands/commands.h"
#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/document/xml_library.h"
#include "tools/xttml/output/diagnostics.h"
#include "tools/xttml/output/progress.h"

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

int ShowNotice(const Notice& notice) {
    if (notice.usageError) {
        std::fputs(notice.text.c_str(), stderr);
        return WRONG_USAGE;
    }
    StandardOutput output;
    output.Write(notice.text);
    output.Flush();
    return DONE;
}

void RunOn(const Input& input, const Invocation& invocation, StandardOutput& output) {
    const XmlLibrary xmlLibrary;
    std::visit([&](const auto& options) { RunCommand(options, input, output); }, invocation.command);
}

/// Runs the command on every document that can be used.
int Run(const Invocation& invocation) {
    ShowLibraryLines(invocation.verbose);
    StandardOutput output;
    int result = DONE;
    Progress progress("documents", invocation.inputs.size());
    for (const Input& input : invocation.inputs) {
        try {
            RunOn(input, invocation, output);
        } catch (const UnusableFile& error) {
            output.Flush();
            Complain(error.what());
            result = FAILED;
        } catch (const DocumentNotClean&) {
            result = FAILED;
        }
        output.Flush();
        progress.Step();
    }
    return result;
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
    } catch (const xttml::ReaderGone&) {
        return xttml::DONE;
    } catch (const std::exception& error) {
        xttml::Complain(error.what());
    } catch (...) { // the XML library's own for want of memory
        xttml::Complain("out of memory");
    }
    return xttml::FAILED;
}
