#include "tools/xttml/document/document.h"

#include "tools/xttml/document/shown_content.h"
#include "tools/xttml/document/unusable_file.h"
#include "tools/xttml/output/diagnostics.h"

#include <fmt/format.h>

namespace xttml {

Document::Document(const Input& input) : Document(input, Source(input.file, input.isTrusted)) {}

Document::Document(const Input& input, const Source& source)
    : file_(source.Name()), images_(input.images), sequence_(source, images_, input.offset) {
    const std::string loss =
        input.isQuiet ? std::string() : LossOf(CountShown(sequence_.Model().Root(), &sequence_));
    if (!loss.empty())
        Complain(fmt::format("{}: {}; see xttml check", file_, loss));
}

MediaTime Document::TimeOf(const WrittenTime& time) {
    if (!time.hasFrames)
        return time.milliseconds;
    if (!frameRate_)
        frameRate_ = sequence_.Model().FrameRate();
    if (time.frames >= *frameRate_)
        throw UnusableFile(
            file_, fmt::format("has no frame {} of a second: there are {}", time.frames, *frameRate_));
    return time.milliseconds + MediaTime{1000} * time.frames / *frameRate_;
}

} // namespace xttml
