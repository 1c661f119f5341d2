// Makes image subtitles from text, as a disc or a broadcaster would ship them: a TTML document and the block
// of PNG files beside it, white letters with a dark edge on transparent ground.
//
//     make_pictures SCRIPT DOCUMENT BLOCK
//
// Each line of the script is BEGIN END forced|plain TEXT, with "|" where a line of the picture ends.

#include <pango/pangocairo.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr int screenWidth = 1280;
constexpr int screenHeight = 720;
constexpr int bottomMargin = 48;
constexpr int edge = 4; // px around the letters
constexpr char font[] = "DejaVu Sans Bold 30";

struct Subtitle {
    std::string begin;
    std::string end;
    bool isForced;
    std::string text;
};

struct Picture {
    int width;
    int height;
    std::string png;
};

template <auto release>
struct Releaser {
    template <class Object>
    void operator()(Object* object) const {
        release(object);
    }
};
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;
using Layout = std::unique_ptr<PangoLayout, Releaser<g_object_unref>>;
using Font = std::unique_ptr<PangoFontDescription, Releaser<pango_font_description_free>>;

std::vector<Subtitle> ReadScript(const char* path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(std::string("cannot read ") + path);
    std::vector<Subtitle> subtitles;
    for (std::string line; std::getline(file, line);) {
        Subtitle subtitle;
        std::string kind;
        std::istringstream words(line);
        words >> subtitle.begin >> subtitle.end >> kind >> std::ws;
        if (!std::getline(words, subtitle.text) || (kind != "forced" && kind != "plain"))
            throw std::runtime_error("not BEGIN END forced|plain TEXT: " + line);
        subtitle.isForced = kind == "forced";
        for (char& character : subtitle.text)
            character = character == '|' ? '\n' : character;
        subtitles.push_back(subtitle);
    }
    return subtitles;
}

Surface MakeSurface(int width, int height) {
    return Surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
}

Layout MakeLayout(cairo_t* context, const std::string& text) {
    Layout layout(pango_cairo_create_layout(context));
    const Font description(pango_font_description_from_string(font));
    pango_layout_set_font_description(layout.get(), description.get());
    pango_layout_set_alignment(layout.get(), PANGO_ALIGN_CENTER);
    pango_layout_set_text(layout.get(), text.c_str(), -1);
    return layout;
}

void DrawLetters(cairo_t* context, PangoLayout* layout) {
    cairo_move_to(context, edge, edge);
    pango_cairo_layout_path(context, layout);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_width(context, edge);
    cairo_set_source_rgb(context, 0.05, 0.05, 0.1);
    cairo_stroke_preserve(context);
    cairo_set_source_rgb(context, 1, 1, 1);
    cairo_fill(context);
}

cairo_status_t AppendBytes(void* target, const unsigned char* bytes, unsigned int size) {
    static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(bytes), size);
    return CAIRO_STATUS_SUCCESS;
}

Picture Draw(const std::string& text) {
    const Surface scratch = MakeSurface(1, 1);
    const Context measuring(cairo_create(scratch.get()));
    Picture picture{};
    pango_layout_get_pixel_size(MakeLayout(measuring.get(), text).get(), &picture.width, &picture.height);
    picture.width += 2 * edge;
    picture.height += 2 * edge;

    const Surface surface = MakeSurface(picture.width, picture.height);
    const Context context(cairo_create(surface.get()));
    DrawLetters(context.get(), MakeLayout(context.get(), text).get());
    if (cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &picture.png) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error("cannot write a PNG file of: " + text);
    return picture;
}

/// A division with an image; one that is forced stands inside another, where forcedDisplayMode counts.
void WriteDivision(std::ostream& document, const Subtitle& subtitle, const Picture& picture,
                   std::size_t index) {
    const std::string indent = subtitle.isForced ? "      " : "    ";
    if (subtitle.isForced)
        document << "    <div>\n";
    document << indent << "<div begin=\"" << subtitle.begin << "\" end=\"" << subtitle.end << "\""
             << (subtitle.isForced ? " cff:forcedDisplayMode=\"true\"" : "") << "\n"
             << indent << "     tts:extent=\"" << picture.width << "px " << picture.height
             << "px\" tts:origin=\"" << (screenWidth - picture.width) / 2 << "px "
             << screenHeight - bottomMargin - picture.height << "px\"\n"
             << indent << "     smpte:backgroundImage=\"urn:dece:container:subtitleimageindex:" << index
             << ".png\"/>\n";
    if (subtitle.isForced)
        document << "    </div>\n";
}

void WriteAll(const std::vector<Subtitle>& subtitles, std::ostream& document, std::ostream& block) {
    document << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<!-- Made by make_pictures; the pictures stand in the block beside it. -->\n"
                "<tt xmlns=\"http://www.w3.org/ns/ttml\" xmlns:tts=\"http://www.w3.org/ns/ttml#styling\"\n"
                "    xmlns:smpte=\"http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt\"\n"
                "    xmlns:cff=\"http://www.decellc.org/schema/2012/01/cff-tt-meta\"\n"
                "    xml:lang=\"en\" tts:extent=\""
             << screenWidth << "px " << screenHeight << "px\">\n  <body>\n";
    std::size_t index = 0;
    for (const Subtitle& subtitle : subtitles) {
        const Picture picture = Draw(subtitle.text);
        WriteDivision(document, subtitle, picture, ++index);
        block << picture.png;
    }
    document << "  </body>\n</tt>\n";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: make_pictures SCRIPT DOCUMENT BLOCK\n";
        return 2;
    }
    try {
        std::ofstream document(argv[2]);
        std::ofstream block(argv[3], std::ios::binary);
        WriteAll(ReadScript(argv[1]), document, block);
        if (!document.flush() || !block.flush())
            throw std::runtime_error("cannot write the document or the block");
    } catch (const std::exception& exception) {
        std::cerr << "make_pictures: " << exception.what() << "\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
