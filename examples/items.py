#!/usr/bin/env python3
"""Lists the items of a document through libxttml's C interface, with nothing but ctypes.

    items.py [--library libxttml.so.1] DOCUMENT [BLOCK-OF-PNG-FILES]

One JSON object a line: begin and end in ms, place, colours, text or size of the picture.
"""

import argparse
import ctypes
import json
import pathlib
import sys
from ctypes import POINTER, byref, c_char_p, c_int, c_int32, c_size_t, c_uint8, c_uint32, c_void_p


class Color(ctypes.Structure):
    _fields_ = [(name, c_uint8) for name in ("red", "green", "blue", "alpha")]

    def numbers(self):
        return [getattr(self, name) for name, _ in self._fields_]


class Styling(ctypes.Structure):
    _fields_ = [("size", c_uint32), ("given", c_uint32),
                ("color_text", c_char_p), ("background_color_text", c_char_p),
                ("color", Color), ("background_color", Color),
                *((name, c_int32) for name in ("display_align", "text_align", "text_decoration", "is_italic",
                                               "is_bold", "is_hidden")),
                *((name, c_uint32) for name in ("font_size", "line_height", "origin_x", "origin_y",
                                                "extent_width", "extent_height"))]


# What is called here: name -> (result, arguments). ctypes takes anything else for an int.
FUNCTIONS = {
    "x_ttml_try_init": (c_int, []),
    "x_ttml_uninit_xerces": (None, []),
    "x_ttml_drop_lines": (None, []),
    "x_ttml_try_create_parser": (c_int, [POINTER(c_void_p)]),
    "x_ttml_delete_parser": (c_int, [c_void_p]),
    "x_ttml_set_untrusted": (None, [c_void_p, c_int]),
    "x_ttml_try_load_from_data": (c_int, [c_void_p, c_char_p, c_uint32]),
    "x_ttml_try_set_image_data": (c_int, [c_void_p, c_char_p, c_int32]),
    "x_ttml_try_generate_text": (c_int, [c_void_p, c_int32]),
    "x_ttml_try_generate_images": (c_int, [c_void_p, c_int32]),
    "x_ttml_get_reason": (c_char_p, [c_void_p]),
    "x_ttml_destory_doc": (None, [c_void_p]),
    "x_ttml_get_item_count": (c_uint32, [c_void_p]),
    "x_ttml_get_item": (c_void_p, [c_void_p, c_uint32]),
    "x_ttml_item_get_kind": (c_int, [c_void_p]),
    "x_ttml_item_get_begin": (c_int32, [c_void_p]),
    "x_ttml_item_get_end": (c_int32, [c_void_p]),
    "x_ttml_item_is_forced": (c_int, [c_void_p]),
    "x_ttml_item_get_run_count": (c_uint32, [c_void_p]),
    "x_ttml_run_get_text": (c_size_t, [c_void_p, c_uint32, c_char_p, c_size_t]),
    "x_ttml_item_get_image": (c_void_p, [c_void_p, POINTER(c_uint32)]),
    "x_ttml_item_get_styling": (c_int, [c_void_p, POINTER(Styling)]),
}
IMAGE_ITEM = 2


def open_library(name):
    library = ctypes.CDLL(name)
    for function, (result, arguments) in FUNCTIONS.items():
        getattr(library, function).restype = result
        getattr(library, function).argtypes = arguments
    return library


def text_of(library, item, run):
    buffer = ctypes.create_string_buffer(library.x_ttml_run_get_text(item, run, None, 0) + 1)
    library.x_ttml_run_get_text(item, run, buffer, len(buffer))
    return buffer.value.decode()


def describe(library, item):
    styling = Styling(size=ctypes.sizeof(Styling))
    library.x_ttml_item_get_styling(item, byref(styling))
    described = {
        "begin": library.x_ttml_item_get_begin(item),
        "end": library.x_ttml_item_get_end(item),
        "forced": bool(library.x_ttml_item_is_forced(item)),
        "box": [styling.origin_x, styling.origin_y, styling.extent_width, styling.extent_height],
        "color": styling.color.numbers(),
        "backgroundColor": styling.background_color.numbers(),
    }
    if library.x_ttml_item_get_kind(item) == IMAGE_ITEM:
        size = c_uint32()
        library.x_ttml_item_get_image(item, byref(size))
        return {**described, "bytes": size.value}
    runs = range(library.x_ttml_item_get_run_count(item))
    return {**described, "text": "".join(text_of(library, item, run) for run in runs)}


def prepare(library, parser, document, block):
    """Makes the items; the status of what went wrong, else 0."""
    status = library.x_ttml_try_set_image_data(parser, block, len(block)) if block else 0
    status = status or library.x_ttml_try_load_from_data(parser, document, len(document))
    generate = library.x_ttml_try_generate_images if block else library.x_ttml_try_generate_text
    return status or generate(parser, 0)


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    arguments.add_argument("--library", dest="name", default="libxttml.so.1", help="the shared library")
    arguments.add_argument("document", type=pathlib.Path)
    arguments.add_argument("block", nargs="?", type=pathlib.Path)
    given = arguments.parse_args()

    library = open_library(given.name)
    library.x_ttml_drop_lines()
    library.x_ttml_try_init()
    parser = c_void_p()
    library.x_ttml_try_create_parser(byref(parser))
    library.x_ttml_set_untrusted(parser, 1)
    status = prepare(library, parser, given.document.read_bytes(), given.block.read_bytes() if given.block else b"")
    if status:
        print(f"{given.document}:{library.x_ttml_get_reason(parser).decode()}", file=sys.stderr)
    for number in range(library.x_ttml_get_item_count(parser)):
        print(json.dumps(describe(library, library.x_ttml_get_item(parser, number)), ensure_ascii=False))
    library.x_ttml_destory_doc(parser)
    library.x_ttml_delete_parser(parser)
    library.x_ttml_uninit_xerces()
    return 1 if status else 0


if __name__ == "__main__":
    sys.exit(main())
