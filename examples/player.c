/* A player without a screen in C99: says what is shown and when, and sleeps from one change to the next.
 *
 *     cc -std=c99 player.c $(pkg-config --cflags --libs xttml)
 *     player [--realtime] DOCUMENT [BLOCK-OF-PNG-FILES]
 */
#define _POSIX_C_SOURCE 200809L
#include <x_ttml_items.h>

#include <errno.h>
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

enum { ROOM_ON_SCREEN = 32 };

/* All that is left of a file; null when it cannot be read. The caller frees it. */
static char *read_all(FILE *file, size_t *size) {
    char *bytes = NULL;
    char *larger;
    size_t room = 0;
    for (*size = 0; !ferror(file) && !feof(file); *size += fread(bytes + *size, 1, room - *size, file)) {
        if (*size < room)
            continue;
        room = room ? 2 * room : 65536;
        larger = realloc(bytes, room);
        if (!larger)
            break;
        bytes = larger;
    }
    if (feof(file))
        return bytes;
    free(bytes);
    return NULL;
}

/* A whole file; null when it cannot be read, which is then said. The caller frees it. */
static char *read_file(const char *path, size_t *size) {
    FILE *file = fopen(path, "rb");
    char *bytes = file ? read_all(file, size) : NULL;
    if (!bytes)
        fprintf(stderr, "%s: %s\n", path, strerror(errno));
    if (file)
        fclose(file);
    return bytes;
}

static void draw_text(const DisplayItem *item) {
    size_t length = x_ttml_item_get_text(item, NULL, 0);
    char *text = malloc(length + 1);
    if (text) {
        x_ttml_item_get_text(item, text, length + 1);
        printf(" \"%s\"", text);
    }
    free(text);
}

static void draw(const DisplayItem *item) {
    uint32_t bytes = 0;
    x_ttml_styling styling;
    styling.size = sizeof styling;
    x_ttml_item_get_styling(item, &styling);
    printf("  %" PRIu32 "x%" PRIu32 " at %" PRIu32 ",%" PRIu32, styling.extent_width, styling.extent_height,
           styling.origin_x, styling.origin_y);
    if (x_ttml_item_get_kind(item) == X_TTML_TEXT_ITEM)
        draw_text(item);
    else if (x_ttml_item_get_image(item, &bytes))
        printf(" picture of %" PRIu32 " bytes", bytes);
    puts(x_ttml_item_is_forced(item) ? ", forced" : "");
}

static void show(x_ttml_handle parser, int32_t now) {
    DisplayItem *items[ROOM_ON_SCREEN];
    uint32_t count = x_ttml_get_items_on_screen(parser, items, ROOM_ON_SCREEN, now);
    uint32_t i;
    printf("%" PRId32 " ms: %" PRIu32 " on screen\n", now, count);
    for (i = 0; i < count && i < ROOM_ON_SCREEN; ++i)
        draw(items[i]);
}

static void sleep_for(int64_t milliseconds) {
    struct timespec left;
    left.tv_sec = (time_t)(milliseconds / 1000);
    left.tv_nsec = (long)(milliseconds % 1000) * 1000000;
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

/* Wakes when the screen changes and at no other time. */
static void play(x_ttml_handle parser, int realtime) {
    int64_t now = 0;
    int64_t next;
    while (now != X_TTML_NEVER) {
        show(parser, (int32_t)now);
        next = x_ttml_get_next_change(parser, (int32_t)now);
        if (realtime && next != X_TTML_NEVER)
            sleep_for(next - now);
        now = next;
    }
}

static int load(x_ttml_handle parser, const char *path) {
    size_t size;
    char *bytes = read_file(path, &size);
    int status = X_TTML_UNREADABLE;
    if (bytes && size <= UINT32_MAX)
        status = x_ttml_try_load_from_data(parser, bytes, (uint32_t)size);
    free(bytes);
    return status;
}

static int set_images(x_ttml_handle parser, const char *path) {
    size_t size;
    char *bytes = read_file(path, &size);
    int status = X_TTML_UNREADABLE;
    if (bytes && size <= INT32_MAX)
        status = x_ttml_try_set_image_data(parser, bytes, (int32_t)size);
    free(bytes);
    return status;
}

/* Makes the items of a document; images may be null. */
static int prepare(x_ttml_handle parser, const char *document, const char *images) {
    int status = images ? set_images(parser, images) : X_TTML_OK;
    if (status == X_TTML_OK)
        status = load(parser, document);
    if (status != X_TTML_OK)
        return status;
    return images ? x_ttml_try_generate_images(parser, 0) : x_ttml_try_generate_text(parser, 0);
}

static int run(const char *document, const char *images, int realtime) {
    x_ttml_handle parser = NULL;
    int status = x_ttml_try_create_parser(&parser);
    if (status == X_TTML_OK) {
        x_ttml_set_untrusted(parser, 1); /* the document may come from anybody */
        status = prepare(parser, document, images);
    }
    if (status == X_TTML_OK)
        play(parser, realtime);
    else if (x_ttml_get_reason(parser)[0] != '\0')
        fprintf(stderr, "%s:%s\n", document, x_ttml_get_reason(parser));
    x_ttml_destory_doc(parser);
    x_ttml_delete_parser(parser);
    return status;
}

int main(int count, char **arguments) {
    int realtime = count > 1 && strcmp(arguments[1], "--realtime") == 0;
    char **files = arguments + 1 + realtime;
    int status;
    if (!files[0]) {
        fprintf(stderr, "usage: %s [--realtime] DOCUMENT [BLOCK]\n", arguments[0]);
        return 2;
    }
    x_ttml_drop_lines(); /* standard output is ours */
    if (x_ttml_try_init() != X_TTML_OK)
        return 1;
    status = run(files[0], files[1], realtime);
    x_ttml_uninit_xerces();
    return status == X_TTML_OK ? 0 : 1;
}
