/* xttml: TTML subtitles for media players.
 *
 * A player makes a parser, loads one document into it, has it turn the document into a sequence of display
 * items and then asks, while it plays, what is on screen at a time. In C the items are opaque; in C++ this
 * header also brings the classes that a player reads.
 *
 * Conventions
 *
 *  1. Handles. A parser handle comes from x_ttml_create_new_parser() and ends with
 *     x_ttml_delete_parser(). Null is the only invalid handle that is recognised; every function says what
 *     it does with it.
 *  2. Errors. A load gives a status: X_TTML_OK, X_TTML_UNUSABLE or X_TTML_NULL_HANDLE. No function catches
 *     an exception. Only these let one pass on bad input, and a player that cannot receive C++ exceptions
 *     needs a guard around them: x_ttml_load_subtitle_from_file() for a file that cannot be read or is not
 *     well-formed XML; the two generators for attributes that do not convert. Out of memory ends in
 *     std::bad_alloc.
 *  3. Ownership. The parser owns its display items and its copy of the image data; both live until it is
 *     deleted. The caller keeps every buffer that it passes in. A loaded document is released by
 *     x_ttml_destory_doc() alone: call it before loading another one and before deleting the parser.
 *  4. Times are milliseconds of media time, sizes are pixels, buffer sizes are bytes.
 *  5. Output. The library writes progress and failure lines to standard output; the functions themselves
 *     print nothing.
 *  6. Threads. Nothing locks. A handle belongs to one thread at a time; different handles share only the
 *     XML library, whose initialisation and termination are process-wide.
 *
 * Order of calls
 *
 *     x_ttml_init_xerces
 *     x_ttml_create_new_parser
 *     [ x_ttml_set_document_buffer_info ]                  image subtitles only
 *     x_ttml_load_subtitle_from_data | _from_file
 *     x_ttml_generate_text_... | x_ttml_generate_image_display_item_sequence
 *     { x_ttml_get_display_item_by_time [ x_ttml_combine_same_time_item ]
 *       | x_ttml_get_display_item_array_by_time }           while playing
 *     x_ttml_destory_doc
 *     x_ttml_delete_parser
 *     x_ttml_uninit_xerces
 */
#ifndef XTTML_X_TTML_H
#define XTTML_X_TTML_H

#include "runtime/export.h"

#include <stdint.h>
#include <x_ttml_version.h>

#ifdef __cplusplus
#include "parser/display_item.h"
#include "runtime/exceptions.h"
#include "style/color.h"
#include "style/length.h"
#include "style/styling_attrib.h"

extern "C" {
#else
typedef struct DisplayItem DisplayItem;
#endif

/** The address of a parser; null is no parser. */
typedef void *x_ttml_handle;

/** What the functions with a status return. */
enum {
    X_TTML_NULL_HANDLE = -1, /**< the handle is null; for x_ttml_create_new_parser: no parser was made */
    X_TTML_OK = 0,
    X_TTML_UNUSABLE = 1 /**< no tt root element, or the bytes could not be parsed */
};

/** How many slots x_ttml_get_display_item_array_by_time() fills. */
enum { X_TTML_DISPLAY_ITEM_SLOTS = 4 };

/** Makes a parser.
 * @param handle where the handle is stored; must be valid. Null is stored when no parser was made.
 * @return X_TTML_OK, or X_TTML_NULL_HANDLE when no parser was made. Throws std::bad_alloc. */
XTTML_API int x_ttml_create_new_parser(x_ttml_handle *handle);

/** Deletes a parser with its items and its image data, not the document that it holds.
 * @return X_TTML_OK; X_TTML_NULL_HANDLE for a null handle */
XTTML_API int x_ttml_delete_parser(x_ttml_handle handle);

/** Loads a document from a file; initialises the XML library by itself.
 * @param path zero-terminated, in the process's local character set
 * @return X_TTML_OK; X_TTML_UNUSABLE when the document has no tt root element (it is held all the same);
 *         X_TTML_NULL_HANDLE for a null handle. Throws tessera::DataSourceUnavailableException when the
 *         file cannot be read or is not well-formed; the parser is then as it was. */
XTTML_API int x_ttml_load_subtitle_from_file(x_ttml_handle handle, const char *path);

/** Loads a document from memory; x_ttml_init_xerces() must have run.
 * @param data the bytes of the document, read during the call only
 * @param size their count
 * @return X_TTML_OK; X_TTML_UNUSABLE when the document has no tt root element (it is held all the same) or
 *         could not be parsed (the parser is then as it was); X_TTML_NULL_HANDLE for a null handle */
XTTML_API int x_ttml_load_subtitle_from_data(x_ttml_handle handle, const void *data, uint32_t size);

/** Appends one item for each paragraph of the document's first division to the display sequence.
 * @param offset ms added to every begin and end time
 * A null handle does nothing. Throws tessera::ConversionException for an attribute that does not convert
 * (forcedDisplayMode, ttp:frameRate); the items appended so far stay. */
XTTML_API void x_ttml_generate_text_display_item_sequence(x_ttml_handle handle, int32_t offset);

/** Appends one item for each division with an image to the display sequence; needs the image data.
 * @param offset ms added to every begin and end time
 * A null handle does nothing. Throws tessera::InvalidOperationException for a division without begin or end
 * and tessera::ConversionException for an attribute that does not convert; the items appended so far stay. */
XTTML_API void x_ttml_generate_image_display_item_sequence(x_ttml_handle handle, int32_t offset);

/** The item on screen at a time, else the next to come in sequence order.
 * @return the item, owned by the parser; null when there is none or for a null handle */
XTTML_API DisplayItem *x_ttml_get_display_item_by_time(x_ttml_handle handle, uint32_t time);

/** The item on screen at a time (or the next to come) and up to three items right after it in the sequence
 * that share its begin and end.
 * @param items room for X_TTML_DISPLAY_ITEM_SLOTS pointers, owned by the parser; unused slots are null, for
 *        a null handle all of them */
XTTML_API void x_ttml_get_display_item_array_by_time(x_ttml_handle handle, DisplayItem **items,
                                                     uint32_t time);

/** Merges the text of the items right after the last answer of x_ttml_get_display_item_by_time() that share
 * its times into that answer. A second call merges nothing again.
 * @return that item; null when nothing has been generated or for a null handle */
XTTML_API DisplayItem *x_ttml_combine_same_time_item(x_ttml_handle handle);

/** The earliest begin and the latest end of the generated items, in ms.
 * @param start, end where the times are stored; must be valid. Both are -1 for a null handle and before the
 *        first generation; an end of -1 also says that an item has no end, a start of -1 that none begins. */
XTTML_API void x_ttml_get_document_time(x_ttml_handle handle, int32_t *start, int32_t *end);

/** The size of the root container in px.
 * @param width, height where the size is stored; must be valid. Both are 0 for a null handle and before the
 *        first generation; 1024 and 768 for a document that gives no size in pixels. */
XTTML_API void x_ttml_get_tt_extent(x_ttml_handle handle, int32_t *width, int32_t *height);

/** Hands over the block of PNG files that belongs to image subtitles; the parser copies it.
 * @param buffer the files, one after the other
 * @param size their bytes; below 1 the copy held so far stays
 * A null handle does nothing. */
XTTML_API void x_ttml_set_document_buffer_info(x_ttml_handle handle, const char *buffer, int32_t size);

/** The player's own tag; 0 until it is set and for a null handle. */
XTTML_API int x_ttml_get_subtitle_type(x_ttml_handle handle);

/** Stores the player's own tag, which the library never interprets. A null handle does nothing. */
XTTML_API void x_ttml_set_subtitle_type(x_ttml_handle handle, int type);

/** Releases the loaded document; the items stay. A null handle does nothing. */
XTTML_API void x_ttml_destory_doc(x_ttml_handle handle);

/** Initialises the XML library, once in the process, before the first load from memory. */
XTTML_API void x_ttml_init_xerces(void);

/** Terminates the XML library after the last document has been released. Every initialisation, those of
 * loads from a file included, must be matched before the library really ends. */
XTTML_API void x_ttml_uninit_xerces(void);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
