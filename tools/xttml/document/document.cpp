#include "tools/xttml/document/document.h"

#include "tools/xttml/document/unusable_file.h"

#include <fmt/format.h>

namespace xttml {

Document::Document(const Input& input)
    : source_(input.file, input.isTrusted), images_(input.images), sequence_(source_, images_, input.offset) {
}

MediaTime Document::TimeOf(const WrittenTime& time) {
    if (!time.hasFrames)
        return time.milliseconds;
    if (!frameRate_)
        frameRate_ = DocumentModel(source_).FrameRate();
    if (time.frames >= *frameRate_)
        throw UnusableFile(source_.Name(), fmt::format("has no frame {} of a second: there are {}",
                                                       time.frames, *frameRate_));
    return time.milliseconds + MediaTime{1000} * time.frames / *frameRate_;
}

} // namespace xttml
