#include "bench/subtitle_document.h"

#include <cstdio>

namespace {

constexpr char opening[] =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<tt xmlns="http://www.w3.org/ns/ttml" xmlns:tts="http://www.w3.org/ns/ttml#styling" xml:lang="en" tts:extent="1280px 720px">
  <head>
    <styling>
      <style xml:id="speech" tts:color="white" tts:fontSize="36px" tts:textAlign="center"/>
      <style xml:id="narrator" tts:color="yellow" tts:fontStyle="italic" tts:fontSize="36px"/>
    </styling>
    <layout>
      <region xml:id="bottom" tts:origin="10% 80%" tts:extent="80% 15%" tts:displayAlign="after"/>
      <region xml:id="top" tts:origin="10% 5%" tts:extent="80% 15%" tts:displayAlign="before"/>
    </layout>
  </head>
  <body>
    <div>
)";
constexpr char closing[] = "    </div>\n  </body>\n</tt>\n";

constexpr const char* lines[] = {
    "The ferry leaves at seven, with or without us.",
    "You said that yesterday, too.",
    "Nobody has opened this door in forty years.",
    "Then who left the lamp burning?",
    "Bring the long rope and the small hammer.",
    "I can hear the river from here.",
    "She never answers before noon.",
};
constexpr int lineCount = sizeof lines / sizeof lines[0];

std::string ClockTime(int milliseconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", milliseconds / 3600000, milliseconds / 60000 % 60,
                  milliseconds / 1000 % 60, milliseconds % 1000);
    return text;
}

std::string Paragraph(int number) {
    const int begin = number * 2500;
    std::string text = "      <p begin=\"" + ClockTime(begin) + "\" end=\"" + ClockTime(begin + 2200) + "\"";
    text += number % 7 == 0 ? " region=\"top\" style=\"narrator\"" : " region=\"bottom\" style=\"speech\"";
    if (number % 5 == 0)
        text += " tts:color=\"#FFEE88FF\" tts:textAlign=\"left\" tts:fontSize=\"40px\"";
    text += ">";
    text += lines[number % lineCount];
    text += "<br/>";
    const std::string second = lines[(number + 3) % lineCount];
    text +=
        number % 3 == 0 ? "<span tts:fontStyle=\"italic\" tts:color=\"cyan\">" + second + "</span>" : second;
    return text + "</p>\n";
}

} // namespace

std::string SubtitleDocument(int paragraphs) {
    std::string text = opening;
    for (int i = 0; i < paragraphs; ++i)
        text += Paragraph(i);
    return text + closing;
}
