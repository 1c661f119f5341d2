/* xttml: TTML subtitles for media players.
 *
 * A player makes a parser, loads one document into it, has it turn the document into a sequence of display
 * items and then asks, while it plays, what is on screen at a time. In C the items are opaque: x_ttml_items.h
 * reads them, and has calls that do not throw; in C++ this header also brings the classes that a player
 * reads.
 *
 * Conventions
 *
 *  1. Handles. A parser handle comes from x_ttml_create_new_parser() and ends with
 *     x_ttml_delete_parser(). Null is the only invalid handle that is recognised; every function says what
 *     it does with it.
 *  2. One document a handle. Items, styles and regions of a parser are only ever added to: a second document
 *     on the same handle comes after the items of the first, and of two styles or regions with one xml:id
 *     the earlier counts. Make a new parser for a new document.
 *  3. Errors. A load gives a status: X_TTML_OK, X_TTML_UNUSABLE or X_TTML_NULL_HANDLE.
 *     x_ttml_load_subtitle_from_data() catches whatever is thrown; the other functions catch nothing. On bad
 *     input only these throw: x_ttml_load_subtitle_from_file() for a file that cannot be read or is not
 *     well-formed XML; the two generators for an attribute that does not convert or is missing. A player
 *     that cannot receive C++ exceptions calls their namesakes in x_ttml_items.h.
 *  4. Memory. Lack of it ends in std::bad_alloc, but for the load from memory, which gives X_TTML_UNUSABLE; a
 *     file may then also count as one that cannot be read. While it is initialised, by x_ttml_init_xerces()
 *     or the first load from a file, the XML library may end the process instead; once an initialisation has
 *     thrown, the XML library is lost to the process: later ones throw as well, loads from memory fail.
 *     Queries by time, x_ttml_destory_doc() and x_ttml_delete_parser() need no memory.
 *  5. Ownership. The parser owns its display items and its copy of the image data; both live until it is
 *     deleted. The caller keeps every buffer that it passes in. A loaded document is released by
 *     x_ttml_destory_doc() alone: call it before loading again and before deleting the parser.
 *  6. Units. Times are milliseconds of media time, sizes are pixels, buffer sizes are bytes.
 *  7. Output. The library writes progress and failure lines to standard output while it initialises, loads,
 *     generates, releases and deletes: "load from file ok", the number of each font size and line height, the
 *     document's times and language. They quote the document, control characters included. This interface
 *     adds no line of its own; queries by time write none. x_ttml_set_line_function() takes them elsewhere.
 *  8. Threads. Nothing locks. A handle belongs to one thread at a time; different handles share only the XML
 *     library. x_ttml_init_xerces(), x_ttml_uninit_xerces() and x_ttml_load_subtitle_from_file() change its
 *     count of initialisations: call x_ttml_init_xerces() before other threads start, and none of the three
 *     in two threads at a time. Lines of two threads may alternate. A thread may be cancelled inside a load
 *     from memory or a generator, which then unwinds, but not elsewhere in the library: deleting a parser
 *     would end the process.
 *  9. Trust. Unless a parser distrusts its documents (x_ttml_set_untrusted(), or a library built with
 *     XTTML_UNTRUSTED_XML), a document may have a document type declaration: what that names is read, from
 *     files and from the network, and entities are expanded.
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
 * @return X_TTML_OK, or X_TTML_NULL_HANDLE when no parser was made */
XTTML_API int x_ttml_create_new_parser(x_ttml_handle *handle);

/** Deletes a parser with its items and its image data, not the document that it holds.
 * @return X_TTML_OK; X_TTML_NULL_HANDLE for a null handle */
XTTML_API int x_ttml_delete_parser(x_ttml_handle handle);

/** Loads a document from a file. Initialises the XML library once more, which counts and needs its
 * x_ttml_uninit_xerces() even when the load fails or throws.
 * @param path zero-terminated, in the process's local character set; a system identifier, so that an address
 *        (file:, http:) is fetched and its %20 is a space, while a plain path is taken as it is; null reads
 *        as empty, which is no file
 * @return X_TTML_OK; X_TTML_UNUSABLE when the document has no tt root element (it is held all the same);
 *         X_TTML_NULL_HANDLE for a null handle. Throws tessera::DataSourceUnavailableException when the
 *         file cannot be read or is not well-formed; the parser is then as it was. */
XTTML_API int x_ttml_load_subtitle_from_file(x_ttml_handle handle, const char *path);

/** Loads a document from memory; x_ttml_init_xerces() must have run. Throws nothing.
 * @param data the bytes of the document, read during the call only; null reads as no bytes
 * @param size their count
 * @return X_TTML_OK; X_TTML_UNUSABLE when the document has no tt root element (it is held all the same) or
 *         could not be parsed (the parser is then as it was); X_TTML_NULL_HANDLE for a null handle */
XTTML_API int x_ttml_load_subtitle_from_data(x_ttml_handle handle, const void *data, uint32_t size);

/** Appends one item for each paragraph of the document's first division to the display sequence.
 * @param offset ms added to every begin and end time, to the -1 of an unknown time as well
 * A null handle does nothing. Throws tessera::ConversionException for an attribute that does not convert
 * (forcedDisplayMode, ttp:frameRate); the items appended so far stay. */
XTTML_API void x_ttml_generate_text_display_item_sequence(x_ttml_handle handle, int32_t offset);

/** Appends one item for each division with an image to the display sequence. Without image data it does
 * nothing.
 * @param offset ms added to every begin and end time, to the -1 of an unknown time as well
 * A null handle does nothing. Throws tessera::InvalidOperationException for a division without begin or end
 * and tessera::ConversionException for an attribute that does not convert; the items appended so far stay. */
XTTML_API void x_ttml_generate_image_display_item_sequence(x_ttml_handle handle, int32_t offset);

/** The first item in sequence order that is on screen at a time, else the next to come: the first in sequence
 * order whose begin, as an unsigned number, is greater than the time. DisplayItem::fgCheckTimeInfo() tells
 * which of the two it is. An item that overlaps an earlier one is the answer only once that has gone.
 *
 * An item without a begin (-1) is on screen up to its end and after that counts as still to come, later than
 * any other time: it is an answer for ever, and stands before what comes next when it is first in sequence.
 * @param time ms; from 2^31 on it is compared with the spans of items as a negative number: on screen can
 *        then be only an item without a begin or one that an offset has moved below 0
 * @return the item, owned by the parser, on which x_ttml_combine_same_time_item() then works; null when there
 *         is none or for a null handle */
XTTML_API DisplayItem *x_ttml_get_display_item_by_time(x_ttml_handle handle, uint32_t time);

/** The same item and up to three right after it in the sequence that share its begin and end.
 * @param items room for X_TTML_DISPLAY_ITEM_SLOTS pointers, owned by the parser; unused slots are null, for
 *        a null handle all of them
 * @param time ms, as for x_ttml_get_display_item_by_time() */
XTTML_API void x_ttml_get_display_item_array_by_time(x_ttml_handle handle, DisplayItem **items,
                                                     uint32_t time);

/** Merges the items right after the last answer of x_ttml_get_display_item_by_time() that share its begin and
 * end into that answer: a U+000A and their vecContent each are appended to its vecContent, and fgCombined is
 * set, after which a further call merges nothing. The runs stay as they are, and generated content is nothing
 * but a U+000A for each br element directly in a paragraph: to merge the text that is seen, a player puts the
 * text of each item's runs into its vecContent first.
 * @return that item, also when nothing is merged, as for images; the first item after an answer of null and
 *         before any query; null when nothing has been generated or for a null handle */
XTTML_API DisplayItem *x_ttml_combine_same_time_item(x_ttml_handle handle);

/** The earliest begin and the latest end in ms: of the items of a text generation, or of all the parser's
 * items after an image generation. They are compared as unsigned numbers, by which -1 is the latest of all.
 * A generation without a body, a division or image data leaves them as they were; after one that threw they
 * mean nothing.
 * @param start where the begin is stored; must be valid. -1: no item, or none with a begin.
 * @param end where the end is stored; must be valid. -1: an item has no end; 0: no item. With an offset an
 *        item without an end ends at offset - 1 and no longer shows as -1, nor does one without a begin.
 * Both are -1 for a null handle and before the first generation. */
XTTML_API void x_ttml_get_document_time(x_ttml_handle handle, int32_t *start, int32_t *end);

/** The size of the root container in px. Both are 0 for a null handle and before the first generation, 1024
 * and 768 for a document that gives no size in pixels.
 * @param width where the width is stored; must be valid
 * @param height where the height is stored; must be valid */
XTTML_API void x_ttml_get_tt_extent(x_ttml_handle handle, int32_t *width, int32_t *height);

/** Hands over the block of PNG files that belongs to image subtitles; the parser copies it in place of the
 * copy held so far. Items that point into an earlier copy keep it.
 * @param buffer the files, one after the other, of which the first 30 can be shown; null leaves the copy
 * @param size their bytes; 0 and below leave the copy
 * The size is stored in any case, and the next generation takes the copy for that long, though never beyond
 * its end; for 0 and below the item of picture 1 has data and that size, all others have none. A null handle
 * does nothing. */
XTTML_API void x_ttml_set_document_buffer_info(x_ttml_handle handle, const char *buffer, int32_t size);

/** The player's own tag; 0 until it is set and for a null handle. */
XTTML_API int x_ttml_get_subtitle_type(x_ttml_handle handle);

/** Stores the player's own tag, which the library never interprets. A null handle does nothing. */
XTTML_API void x_ttml_set_subtitle_type(x_ttml_handle handle, int type);

/** Releases the loaded document; the items stay. A null handle does nothing. */
XTTML_API void x_ttml_destory_doc(x_ttml_handle handle);

/** Initialises the XML library, before the first load from memory and before other threads start. */
XTTML_API void x_ttml_init_xerces(void);

/** Terminates the XML library after the last document has been released. Every initialisation, those of
 * loads from a file included, must be matched before the library really ends. */
XTTML_API void x_ttml_uninit_xerces(void);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
