// A subtitle document of any length, as a broadcaster would ship it.
#ifndef XTTML_BENCH_SUBTITLE_DOCUMENT_H
#define XTTML_BENCH_SUBTITLE_DOCUMENT_H

#include <string>

/// A TTML document with `paragraphs` paragraphs of two lines: each names a region and a style, every third
/// has a styled span, every fifth tts: attributes of its own.
std::string SubtitleDocument(int paragraphs);

#endif
