/* Reads items in C99: calls every function of x_ttml_items.h, with right and with wrong arguments. */
#include "expect.h"

#include <x_ttml_items.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char text_document[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' xml:lang='de' "
    "xmlns:cff='http://www.decellc.org/schema/2012/01/cff-tt-meta' tts:extent='640px 480px'><head><styling>"
    "<style xml:id='s' tts:color='rgb(1,2,3)' tts:fontStyle='italic' tts:textDecoration='overline'/>"
    "</styling><layout><region xml:id='r' tts:origin='10px 20px' tts:extent='300px 100px' "
    "tts:displayAlign='after' tts:backgroundColor='#01020304' tts:textAlign='end' tts:fontSize='20px' "
    "tts:lineHeight='150%'/></layout></head><body><div><p region='r' style='s' begin='1s' end='3s' "
    "cff:forcedDisplayMode='true'>\xC3\xA4\xE2\x82\xAC<br/><span tts:visibility='hidden'>no</span>"
    "<span tts:fontWeight='bold'>\xF0\x9F\x99\x82</span></p>"
    "<p begin='2s' end='4s'>two</p><p tts:visibility='hidden'>unseen</p></div></body></tt>";
static const char image_document[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' "
    "xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'><body><div begin='7s' end='8s' "
    "smpte:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/><div begin='9s' end='9s' "
    "smpte:backgroundImage='urn:dece:container:subtitleimageindex:2.png'/></body></tt>";
static const char visible_text[] = "\xC3\xA4\xE2\x82\xAC\n\xF0\x9F\x99\x82";

static x_ttml_handle new_parser(void) {
    x_ttml_handle parser = NULL;
    EXPECT(x_ttml_try_create_parser(&parser) == X_TTML_OK && parser);
    return parser;
}

static void end_parser(x_ttml_handle parser) {
    x_ttml_destory_doc(parser);
    EXPECT(!x_ttml_get_document(parser));
    x_ttml_delete_parser(parser);
}

static int load(x_ttml_handle parser, const char *document) {
    return x_ttml_try_load_from_data(parser, document, (uint32_t)strlen(document));
}

static void wrong_arguments(void) {
    x_ttml_handle parser = new_parser();
    x_ttml_styling styling;
    uint32_t line = 5, column = 5, bytes = 5;
    size_t length = 5;
    char text[4] = "abc";
    memset(&styling, 7, sizeof styling);
    EXPECT(x_ttml_try_create_parser(NULL) == X_TTML_NULL_HANDLE);
    EXPECT(x_ttml_try_load_from_file(NULL, "x") == X_TTML_NULL_HANDLE);
    EXPECT(x_ttml_try_load_from_data(NULL, "x", 1) == X_TTML_NULL_HANDLE);
    EXPECT(x_ttml_try_set_image_data(NULL, "x", 1) == X_TTML_NULL_HANDLE);
    EXPECT(x_ttml_try_generate_text(NULL, 0) == X_TTML_NULL_HANDLE);
    EXPECT(x_ttml_try_generate_images(NULL, 0) == X_TTML_NULL_HANDLE);
    EXPECT(strcmp(x_ttml_get_reason(NULL), "") == 0);
    EXPECT(!x_ttml_get_reason_position(NULL, &line, &column) && line == 0 && column == 0);
    EXPECT(!x_ttml_get_reason_position(parser, NULL, NULL));
    x_ttml_set_untrusted(NULL, 1);
    EXPECT(x_ttml_get_untrusted(NULL) == 0);
    EXPECT(x_ttml_get_item_count(NULL) == 0 && x_ttml_get_item_count(parser) == 0);
    EXPECT(!x_ttml_get_item(NULL, 0) && !x_ttml_get_item(parser, 0));
    EXPECT(x_ttml_get_language(NULL, text, sizeof text) == 0 && text[0] == 0);
    EXPECT(x_ttml_get_language(parser, text, sizeof text) == 0);
    EXPECT(!x_ttml_get_document(NULL) && !x_ttml_get_document(parser));
    EXPECT(x_ttml_get_items_on_screen(NULL, NULL, 4, 0) == 0);
    EXPECT(x_ttml_get_items_on_screen(parser, NULL, 4, 0) == 0);
    EXPECT(x_ttml_get_next_change(NULL, 0) == X_TTML_NEVER);
    EXPECT(x_ttml_get_next_change(parser, -5) == X_TTML_NEVER);
    EXPECT(x_ttml_item_get_kind(NULL) == X_TTML_NO_ITEM);
    EXPECT(x_ttml_item_get_begin(NULL) == -1 && x_ttml_item_get_end(NULL) == -1);
    EXPECT(!x_ttml_item_is_forced(NULL));
    EXPECT(!x_ttml_item_get_image(NULL, &bytes) && bytes == 0);
    EXPECT(!x_ttml_item_get_image(NULL, NULL));
    text[0] = 'x';
    EXPECT(x_ttml_item_get_text(NULL, text, 1) == 0 && text[0] == 0);
    EXPECT(x_ttml_item_get_run_count(NULL) == 0);
    EXPECT(!x_ttml_run_get_utf16(NULL, 0, &length) && length == 0);
    EXPECT(!x_ttml_run_get_utf16(NULL, 0, NULL));
    EXPECT(x_ttml_run_get_text(NULL, 0, NULL, 9) == 0);
    EXPECT(!x_ttml_run_is_line_break(NULL, 0) && !x_ttml_run_has_own_styling(NULL, 0));
    EXPECT(!x_ttml_item_get_styling(NULL, &styling) && !x_ttml_run_get_styling(NULL, 0, &styling));
    EXPECT(!x_ttml_item_get_region_styling(NULL, &styling) && !x_ttml_item_get_style_styling(NULL, &styling));
    EXPECT(styling.font_size == 0x07070707);
    end_parser(parser);
}

static void statuses(void) {
    static const struct {
        const char *document;
        int load, text, images;
        const char *reason;
        uint32_t line, column;
    } cases[] = {
        {"<tt>\n<body>\n</tt>", X_TTML_MALFORMED, 0, 0, "3:3: expected end of tag 'body'", 3, 3},
        {"<!DOCTYPE tt>\n<tt/>", X_TTML_REFUSED, 0, 0, "1:14: A document type declaration is not allowed.", 1,
         14},
        {"", X_TTML_MALFORMED, 0, 0, "1:1: invalid document structure", 1, 1},
        {"<div/>", X_TTML_NO_ROOT_ELEMENT, 0, 0, "no tt root element", 0, 0},
        {"<tt/>", X_TTML_OK, X_TTML_OK, X_TTML_OK, "", 0, 0},
        {"<tt xmlns:t='http://www.w3.org/ns/ttml#parameter' "
         "t:frameRate='\xC3\xA4'><body><div><p/></div></body></tt>",
         X_TTML_OK, X_TTML_BAD_VALUE, X_TTML_BAD_VALUE,
         "ttp:frameRate: '\xC3\xA4' could not be parsed as int", 0, 0},
        {"<tt xmlns:c='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div><p "
         "c:forcedDisplayMode='yes'/></div></body></tt>",
         X_TTML_OK, X_TTML_BAD_VALUE, X_TTML_OK, "", 0, 0},
        {"<tt xmlns:s='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'><body><div begin='1s' "
         "s:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/></body></tt>",
         X_TTML_OK, X_TTML_OK, X_TTML_BAD_VALUE, "end: Cannot read value of non-existent attribute.", 0, 0},
        {"<tt xmlns:s='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt' "
         "xmlns:c='http://www.decellc.org/schema/2012/01/cff-tt-meta'><body><div><div begin='1s' end='2s' "
         "c:forcedDisplayMode='yes' "
         "s:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/></div></body></tt>",
         X_TTML_OK, X_TTML_OK, X_TTML_BAD_VALUE, "forcedDisplayMode: 'yes' could not be parsed as bool", 0,
         0},
    };
    size_t i;
    for (i = 0; i < sizeof cases / sizeof *cases; ++i) {
        x_ttml_handle parser = new_parser();
        uint32_t line = 5;
        uint32_t column = 5;
        int status;
        x_ttml_set_untrusted(parser, 1);
        EXPECT(x_ttml_try_set_image_data(parser, "\x89PNG", 4) == X_TTML_OK);
        status = load(parser, cases[i].document);
        EXPECT(status == cases[i].load);
        if (status == X_TTML_OK) {
            EXPECT(x_ttml_try_generate_text(parser, 0) == cases[i].text);
            EXPECT(x_ttml_try_generate_images(parser, 0) == cases[i].images);
        }
        EXPECT(strcmp(x_ttml_get_reason(parser), cases[i].reason) == 0);
        if (strcmp(x_ttml_get_reason(parser), cases[i].reason) != 0)
            fprintf(stderr, "%s\n  gives %s\n", cases[i].document, x_ttml_get_reason(parser));
        EXPECT(x_ttml_get_reason_position(parser, &line, &column) == (cases[i].line != 0));
        EXPECT(line == cases[i].line && column == cases[i].column);
        end_parser(parser);
    }
}

static void other_statuses(void) {
    x_ttml_handle parser = new_parser();
    EXPECT(x_ttml_try_load_from_file(parser, "/nonexistent/film.ttml") == X_TTML_UNREADABLE);
    EXPECT(strstr(x_ttml_get_reason(parser), "/nonexistent/film.ttml") != NULL);
    x_ttml_uninit_xerces(); /* matches the load from a file */
    EXPECT(x_ttml_try_generate_text(parser, 0) == X_TTML_NO_ROOT_ELEMENT);
    EXPECT(x_ttml_try_generate_images(parser, 0) == X_TTML_NO_ROOT_ELEMENT);
    EXPECT(load(parser, "<tt><body><div/></body></tt>") == X_TTML_OK);
    EXPECT(strcmp(x_ttml_get_reason(parser), "") == 0);
    EXPECT(x_ttml_try_generate_images(parser, 0) == X_TTML_NO_IMAGE_DATA);
    EXPECT(x_ttml_try_set_image_data(parser, NULL, 4) == X_TTML_NO_IMAGE_DATA);
    EXPECT(x_ttml_try_set_image_data(parser, "x", 0) == X_TTML_NO_IMAGE_DATA);
    end_parser(parser);
}

/* Each room for a text: whole characters, a zero byte after them, nothing beyond the room. */
static void text_in_every_room(const DisplayItem *item) {
    char buffer[32];
    size_t room;
    EXPECT(x_ttml_item_get_text(item, NULL, 0) == strlen(visible_text));
    for (room = 0; room <= sizeof visible_text + 1; ++room) {
        memset(buffer, 'x', sizeof buffer);
        EXPECT(x_ttml_item_get_text(item, buffer, room) == strlen(visible_text));
        EXPECT(buffer[room] == 'x');
        if (room > 0) {
            size_t length = strlen(buffer);
            EXPECT(length < room && memcmp(buffer, visible_text, length) == 0);
            EXPECT((visible_text[length] & 0xC0) != 0x80); /* no character is cut */
            EXPECT(room <= strlen(visible_text) ? room - length <= 4 : length == strlen(visible_text));
        }
    }
}

static void runs(const DisplayItem *item) {
    static const struct {
        const char *text;
        size_t units;
        int line_break, own_styling, hidden, bold;
    } expected[] = {{"\xC3\xA4\xE2\x82\xAC", 2, 0, 0, 0, 0},
                    {"\n", 1, 1, 0, 0, 0},
                    {"no", 2, 0, 1, 1, 0},
                    {"\xF0\x9F\x99\x82", 2, 0, 1, 0, 1}};
    char text[8];
    size_t length;
    uint32_t run;
    x_ttml_styling styling;
    styling.size = sizeof styling;
    EXPECT(x_ttml_item_get_run_count(item) == 4);
    for (run = 0; run < 4; ++run) {
        EXPECT(x_ttml_run_get_text(item, run, text, sizeof text) == strlen(expected[run].text));
        EXPECT(strcmp(text, expected[run].text) == 0);
        EXPECT(x_ttml_run_get_utf16(item, run, &length) && length == expected[run].units);
        EXPECT(x_ttml_run_is_line_break(item, run) == expected[run].line_break);
        EXPECT(x_ttml_run_has_own_styling(item, run) == expected[run].own_styling);
        EXPECT(x_ttml_run_get_styling(item, run, &styling));
        EXPECT(styling.is_hidden == expected[run].hidden && styling.is_bold == expected[run].bold);
    }
    EXPECT(x_ttml_run_get_utf16(item, 0, &length)[1] == 0x20AC);
    EXPECT(!x_ttml_run_get_utf16(item, 4, &length) && length == 0);
    EXPECT(x_ttml_run_get_text(item, 4, text, sizeof text) == 0 && text[0] == 0);
    EXPECT(!x_ttml_run_get_styling(item, 4, &styling));
}

static void records(const DisplayItem *item) {
    x_ttml_styling s;
    unsigned char old_program[40];
    unsigned char new_program[sizeof s + 8];
    const uint32_t sizes[] = {sizeof old_program - 4, sizeof new_program};
    s.size = sizeof s;
    EXPECT(x_ttml_item_get_styling(item, &s) == 1 && s.size == sizeof s);
    EXPECT(strcmp(s.color_text, "rgb(1,2,3)") == 0 && strcmp(s.background_color_text, "transparent") == 0);
    EXPECT(s.color.red == 1 && s.color.green == 2 && s.color.blue == 3 && s.color.alpha == 255);
    EXPECT(s.background_color.red == 0 && s.background_color.alpha == 0);
    EXPECT(s.given == (X_TTML_GIVEN_COLOR | X_TTML_GIVEN_FONT_STYLE | X_TTML_GIVEN_TEXT_DECORATION));
    EXPECT(s.display_align == X_TTML_DISPLAY_ALIGN_AFTER && s.text_align == X_TTML_TEXT_ALIGN_END);
    EXPECT(s.text_decoration == X_TTML_TEXT_DECORATION_OVERLINE);
    EXPECT(s.is_italic == 1 && s.is_bold == 0 && s.is_hidden == 0);
    EXPECT(s.font_size == 20 && s.line_height == 30 && s.origin_x == 10 && s.origin_y == 20);
    EXPECT(s.extent_width == 300 && s.extent_height == 100);
    EXPECT(x_ttml_item_get_region_styling(item, &s) && s.background_color.alpha == 4 && s.given == 0);
    EXPECT(x_ttml_item_get_style_styling(item, &s) && s.extent_width == 0 && s.is_italic == 1);

    /* a program that knows less of the record, and one that knows more: each gets the same after its size */
    EXPECT(x_ttml_item_get_styling(item, &s) && s.extent_height == 100);
    memset(old_program, 0x77, sizeof old_program);
    memcpy(old_program, &sizes[0], sizeof sizes[0]);
    EXPECT(x_ttml_item_get_styling(item, (x_ttml_styling *)(void *)old_program));
    EXPECT(memcmp(old_program + 4, (unsigned char *)&s + 4, sizes[0] - 4) == 0 &&
           old_program[sizes[0]] == 0x77);
    memset(new_program, 0x77, sizeof new_program);
    memcpy(new_program, &sizes[1], sizeof sizes[1]);
    EXPECT(x_ttml_item_get_styling(item, (x_ttml_styling *)(void *)new_program));
    EXPECT(memcmp(new_program + 4, (unsigned char *)&s + 4, sizeof s - 4) == 0);
    EXPECT(new_program[sizeof s] == 0 && new_program[sizeof s + 7] == 0);
    s.size = 3;
    EXPECT(!x_ttml_item_get_styling(item, &s) && s.extent_height == 100);
    EXPECT(!x_ttml_item_get_styling(item, NULL));
}

static void text_items(void) {
    x_ttml_handle parser = new_parser();
    DisplayItem *items[3] = {NULL, NULL, NULL};
    x_ttml_styling styling;
    char language[8];
    int by_default = 5;
    styling.size = sizeof styling;
    EXPECT(strcmp(x_ttml_get_version(NULL), XTTML_VERSION) == 0);
    EXPECT(strcmp(x_ttml_get_version(&by_default), XTTML_VERSION) == 0);
    EXPECT(x_ttml_get_untrusted(parser) == by_default);
    x_ttml_set_untrusted(parser, 2);
    EXPECT(x_ttml_get_untrusted(parser) == 1);
    EXPECT(load(parser, text_document) == X_TTML_OK);
    EXPECT(x_ttml_get_language(parser, language, sizeof language) == 2 && strcmp(language, "de") == 0);
    EXPECT(x_ttml_get_document(parser) != NULL);
    EXPECT(x_ttml_try_generate_text(parser, 0) == X_TTML_OK);
    EXPECT(x_ttml_get_item_count(parser) == 3 && !x_ttml_get_item(parser, 3));
    items[0] = x_ttml_get_item(parser, 0);
    EXPECT(x_ttml_item_get_kind(items[0]) == X_TTML_TEXT_ITEM && x_ttml_item_is_forced(items[0]) == 1);
    EXPECT(x_ttml_item_get_begin(items[0]) == 1000 && x_ttml_item_get_end(items[0]) == 3000);
    EXPECT(!x_ttml_item_get_image(items[0], NULL));
    text_in_every_room(items[0]);
    runs(items[0]);
    records(items[0]);
    EXPECT(x_ttml_item_get_text(x_ttml_get_item(parser, 2), NULL, 0) == 0);
    EXPECT(!x_ttml_item_get_region_styling(x_ttml_get_item(parser, 1), &styling));
    EXPECT(!x_ttml_item_get_style_styling(x_ttml_get_item(parser, 1), &styling));

    EXPECT(x_ttml_get_items_on_screen(parser, items, 3, 2000) == 2);
    EXPECT(items[0] == x_ttml_get_item(parser, 0) && items[1] == x_ttml_get_item(parser, 1));
    items[1] = NULL;
    EXPECT(x_ttml_get_items_on_screen(parser, items, 1, 2000) == 2 && !items[1]);
    EXPECT(x_ttml_get_items_on_screen(parser, items, 3, 999) == 0);
    EXPECT(x_ttml_get_next_change(parser, 0) == 1000 && x_ttml_get_next_change(parser, 1000) == 2000);
    EXPECT(x_ttml_get_next_change(parser, 3000) == 3001 &&
           x_ttml_get_next_change(parser, 4001) == X_TTML_NEVER);
    end_parser(parser);
}

static void image_items(void) {
    x_ttml_handle parser = new_parser();
    uint32_t bytes = 0;
    const uint8_t *data;
    EXPECT(x_ttml_try_set_image_data(parser, "\x89PNG12", 6) == X_TTML_OK);
    EXPECT(load(parser, image_document) == X_TTML_OK);
    EXPECT(x_ttml_try_generate_images(parser, 500) == X_TTML_OK && x_ttml_get_item_count(parser) == 2);
    data = x_ttml_item_get_image(x_ttml_get_item(parser, 0), &bytes);
    EXPECT(x_ttml_item_get_kind(x_ttml_get_item(parser, 0)) == X_TTML_IMAGE_ITEM);
    EXPECT(bytes == 6 && data && memcmp(data, "\x89PNG12", 6) == 0);
    EXPECT(x_ttml_item_get_begin(x_ttml_get_item(parser, 0)) == 7500);
    EXPECT(!x_ttml_item_get_image(x_ttml_get_item(parser, 1), &bytes) && bytes == 0); /* no second picture */
    EXPECT(x_ttml_item_get_run_count(x_ttml_get_item(parser, 0)) == 0);
    EXPECT(x_ttml_item_get_text(x_ttml_get_item(parser, 0), NULL, 0) == 0);
    end_parser(parser);
}

static void collect(void *context, const char *line, size_t length) {
    char *lines = context;
    strncat(lines, line, length);
    strcat(lines, "|");
}

static void lines(void) {
    char collected[1024] = "";
    x_ttml_set_line_function(collect, collected);
    text_items();
    EXPECT(strcmp(collected,
                  "load from file ok|vGenerateTextDisplaySequence called!|20|150|document start time "
                  "1000|document end time 4294967295|de|Close Document!|Document Closed!|destruct "
                  "Parser|") == 0);
    x_ttml_drop_lines();
    collected[0] = 0;
    text_items();
    EXPECT(collected[0] == 0);
}

int main(void) {
    x_ttml_drop_lines();
    EXPECT(x_ttml_try_init() == X_TTML_OK);
    wrong_arguments();
    statuses();
    other_statuses();
    text_items();
    image_items();
    lines();
    x_ttml_set_line_function(NULL, NULL);
    x_ttml_uninit_xerces();
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
