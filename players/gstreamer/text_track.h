// Where the documents of the text pad meet the frames of the video pad. Each comes in a thread of its own.
#ifndef XTTML_PLAYERS_GSTREAMER_TEXT_TRACK_H
#define XTTML_PLAYERS_GSTREAMER_TEXT_TRACK_H

#include "players/gstreamer/document.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <gst/gst.h>
#include <memory>
#include <mutex>

namespace xttml::gstreamer {

/// A document and when it counts. Running times are those of GStreamer: they grow, whichever way is played.
struct TimedDocument {
    std::shared_ptr<const Document> document; ///< null: none
    GstClockTime begin = 0;                   ///< the first ns of running time that it is for
    GstClockTime end = GST_CLOCK_TIME_NONE;   ///< the first ns that it is not for; NONE: the next one's begin
    GstClockTimeDiff origin = 0;              ///< the stream time of its buffer, ns
};

/// The documents between the two threads. A document is replaced by the next one and dropped when its time
/// has passed. The text thread waits when it is too far ahead. The video thread waits for a text that is
/// behind: when it hears nothing for a second, it waits no longer until the text starts anew.
class TextTrack {
public:
    /// @name The text thread
    /// @{
    /// Adds a document, once fewer than a few are still to come; their begins never go back.
    /// @return false when the text is stopped or all is closed: the document is dropped
    bool Append(TimedDocument document);
    /// All documents that begin before a running time have been added.
    void Reach(GstClockTime time);
    /// @}

    /// @name The video thread
    /// @{
    /// The document at a running time; times never go back.
    /// @param waits whether there is a text to wait for
    TimedDocument At(GstClockTime time, bool waits);
    /// Nothing is asked any more: the text no longer waits, and what is too far ahead is dropped.
    void EndVideo();
    /// @}

    /// @name Any thread
    /// @{
    void Open();       ///< begins without documents
    void Close();      ///< ends every wait until Open(), whatever else is called
    void StopText();   ///< ends the wait of the text thread
    void StartText();  ///< a new text begins, without the documents so far
    void StopVideo();  ///< ends the wait of the video thread
    void StartVideo(); ///< frames come again
    /// @}

private:
    bool MustTextWait() const;
    bool MustVideoWait(GstClockTime time) const;
    void DropPassed(GstClockTime time);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<TimedDocument> documents_;
    GstClockTime reached_ = 0;
    bool isClosed_ = false;
    bool isTextStopped_ = false;
    bool isVideoStopped_ = false;
    bool hasVideoEnded_ = false;
    bool isWorthWaiting_ = true;
};

} // namespace xttml::gstreamer

#endif
