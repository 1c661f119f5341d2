#include "api/x_ttml.h"

#include "parser/ttml_parser.h"

#include <algorithm>
#include <new>

#include <xercesc/util/OutOfMemoryException.hpp>

namespace {

TtmlParser* prGetParser(x_ttml_handle handle) {
    return static_cast<TtmlParser*>(handle);
}

int iLoadStatus(bool fgLoaded) {
    return fgLoaded ? X_TTML_OK : X_TTML_UNUSABLE;
}

/// Below this interface lack of memory is what the XML library throws, which is no std::exception.
bool fgLoadFromFile(TtmlParser& parser, const char* path) {
    try {
        return parser.fgLoadDocument(path);
    } catch (const xercesc::OutOfMemoryException&) {
        throw std::bad_alloc();
    }
}

} // namespace

int x_ttml_create_new_parser(x_ttml_handle* handle) {
    *handle = nullptr;
    *handle = std::make_unique<TtmlParser>().release();
    return *handle ? X_TTML_OK : X_TTML_NULL_HANDLE;
}

int x_ttml_delete_parser(x_ttml_handle handle) {
    if (!handle)
        return X_TTML_NULL_HANDLE;
    delete prGetParser(handle);
    return X_TTML_OK;
}

int x_ttml_load_subtitle_from_file(x_ttml_handle handle, const char* path) {
    if (!handle)
        return X_TTML_NULL_HANDLE;
    return iLoadStatus(fgLoadFromFile(*prGetParser(handle), path));
}

int x_ttml_load_subtitle_from_data(x_ttml_handle handle, const void* data, uint32_t size) {
    if (!handle)
        return X_TTML_NULL_HANDLE;
    return iLoadStatus(prGetParser(handle)->fgLoadDocument(data, size));
}

void x_ttml_generate_text_display_item_sequence(x_ttml_handle handle, int32_t offset) {
    if (handle)
        prGetParser(handle)->vGenerateTextDisplaySequence(offset);
}

void x_ttml_generate_image_display_item_sequence(x_ttml_handle handle, int32_t offset) {
    if (handle)
        prGetParser(handle)->vGenerateImageDisplaySequence(offset);
}

DisplayItem* x_ttml_get_display_item_by_time(x_ttml_handle handle, uint32_t time) {
    return handle ? prGetParser(handle)->rGetDisplayItemByTime(time) : nullptr;
}

void x_ttml_get_display_item_array_by_time(x_ttml_handle handle, DisplayItem** items, uint32_t time) {
    if (!handle)
        std::fill_n(items, X_TTML_DISPLAY_ITEM_SLOTS, nullptr);
    else
        prGetParser(handle)->vGetDisplayItemArrayByTime(items, time);
}

DisplayItem* x_ttml_combine_same_time_item(x_ttml_handle handle) {
    return handle ? prGetParser(handle)->rCombineSameTimeItem() : nullptr;
}

void x_ttml_get_document_time(x_ttml_handle handle, int32_t* start, int32_t* end) {
    *start = -1;
    *end = -1;
    if (!handle)
        return;
    *start = prGetParser(handle)->iGetDocumentStartTime();
    *end = prGetParser(handle)->iGetDocumentEndTime();
}

void x_ttml_get_tt_extent(x_ttml_handle handle, int32_t* width, int32_t* height) {
    *width = 0;
    *height = 0;
    if (!handle)
        return;
    *width = prGetParser(handle)->iGetExtentWidth();
    *height = prGetParser(handle)->iGetExtentHeight();
}

void x_ttml_set_document_buffer_info(x_ttml_handle handle, const char* buffer, int32_t size) {
    if (handle)
        prGetParser(handle)->vSetDocumentBuffer(buffer, size);
}

int x_ttml_get_subtitle_type(x_ttml_handle handle) {
    return handle ? prGetParser(handle)->iGetSubtitleType() : 0;
}

void x_ttml_set_subtitle_type(x_ttml_handle handle, int type) {
    if (handle)
        prGetParser(handle)->vSetSubtitleType(type);
}

void x_ttml_destory_doc(x_ttml_handle handle) {
    if (handle)
        prGetParser(handle)->vCloseDocument();
}

void x_ttml_init_xerces(void) {
    TtmlParser::vXercesInit();
}

void x_ttml_uninit_xerces(void) {
    TtmlParser::vXercesTerminate();
}
