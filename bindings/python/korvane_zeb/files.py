"""Files of the external binary format: records of numbers, and documents of strings."""

import ctypes
import errno
import os

from .arrays import Byte_Array
from .runtime import Object, Pool, function, send
from .strings import String, text_of_wide

_write_header = function("ZEB_write_binary_header", None, ctypes.c_void_p)
_read_header = function("ZEB_read_binary_header", None, ctypes.c_void_p, ctypes.c_void_p)
_load_document = function("ZC_load_checked_document", ctypes.c_uint32, ctypes.c_void_p, ctypes.c_void_p)
_save_document = function("ZC_save_checked_document", ctypes.c_uint32, ctypes.c_void_p, ctypes.c_void_p)
HEADER_SIZE = 64
MAGIC = b"ZEB_EXTERNAL_BINARY_FORMAT_V1000"


class File(Object):
    """A file entry."""

    class_name = "ZEB_File"

    def __init__(self, path, compressed=False, greatest_size=0):
        super().__init__()
        self.path, name = os.fspath(path), String(os.fsencode(path))
        self.send("set_report_errors:", ctypes.c_uint8(0))
        self.send("set_path:", ctypes.c_void_p(name.pointer))
        self.send("set_contents_compressed:", ctypes.c_uint8(compressed))
        if greatest_size:
            self.send("set_greatest_contents_size:", ctypes.c_uint32(greatest_size))

    def raise_failure(self, code=None):
        error = self.send("last_error", returns=ctypes.c_int32) or code
        if error:
            raise OSError(error, os.strerror(error), self.path)

    def read(self):
        """Returns the contents."""
        contents = Byte_Array()
        with Pool():
            self.send("refresh_status")
            self.raise_failure(None if self.send("exists", returns=ctypes.c_uint8) else errno.ENOENT)
            self.send("read_contents:", ctypes.c_void_p(contents.pointer))
            self.raise_failure()
        return contents

    def replace(self, contents):
        """Replaces the contents in one step: a failure leaves the old ones."""
        with Pool():
            done = self.send("replace_contents:length:", ctypes.c_char_p(contents), ctypes.c_uint32(len(contents)),
                             returns=ctypes.c_uint32)
            self.raise_failure(None if done else errno.EIO)


class Records:
    """The records of a file, such as a store of `series_store`: read them in the order in which they were
    written, each as an array of its type."""

    def __init__(self, path, compressed=True, greatest_size=0):
        self.contents = File(path, compressed, greatest_size).read()
        if self.contents.numpy()[:len(MAGIC)].tobytes() != MAGIC:
            raise ValueError(f"{path} is no file of the external binary format")
        needs_swap = ctypes.c_uint8()
        header = String(self.contents.numpy()[:HEADER_SIZE].tobytes())
        _read_header(header.pointer, ctypes.byref(needs_swap))
        self.needs_swap, self.at = needs_swap, HEADER_SIZE

    def read(self, array_class):
        """Returns the next record. Raises EOFError where none is left, ValueError where it is cut short."""
        rest = self.contents.numpy()[self.at:]
        if rest.size == 0:
            raise EOFError("no record is left")
        array, buffer = array_class(), String.link(rest)
        size = array.send("ZEB_decode_binary_contents:needs_swap:", ctypes.c_void_p(buffer.pointer), self.needs_swap,
                          returns=ctypes.c_uint32)
        if size == 0:
            raise ValueError("the record is cut short")
        self.at += size
        return array


def write_records(path, *arrays, compressed=True):
    """Replaces a file by the header and the record of each array."""
    buffer = String()
    _write_header(buffer.pointer)
    for array in arrays:
        array.send("ZEB_encode_binary_contents:", ctypes.c_void_p(buffer.pointer))
    File(path, compressed).replace(bytes(buffer))


class _Wide_Strings(Object):
    class_name = "ZEB_Wide_String_Array"


class _Wide_String(Object):
    class_name = "ZEB_Wide_String"


def save_document(path, texts):
    """Saves texts as a document with a check sum. Raises OSError where that fails."""
    table, wide, file = _Wide_Strings(), _Wide_String(), File(path)
    with Pool():
        for text in texts:
            units = [ord(character) for character in text]
            wide.send("set_wide_chars:count:", (ctypes.c_uint32 * len(units))(*units), ctypes.c_uint32(len(units)))
            table.send("append_wide_string:", ctypes.c_void_p(wide.pointer))
        if table.send("count", returns=ctypes.c_uint32) != len(texts):
            raise MemoryError()
        if not _save_document(table.pointer, file.pointer):
            file.raise_failure(errno.EIO)


def load_document(path, greatest_size=0):
    """Returns the texts of a document. Raises OSError where it cannot be read, is none, or is not whole by its
    check sum."""
    table, file = _Wide_Strings(), File(path, greatest_size=greatest_size)
    with Pool():
        if not _load_document(table.pointer, file.pointer):
            file.raise_failure(errno.EILSEQ)
        count = table.send("count", returns=ctypes.c_uint32)
        return [text_of_wide(table.send("wide_string_at_index:", ctypes.c_uint32(i), returns=ctypes.c_void_p))
                for i in range(count)]
