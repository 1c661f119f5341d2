/* xttml in plain C: what a player reads of its display items, and the calls that never throw.
 *
 * x_ttml.h gives C a parser and opaque items. This header reads the items, walks the whole sequence, asks for
 * all that is on screen and for the next change, and loads and generates without exceptions. Its conventions
 * are those of x_ttml.h, and these:
 *
 *  1. No function of this header throws, and none prints but those whose counterpart in x_ttml.h does.
 *  2. Pointers to items, runs, pictures and texts belong to the parser and stay valid until it is deleted,
 *     unless a function says otherwise.
 *  3. Texts that a function writes or returns are UTF-8 and end in a zero byte. A surrogate without its
 *     partner is U+FFFD, the replacement character. Colours and identifiers keep their bytes as the document
 *     model has them: each the low 8 bits of a UTF-16 code unit.
 *  4. A function that writes a text works as snprintf() does: it gets a buffer and its room in bytes, writes
 *     as many whole characters as fit and a zero byte, and returns the length of the whole text without the
 *     zero byte. With a room of 0 it writes nothing, and the buffer may be null.
 *  5. Times are signed 32-bit milliseconds. An item is on screen at t when begin <= t <= end.
 *
 * Wrong arguments
 *
 *     null handle or item, index past the last        0, null or an empty text; a status: X_TTML_NULL_HANDLE
 *     null place for a result                         nothing is stored there
 *     null buffer                                     counts as a room of 0
 *     a text of an image, a picture of a text         an empty text, no runs; null
 *     a record whose size is smaller than that field  nothing is stored, 0
 */
#ifndef XTTML_X_TTML_ITEMS_H
#define XTTML_X_TTML_ITEMS_H

#include "api/x_ttml.h"

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @name Calls that never throw
 * Each does what its namesake in x_ttml.h does, lines on standard output included, and returns a status. What
 * a failed call has done so far stays as the namesake says.
 * @{ */
/** What these calls return beside X_TTML_OK and, for a null handle, X_TTML_NULL_HANDLE. */
enum {
    X_TTML_NO_ROOT_ELEMENT = 1, /**< the document has no tt root element, or no document is loaded */
    X_TTML_UNREADABLE = 2,      /**< the file cannot be opened or read */
    X_TTML_MALFORMED = 3,       /**< the document is not well-formed XML */
    X_TTML_REFUSED = 4,         /**< more than an untrusted document may have: x_ttml_set_untrusted() */
    X_TTML_BAD_VALUE = 5,       /**< an attribute is missing, or its value does not convert */
    X_TTML_NO_IMAGE_DATA = 6,   /**< the parser holds no block of image data */
    X_TTML_OUT_OF_MEMORY = 7,   /**< memory ran out */
    X_TTML_FAILED = 8           /**< anything else; the reason tells */
};

/** x_ttml_init_xerces().
 * @return X_TTML_OK, X_TTML_OUT_OF_MEMORY or X_TTML_FAILED */
XTTML_API int x_ttml_try_init(void);

/** x_ttml_create_new_parser().
 * @param handle where the handle is stored; null when no parser was made
 * @return X_TTML_OK, X_TTML_OUT_OF_MEMORY or, for a null place, X_TTML_NULL_HANDLE */
XTTML_API int x_ttml_try_create_parser(x_ttml_handle *handle);

/** x_ttml_load_subtitle_from_file().
 * @param path as there; null is an empty path
 * @return any status but X_TTML_BAD_VALUE and X_TTML_NO_IMAGE_DATA */
XTTML_API int x_ttml_try_load_from_file(x_ttml_handle handle, const char *path);

/** x_ttml_load_subtitle_from_data().
 * @param data, size as there
 * @return any status but X_TTML_UNREADABLE, X_TTML_BAD_VALUE and X_TTML_NO_IMAGE_DATA */
XTTML_API int x_ttml_try_load_from_data(x_ttml_handle handle, const void *data, uint32_t size);

/** x_ttml_set_document_buffer_info().
 * @param buffer, size as there
 * @return X_TTML_OK, X_TTML_OUT_OF_MEMORY; X_TTML_NO_IMAGE_DATA when no copy is held afterwards */
XTTML_API int x_ttml_try_set_image_data(x_ttml_handle handle, const char *buffer, int32_t size);

/** x_ttml_generate_text_display_item_sequence().
 * @param offset as there
 * @return X_TTML_OK, also for a document without paragraphs; X_TTML_NO_ROOT_ELEMENT, X_TTML_BAD_VALUE,
 *         X_TTML_OUT_OF_MEMORY or X_TTML_FAILED */
XTTML_API int x_ttml_try_generate_text(x_ttml_handle handle, int32_t offset);

/** x_ttml_generate_image_display_item_sequence().
 * @param offset as there
 * @return as x_ttml_try_generate_text(), and X_TTML_NO_IMAGE_DATA */
XTTML_API int x_ttml_try_generate_images(x_ttml_handle handle, int32_t offset);

/** Why the last of these calls on a handle failed: one line of UTF-8 for people. It begins with the place in
 * the document ("3:14: ", line and column) or with the name of the attribute where they are known, so that
 * a file's name and a colon before it make the line that editors jump to.
 * @return the text, valid until the next of these calls on the handle; empty after X_TTML_OK and for a null
 *         handle */
XTTML_API const char *x_ttml_get_reason(x_ttml_handle handle);

/** Where in the document the reason lies.
 * @param line, column counted from 1; 0 when there is no place to tell
 * @return 1 when there is a place, else 0 */
XTTML_API int x_ttml_get_reason_position(x_ttml_handle handle, uint32_t *line, uint32_t *column);
/** @} */

/** @name Untrusted documents
 * @{ */
/** The version of the library that runs, such as "1.0.0".
 * @param untrusted_by_default 1 when new parsers distrust their documents, else 0; may be null
 * @return the version, valid for ever */
XTTML_API const char *x_ttml_get_version(int *untrusted_by_default);

/** Whether the documents that this parser loads from now on are untrusted: a document type declaration is
 * refused before anything that it names is read, a path is a path of the local file system and nothing else,
 * and size, depth, nodes, attributes, values, names and namespaces are bounded: xttml_items(3) lists the
 * limits. A new parser has the library's default.
 * @param untrusted 0: trusted
 * A null handle does nothing. */
XTTML_API void x_ttml_set_untrusted(x_ttml_handle handle, int untrusted);

/** 1 when the documents of this parser are untrusted, else 0. */
XTTML_API int x_ttml_get_untrusted(x_ttml_handle handle);
/** @} */

/** @name The library's lines
 * @{ */
/** Receives a line of the library.
 * @param context what x_ttml_set_line_function() was given
 * @param line the text, without its line end and not terminated; valid during the call
 * @param length its bytes; what comes from a document may hold any of them, zero included */
typedef void (*x_ttml_line_function)(void *context, const char *line, size_t length);

/** Sends every line of the library, in the whole process, to a function instead of standard output. Call it
 * while no other thread is inside the library.
 * @param line_function must neither throw nor call the library; null: standard output, as at the start
 * @param context handed on to the function */
XTTML_API void x_ttml_set_line_function(x_ttml_line_function line_function, void *context);

/** Drops every line of the library, in the whole process. x_ttml_set_line_function() ends it. Call it while
 * no other thread is inside the library. */
XTTML_API void x_ttml_drop_lines(void);
/** @} */

/** @name The display sequence
 * @{ */
/** How many items the parser holds. */
XTTML_API uint32_t x_ttml_get_item_count(x_ttml_handle handle);

/** The xml:lang of the loaded document's tt element; empty without one and without a document. */
XTTML_API size_t x_ttml_get_language(x_ttml_handle handle, char *buffer, size_t room);

/** The loaded document, for ttaf1_dfxp::tt::Cttaf1_dfxp of the C++ document model, which tells all of it.
 * @return a xercesc::DOMNode, the parser's until x_ttml_destory_doc(); null without a document */
XTTML_API void *x_ttml_get_document(x_ttml_handle handle);

/** An item by its number.
 * @param index counted from 0 in the order of generation
 * @return the item; null past the last one */
XTTML_API DisplayItem *x_ttml_get_item(x_ttml_handle handle, uint32_t index);

/** All that is on screen at a time, overlapping items included, in the order of generation. Allocates
 * nothing; its cost grows with the answer, not with the sequence.
 * @param items where the first of them are stored
 * @param room how many pointers fit there
 * @param time ms
 * @return how many are on screen, also when not all of them fit */
XTTML_API uint32_t x_ttml_get_items_on_screen(x_ttml_handle handle, DisplayItem **items, uint32_t room,
                                              int32_t time);

/** What x_ttml_get_next_change() returns when nothing changes any more; greater than every time. */
#define X_TTML_NEVER INT64_MAX

/** The first millisecond after a time at which not the same items are on screen. Allocates nothing.
 * @param time ms
 * @return that time, or X_TTML_NEVER */
XTTML_API int64_t x_ttml_get_next_change(x_ttml_handle handle, int32_t time);
/** @} */

/** @name An item
 * @{ */
/** What an item is. */
enum {
    X_TTML_NO_ITEM = 0,   /**< null */
    X_TTML_TEXT_ITEM = 1, /**< a paragraph: runs of text */
    X_TTML_IMAGE_ITEM = 2 /**< a picture */
};

/** One of X_TTML_NO_ITEM, X_TTML_TEXT_ITEM and X_TTML_IMAGE_ITEM. */
XTTML_API int x_ttml_item_get_kind(const DisplayItem *item);

/** The first millisecond on screen; -1 plus the offset of its generation without a begin; -1 for null. */
XTTML_API int32_t x_ttml_item_get_begin(const DisplayItem *item);

/** The last millisecond on screen; -1 plus the offset of its generation without an end; -1 for null. */
XTTML_API int32_t x_ttml_item_get_end(const DisplayItem *item);

/** 1 when the item is shown even while subtitles are off (CFF-TT forcedDisplayMode), else 0. */
XTTML_API int x_ttml_item_is_forced(const DisplayItem *item);

/** The PNG file of an image item, inside the parser's copy of the image data.
 * @param size its bytes; 0 when there are none
 * @return its first byte; null for a text and for an image without data */
XTTML_API const uint8_t *x_ttml_item_get_image(const DisplayItem *item, uint32_t *size);

/** The text that a viewer sees: that of all runs that are not hidden, a line break as a line feed. White
 * space stands as in the document. Empty when all runs are hidden. */
XTTML_API size_t x_ttml_item_get_text(const DisplayItem *item, char *buffer, size_t room);

/** How many runs a text item has; 0 for an image. */
XTTML_API uint32_t x_ttml_item_get_run_count(const DisplayItem *item);
/** @} */

/** @name A run
 * A piece of an item's text with one styling, counted from 0 in the order of the document.
 * @{ */
/** A UTF-16 code unit. */
#ifdef __cplusplus
typedef char16_t x_ttml_utf16;
#else
typedef uint16_t x_ttml_utf16;
#endif

/** The text of a run as the document has it, lone surrogates included; not terminated.
 * @param length its code units
 * @return the first of them; null when there are none */
XTTML_API const x_ttml_utf16 *x_ttml_run_get_utf16(const DisplayItem *item, uint32_t run, size_t *length);

/** The text of a run in UTF-8. */
XTTML_API size_t x_ttml_run_get_text(const DisplayItem *item, uint32_t run, char *buffer, size_t room);

/** 1 for a line break, whose text is a line feed, else 0. */
XTTML_API int x_ttml_run_is_line_break(const DisplayItem *item, uint32_t run);

/** 1 when the run has a styling of its own, 0 when it is shown with the item's. */
XTTML_API int x_ttml_run_has_own_styling(const DisplayItem *item, uint32_t run);
/** @} */

/** @name Styling
 * @{ */
/** Where the lines stand in their area (TTML 1.0, 8.2.6). */
enum { X_TTML_DISPLAY_ALIGN_BEFORE = 0, X_TTML_DISPLAY_ALIGN_CENTER = 1, X_TTML_DISPLAY_ALIGN_AFTER = 2 };

/** How lines are aligned (TTML 1.0, 8.2.18). */
enum {
    X_TTML_TEXT_ALIGN_LEFT = 0,
    X_TTML_TEXT_ALIGN_CENTER = 1,
    X_TTML_TEXT_ALIGN_RIGHT = 2,
    X_TTML_TEXT_ALIGN_START = 3,
    X_TTML_TEXT_ALIGN_END = 4
};

/** How text is decorated (TTML 1.0, 8.2.19). */
enum {
    X_TTML_TEXT_DECORATION_NONE = 0,
    X_TTML_TEXT_DECORATION_UNDERLINE = 1,
    X_TTML_TEXT_DECORATION_NO_UNDERLINE = 2,
    X_TTML_TEXT_DECORATION_LINE_THROUGH = 3,
    X_TTML_TEXT_DECORATION_NO_LINE_THROUGH = 4,
    X_TTML_TEXT_DECORATION_OVERLINE = 5,
    X_TTML_TEXT_DECORATION_NO_OVERLINE = 6
};

/** Bits of x_ttml_styling.given: what the style element of a style's record gave itself. A record that is not
 * a style's, nor a copy of one, has none of them. */
enum {
    X_TTML_GIVEN_COLOR = 1,
    X_TTML_GIVEN_FONT_SIZE = 2,
    X_TTML_GIVEN_FONT_WEIGHT = 4,
    X_TTML_GIVEN_FONT_STYLE = 8,
    X_TTML_GIVEN_LINE_HEIGHT = 16,
    X_TTML_GIVEN_TEXT_ALIGN = 32,
    X_TTML_GIVEN_TEXT_DECORATION = 64,
    X_TTML_GIVEN_VISIBILITY = 128,
    X_TTML_GIVEN_DISPLAY_ALIGN = 256
};

/** A colour in numbers of 0 to 255. */
typedef struct x_ttml_color {
    uint8_t red;   /**< 0 to 255 */
    uint8_t green; /**< 0 to 255 */
    uint8_t blue;  /**< 0 to 255 */
    uint8_t alpha; /**< 0: transparent, 255: opaque */
} x_ttml_color;

/** A styling record. It grows at its end: a program says in `size` how much of it it knows, and the library
 * fills that much. (A size field and not a function for each value: one call reads a record, and a language
 * that calls C describes one structure instead of twenty functions.) */
typedef struct x_ttml_styling {
    uint32_t size;                     /**< sizeof(x_ttml_styling), set by the program before the call */
    uint32_t given;                    /**< bits X_TTML_GIVEN_... */
    const char *color_text;            /**< tts:color as written; never null */
    const char *background_color_text; /**< tts:backgroundColor as written; never null */
    x_ttml_color color;                /**< the same; opaque white for what is no colour */
    x_ttml_color background_color;     /**< the same; opaque white for what is no colour */
    int32_t display_align;             /**< X_TTML_DISPLAY_ALIGN_... */
    int32_t text_align;                /**< X_TTML_TEXT_ALIGN_... */
    int32_t text_decoration;           /**< X_TTML_TEXT_DECORATION_... */
    int32_t is_italic;                 /**< 1: italic, else 0 */
    int32_t is_bold;                   /**< 1: bold, else 0 */
    int32_t is_hidden;                 /**< 1: takes its room but is not seen, else 0 */
    uint32_t font_size;                /**< px; 0: not known */
    uint32_t line_height;              /**< px; 0: not known */
    uint32_t origin_x;                 /**< left edge of the area, px from the root's */
    uint32_t origin_y;                 /**< top edge of the area, px from the root's */
    uint32_t extent_width;             /**< width of the area, px */
    uint32_t extent_height;            /**< height of the area, px */
} x_ttml_styling;

/** The styling of an item, resolved.
 * @param styling its `size` is set; what follows is filled in, and what the library does not know is 0
 * @return 1 when the record is filled in, else 0 */
XTTML_API int x_ttml_item_get_styling(const DisplayItem *item, x_ttml_styling *styling);

/** The record of the region that the item's paragraph names, as the document declares it.
 * @param styling as for x_ttml_item_get_styling()
 * @return 1 when the record is filled in; 0 when the item names none or an unknown one */
XTTML_API int x_ttml_item_get_region_styling(const DisplayItem *item, x_ttml_styling *styling);

/** The record of the style that the item's paragraph names, as the document declares it.
 * @param styling as for x_ttml_item_get_styling()
 * @return as x_ttml_item_get_region_styling() */
XTTML_API int x_ttml_item_get_style_styling(const DisplayItem *item, x_ttml_styling *styling);

/** The styling that a run is shown with: its own, else the item's.
 * @param styling as for x_ttml_item_get_styling()
 * @return 1 when the record is filled in, else 0 */
XTTML_API int x_ttml_run_get_styling(const DisplayItem *item, uint32_t run, x_ttml_styling *styling);
/** @} */

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
