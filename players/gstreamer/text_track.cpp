#include "players/gstreamer/text_track.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace xttml::gstreamer {

namespace {

constexpr std::size_t mostDocuments = 4;
constexpr std::chrono::seconds patience(1);

bool HasPassed(const TimedDocument& document, GstClockTime time) {
    return document.end != GST_CLOCK_TIME_NONE && document.end <= time;
}

} // namespace

bool TextTrack::Append(TimedDocument document) {
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return !MustTextWait(); });
    if (isClosed_ || isTextStopped_)
        return false;
    if (documents_.size() < mostDocuments)
        documents_.push_back(std::move(document));
    return true;
}

void TextTrack::Reach(GstClockTime time) {
    const std::lock_guard<std::mutex> lock(mutex_);
    reached_ = std::max(reached_, time);
    changed_.notify_all();
}

TimedDocument TextTrack::At(GstClockTime time, bool waits) {
    std::unique_lock<std::mutex> lock(mutex_);
    DropPassed(time);
    while (waits && isWorthWaiting_ && MustVideoWait(time)) {
        isWorthWaiting_ = changed_.wait_for(lock, patience) == std::cv_status::no_timeout;
        DropPassed(time);
    }
    const bool isThere = !documents_.empty() && documents_.front().begin <= time;
    return isThere ? documents_.front() : TimedDocument();
}

void TextTrack::EndVideo() {
    const std::lock_guard<std::mutex> lock(mutex_);
    hasVideoEnded_ = true;
    changed_.notify_all();
}

void TextTrack::Open() {
    StartText();
    StartVideo();
    const std::lock_guard<std::mutex> lock(mutex_);
    isClosed_ = false;
}

void TextTrack::Close() {
    const std::lock_guard<std::mutex> lock(mutex_);
    isClosed_ = true;
    changed_.notify_all();
}

void TextTrack::StopText() {
    const std::lock_guard<std::mutex> lock(mutex_);
    isTextStopped_ = true;
    changed_.notify_all();
}

void TextTrack::StartText() {
    const std::lock_guard<std::mutex> lock(mutex_);
    documents_.clear();
    reached_ = 0;
    isTextStopped_ = false;
    isWorthWaiting_ = true;
}

void TextTrack::StopVideo() {
    const std::lock_guard<std::mutex> lock(mutex_);
    isVideoStopped_ = true;
    changed_.notify_all();
}

void TextTrack::StartVideo() {
    const std::lock_guard<std::mutex> lock(mutex_);
    isVideoStopped_ = false;
    hasVideoEnded_ = false;
}

bool TextTrack::MustTextWait() const {
    return !isClosed_ && !isTextStopped_ && !hasVideoEnded_ && documents_.size() >= mostDocuments;
}

bool TextTrack::MustVideoWait(GstClockTime time) const {
    return !isClosed_ && !isVideoStopped_ && reached_ <= time;
}

void TextTrack::DropPassed(GstClockTime time) {
    const std::size_t before = documents_.size();
    const auto isReplaced = [&] { return documents_.size() > 1 && documents_[1].begin <= time; };
    while (!documents_.empty() && (isReplaced() || HasPassed(documents_.front(), time)))
        documents_.pop_front();
    if (documents_.size() != before)
        changed_.notify_all();
}

} // namespace xttml::gstreamer
