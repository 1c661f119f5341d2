// Documents made to cost a player its time: what the library does with a document takes no longer, by its
// order, than parsing it. Each case is one where a step for every element once met as many others.
#include "api/x_ttml.h"
#include "tests/hardening/redirected_output.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

constexpr std::size_t HALF = 500000; // bytes of one of the two things of which there are many

std::string Many(const std::string& text) {
    std::string many;
    while (many.size() < HALF)
        many += text;
    return many;
}

std::string Document(const std::string& head, const std::string& body) {
    return "<tt xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'>"
           "<head><layout>" +
           head + "</layout></head><body>" + body + "</body></tt>";
}

struct Seconds {
    double load;
    double generate;
};

Seconds Play(const std::string& document) {
    using Clock = std::chrono::steady_clock;
    const auto since = [](Clock::time_point start) {
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    const RedirectedOutput silence("/dev/null");
    x_ttml_handle parser = nullptr;
    x_ttml_init_xerces();
    x_ttml_create_new_parser(&parser);
    x_ttml_set_document_buffer_info(parser, "\x89PNG", 4);
    Seconds seconds = {};
    Clock::time_point start = Clock::now();
    x_ttml_load_subtitle_from_data(parser, document.data(), static_cast<std::uint32_t>(document.size()));
    seconds.load = since(start);
    start = Clock::now();
    x_ttml_generate_text_display_item_sequence(parser, 0);
    x_ttml_generate_image_display_item_sequence(parser, 0);
    seconds.generate = since(start);
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    x_ttml_uninit_xerces();
    return seconds;
}

TEST(HostileCosts, GrowAsTheDocumentDoes) {
    const std::string paragraphs = "<div>" + Many("<p region='b'/>") + "</div>";
    const std::string image = "<div begin='1s' end='2s' "
                              "smpte:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/>";
    const struct {
        const char* what;
        std::string document;
    } cases[] = {
        {"regions and paragraphs that name none of them", Document(Many("<region xml:id='a'/>"), paragraphs)},
        {"comments before the root and divisions", Many("<!---->") + Document("", Many("<div/>"))},
        {"comments before the root and images", Many("<!---->") + Document("", Many(image))},
        {"comments in the head and paragraphs", Document(Many("<!---->"), paragraphs)},
        {"paragraphs that are shown at the same time",
         Document("", "<div>" + Many("<p begin='1s' end='9s'/>") + "</div>")},
    };
    for (const auto& test : cases) {
        const Seconds seconds = Play(test.document);
        EXPECT_LT(seconds.generate, 0.5 + 10 * seconds.load) << test.what;
    }
}

} // namespace
