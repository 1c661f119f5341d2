// The functions of x_ttml_items.h that work on a handle or on the whole library.
#include "api/x_ttml_items.h"

#include "parser/ttml_parser.h"
#include "runtime/progress_lines.h"
#include "runtime/utf8.h"

#include <cxxabi.h>

static_assert(
    int(FAILURE_NONE) == int(X_TTML_OK) && int(FAILURE_NO_ROOT_ELEMENT) == int(X_TTML_NO_ROOT_ELEMENT) &&
    int(FAILURE_UNREADABLE) == int(X_TTML_UNREADABLE) && int(FAILURE_MALFORMED) == int(X_TTML_MALFORMED) &&
    int(FAILURE_REFUSED) == int(X_TTML_REFUSED) && int(FAILURE_BAD_VALUE) == int(X_TTML_BAD_VALUE) &&
    int(FAILURE_NO_IMAGE_DATA) == int(X_TTML_NO_IMAGE_DATA) &&
    int(FAILURE_OUT_OF_MEMORY) == int(X_TTML_OUT_OF_MEMORY) && int(FAILURE_OTHER) == int(X_TTML_FAILED));

namespace {

TtmlParser* prGetParser(x_ttml_handle handle) {
    return static_cast<TtmlParser*>(handle);
}

template <class T>
void vStore(T* pTarget, T value) {
    if (pTarget)
        *pTarget = value;
}

// A thread that is being cancelled unwinds through here; that is no failure and must not be stopped.

/// Runs an operation that has no parser yet; only lack of memory is known to end it.
template <class Operation>
int iTry(Operation&& operation) {
    try {
        operation();
        return X_TTML_OK;
    } catch (const abi::__forced_unwind&) {
        throw;
    } catch (...) {
        return rDescribeException({}, nullptr).eKind;
    }
}

/// Runs an operation of a parser, which keeps what went wrong.
template <class Operation>
int iTry(x_ttml_handle handle, Operation&& operation) {
    if (!handle)
        return X_TTML_NULL_HANDLE;
    TtmlParser& parser = *prGetParser(handle);
    parser.vForgetFailure();
    try {
        operation(parser);
    } catch (const abi::__forced_unwind&) {
        throw;
    } catch (...) {
        parser.vRememberException();
    }
    return parser.rGetFailure().eKind;
}

void vRequireRoot(TtmlParser& parser) {
    if (!parser.fgHasRootElement())
        parser.vRememberFailure(FAILURE_NO_ROOT_ELEMENT, "no tt root element");
}

void vRequireImageData(TtmlParser& parser) {
    if (!parser.fgHoldsImageData())
        parser.vRememberFailure(FAILURE_NO_IMAGE_DATA, "no image data");
}

} // namespace

int x_ttml_try_init(void) {
    return iTry([] { x_ttml_init_xerces(); });
}

int x_ttml_try_create_parser(x_ttml_handle* handle) {
    return handle ? iTry([handle] { x_ttml_create_new_parser(handle); }) : X_TTML_NULL_HANDLE;
}

int x_ttml_try_load_from_file(x_ttml_handle handle, const char* path) {
    return iTry(handle, [path](TtmlParser& parser) {
        if (!parser.fgLoadDocument(path))
            vRequireRoot(parser);
    });
}

int x_ttml_try_load_from_data(x_ttml_handle handle, const void* data, uint32_t size) {
    return iTry(handle, [data, size](TtmlParser& parser) {
        if (!parser.fgLoadDocument(data, size) && parser.rGetFailure().eKind == FAILURE_NONE)
            vRequireRoot(parser);
    });
}

int x_ttml_try_set_image_data(x_ttml_handle handle, const char* buffer, int32_t size) {
    return iTry(handle, [buffer, size](TtmlParser& parser) {
        parser.vSetDocumentBuffer(buffer, size);
        vRequireImageData(parser);
    });
}

int x_ttml_try_generate_text(x_ttml_handle handle, int32_t offset) {
    return iTry(handle, [offset](TtmlParser& parser) {
        vRequireRoot(parser);
        parser.vGenerateTextDisplaySequence(offset);
    });
}

int x_ttml_try_generate_images(x_ttml_handle handle, int32_t offset) {
    return iTry(handle, [offset](TtmlParser& parser) {
        vRequireImageData(parser);
        vRequireRoot(parser);
        parser.vGenerateImageDisplaySequence(offset);
    });
}

const char* x_ttml_get_reason(x_ttml_handle handle) {
    return handle ? prGetParser(handle)->rGetFailure().strReason.c_str() : "";
}

int x_ttml_get_reason_position(x_ttml_handle handle, uint32_t* line, uint32_t* column) {
    static const Failure none;
    const Failure& failure = handle ? prGetParser(handle)->rGetFailure() : none;
    vStore(line, static_cast<uint32_t>(failure.uLine));
    vStore(column, static_cast<uint32_t>(failure.uColumn));
    return failure.uLine != 0;
}

const char* x_ttml_get_version(int* untrusted_by_default) {
    vStore(untrusted_by_default, int(LoadOptions::UNTRUSTED_BY_DEFAULT));
    return XTTML_VERSION;
}

void x_ttml_set_untrusted(x_ttml_handle handle, int untrusted) {
    if (handle)
        prGetParser(handle)->vSetUntrusted(untrusted != 0);
}

int x_ttml_get_untrusted(x_ttml_handle handle) {
    return handle && prGetParser(handle)->fgIsUntrusted();
}

void x_ttml_set_line_function(x_ttml_line_function line_function, void* context) {
    tessera::SetLineFunction(line_function, context);
}

void x_ttml_drop_lines(void) {
    tessera::SetLineFunction([](void*, const char*, size_t) {}, nullptr);
}

uint32_t x_ttml_get_item_count(x_ttml_handle handle) {
    return handle ? static_cast<uint32_t>(prGetParser(handle)->vecGetDisplaySequence().size()) : 0;
}

size_t x_ttml_get_language(x_ttml_handle handle, char* buffer, size_t room) {
    tessera::Utf8Writer writer(buffer, room);
    if (handle)
        writer.Append(prGetParser(handle)->strGetLanguage());
    return writer.Finish();
}

void* x_ttml_get_document(x_ttml_handle handle) {
    return handle ? prGetParser(handle)->rGetDocumentRoot().GetNode() : nullptr;
}

DisplayItem* x_ttml_get_item(x_ttml_handle handle, uint32_t index) {
    return index < x_ttml_get_item_count(handle) ? prGetParser(handle)->vecGetDisplaySequence()[index]
                                                 : nullptr;
}

uint32_t x_ttml_get_items_on_screen(x_ttml_handle handle, DisplayItem** items, uint32_t room, int32_t time) {
    return handle ? prGetParser(handle)->uGetDisplayItemsOnScreen(items, room, static_cast<uint32_t>(time))
                  : 0;
}

int64_t x_ttml_get_next_change(x_ttml_handle handle, int32_t time) {
    const std::optional<std::int32_t> iNext =
        handle ? prGetParser(handle)->rGetNextChange(time) : std::nullopt;
    return iNext ? *iNext : X_TTML_NEVER;
}
