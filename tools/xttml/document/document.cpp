#include "tools/xttml/document/document.h"

#include "tools/xttml/document/unusable_file.h"

#include <fmt/format.h>

namespace xttml {

Document::Document(const Input& input)
    : source_(input.file, input.isTrusted), images_(input.images), sequence_(source_, images_, input.offset) {
}

const DocumentModel& Document::Model() {
    if (!model_)
        model_ = std::make_unique<DocumentModel>(source_);
    return *model_;
}

MediaTime Document::TimeOf(const WrittenTime& time) {
    if (!time.hasFrames)
        return time.milliseconds;
    const std::int32_t rate = Model().FrameRate();
    if (time.frames >= rate)
        throw UnusableFile(source_.Name(),
                           fmt::format("has no frame {} of a second: there are {}", time.frames, rate));
    return time.milliseconds + MediaTime{1000} * time.frames / rate;
}

} // namespace xttml
