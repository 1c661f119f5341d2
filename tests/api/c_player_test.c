/* A player in C99: calls every function, with a handle and with null. */
#include "expect.h"

#include <x_ttml.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char document[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' xmlns:tts='http://www.w3.org/ns/ttml#styling' "
    "tts:extent='640px 480px'><body><div><p begin='1s' end='2s'>one<br/></p><p begin='1s' end='2s'>two</p>"
    "<p begin='3s' end='4s'>three</p></div></body></tt>";
static const char image_document[] =
    "<tt xmlns='http://www.w3.org/ns/ttml' "
    "xmlns:smpte='http://www.smpte-ra.org/schemas/2052-1/2010/smpte-tt'><body><div begin='7s' end='8s' "
    "smpte:backgroundImage='urn:dece:container:subtitleimageindex:1.png'/></body></tt>";

static void null_handle(void) {
    int32_t first = 5;
    int32_t second = 5;
    DisplayItem *items[X_TTML_DISPLAY_ITEM_SLOTS];
    memset(items, 0xFF, sizeof items);
    EXPECT(x_ttml_delete_parser(NULL) == -1);
    EXPECT(x_ttml_load_subtitle_from_file(NULL, "/") == -1);
    EXPECT(x_ttml_load_subtitle_from_data(NULL, document, 1) == -1);
    x_ttml_generate_text_display_item_sequence(NULL, 0);
    x_ttml_generate_image_display_item_sequence(NULL, 0);
    EXPECT(x_ttml_get_display_item_by_time(NULL, 0) == NULL);
    x_ttml_get_display_item_array_by_time(NULL, items, 0);
    EXPECT(!items[0] && !items[1] && !items[2] && !items[3]);
    EXPECT(x_ttml_combine_same_time_item(NULL) == NULL);
    x_ttml_get_document_time(NULL, &first, &second);
    EXPECT(first == -1 && second == -1);
    x_ttml_get_tt_extent(NULL, &first, &second);
    EXPECT(first == 0 && second == 0);
    x_ttml_set_document_buffer_info(NULL, "x", 1);
    EXPECT(x_ttml_get_subtitle_type(NULL) == 0);
    x_ttml_set_subtitle_type(NULL, 5);
    x_ttml_destory_doc(NULL);
}

static void text_subtitles(x_ttml_handle handle) {
    int32_t first = 5;
    int32_t second = 5;
    DisplayItem *items[X_TTML_DISPLAY_ITEM_SLOTS];
    x_ttml_get_document_time(handle, &first, &second);
    EXPECT(first == -1 && second == -1);
    EXPECT(x_ttml_get_subtitle_type(handle) == 0);
    x_ttml_set_subtitle_type(handle, 5);
    EXPECT(x_ttml_load_subtitle_from_data(handle, "<div/>", 6) == 1);
    x_ttml_destory_doc(handle);
    EXPECT(x_ttml_load_subtitle_from_data(handle, "<tt", 3) == 1);
    EXPECT(x_ttml_load_subtitle_from_data(handle, document, sizeof document - 1) == 0);
    x_ttml_generate_text_display_item_sequence(handle, 500);
    x_ttml_get_document_time(handle, &first, &second);
    EXPECT(first == 1500 && second == 4500);
    x_ttml_get_tt_extent(handle, &first, &second);
    EXPECT(first == 640 && second == 480);
    x_ttml_get_display_item_array_by_time(handle, items, 1500);
    EXPECT(items[0] && items[1] && items[0] != items[1] && !items[2] && !items[3]);
    EXPECT(x_ttml_get_display_item_by_time(handle, 1500) == items[0]);
    EXPECT(x_ttml_combine_same_time_item(handle) == items[0]);
    EXPECT(x_ttml_get_display_item_by_time(handle, 4501) == NULL);
    EXPECT(x_ttml_get_subtitle_type(handle) == 5);
    x_ttml_destory_doc(handle);
}

static void image_subtitles(x_ttml_handle handle) {
    x_ttml_set_document_buffer_info(handle, "\x89PNG", 4);
    EXPECT(x_ttml_load_subtitle_from_data(handle, image_document, sizeof image_document - 1) == 0);
    x_ttml_generate_image_display_item_sequence(handle, 0);
    EXPECT(x_ttml_get_display_item_by_time(handle, 7500) != NULL);
    x_ttml_destory_doc(handle);
}

static void file(x_ttml_handle handle) {
    char path[] = "/tmp/xttml-c-player-XXXXXX";
    const int descriptor = mkstemp(path);
    FILE *const stream = fdopen(descriptor, "wb");
    fwrite(document, 1, sizeof document - 1, stream);
    fclose(stream);
    EXPECT(x_ttml_load_subtitle_from_file(handle, path) == 0);
    x_ttml_destory_doc(handle);
    remove(path);
}

int main(void) {
    x_ttml_handle handle = NULL;
    null_handle();
    x_ttml_init_xerces();
    EXPECT(x_ttml_create_new_parser(&handle) == 0);
    EXPECT(handle != NULL);
    text_subtitles(handle);
    image_subtitles(handle);
    file(handle);
    EXPECT(x_ttml_delete_parser(handle) == 0);
    x_ttml_uninit_xerces();
    x_ttml_uninit_xerces(); /* that of the load from a file */
    return failures == 0 ? 0 : 1;
}
