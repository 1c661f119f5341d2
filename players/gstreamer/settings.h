// What an application sets, in any thread and at any time.
#ifndef XTTML_PLAYERS_GSTREAMER_SETTINGS_H
#define XTTML_PLAYERS_GSTREAMER_SETTINGS_H

#include <cstdint>
#include <mutex>
#include <string>
#include <utility>

namespace xttml::gstreamer {

/// What the times of a document count from.
enum class TimeBase {
    STREAM, ///< the start of the stream (ISO/IEC 14496-30)
    BUFFER  ///< the time of the buffer that the document came in
};

/// What counts for every document.
struct Choices {
    std::int32_t offset = 0;              ///< ms added to the times of the documents
    bool forcedOnly = false;              ///< only what is shown while subtitles are off
    bool isTrusted = false;               ///< of documents that are read from now on
    TimeBase timeBase = TimeBase::STREAM; ///< of documents from the pad
};

/// A document in the file system.
struct Files {
    std::string location; ///< its path in the encoding of file names; empty: none
    std::string images;   ///< the path of its PNG files, one after the other; empty: none, text is shown
};

/// Choices and files behind a lock.
class Settings {
public:
    Choices CurrentChoices() const {
        const Lock lock(mutex_);
        return choices_;
    }
    Files CurrentFiles() const {
        const Lock lock(mutex_);
        return files_;
    }

    /// Changes the choices by a function that takes them.
    template <class Change>
    void ChangeChoices(const Change& change) {
        const Lock lock(mutex_);
        change(choices_);
    }
    /// Changes the files by a function that takes them; they then count as new.
    template <class Change>
    void ChangeFiles(const Change& change) {
        const Lock lock(mutex_);
        change(files_);
        areFilesNew_ = true;
    }
    /// Has the files count as new.
    void RenewFiles() {
        const Lock lock(mutex_);
        areFilesNew_ = true;
    }
    /// Whether the files are new since the last call.
    bool TakeNews() {
        const Lock lock(mutex_);
        return std::exchange(areFilesNew_, false);
    }

private:
    using Lock = std::lock_guard<std::mutex>;

    mutable std::mutex mutex_;
    Choices choices_;
    Files files_;
    bool areFilesNew_ = false;
};

} // namespace xttml::gstreamer

#endif
