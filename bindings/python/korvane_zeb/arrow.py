"""Arrays to and from other libraries of the process, through the Arrow C data interface: without a copy."""

import ctypes

import numpy

from .arrays import Byte_Array, Double_Array, Float_Array, Int64_Array, Int_Array, UInt_Array
from .runtime import Object, Pool, class_named, function, send
from .strings import String

_FORMATS = {"C": Byte_Array, "i": Int_Array, "I": UInt_Array, "l": Int64_Array, "f": Float_Array, "g": Double_Array}


class Schema_Struct(ctypes.Structure):
    """struct ArrowSchema."""


class Array_Struct(ctypes.Structure):
    """struct ArrowArray."""


def _end_of(struct):
    return [("dictionary", ctypes.POINTER(struct)), ("release", ctypes.CFUNCTYPE(None, ctypes.POINTER(struct))),
            ("private_data", ctypes.c_void_p)]


Schema_Struct._fields_ = [
    ("format", ctypes.c_char_p), ("name", ctypes.c_char_p), ("metadata", ctypes.c_char_p), ("flags", ctypes.c_int64),
    ("n_children", ctypes.c_int64), ("children", ctypes.POINTER(ctypes.POINTER(Schema_Struct))),
    *_end_of(Schema_Struct)]
Array_Struct._fields_ = [
    ("length", ctypes.c_int64), ("null_count", ctypes.c_int64), ("offset", ctypes.c_int64),
    ("n_buffers", ctypes.c_int64), ("n_children", ctypes.c_int64), ("buffers", ctypes.POINTER(ctypes.c_void_p)),
    ("children", ctypes.POINTER(ctypes.POINTER(Array_Struct))), *_end_of(Array_Struct)]

_export = function("ZC_export_arrow_table", ctypes.c_uint8, ctypes.c_void_p, ctypes.c_void_p,
                   ctypes.POINTER(Array_Struct), ctypes.POINTER(Schema_Struct))


class _Objects(Object):
    class_name = "ZEB_Object_Array"


class _Strings(Object):
    class_name = "ZEB_String_Array"


class Table:
    """Columns by name, in place, as the structs `array` and `schema`. A library that takes them over releases
    them; what nobody took is released with the table. While the table lives, its arrays do not grow."""

    def __init__(self, **columns):
        self.array, self.schema = Array_Struct(), Schema_Struct()
        self._views = [column.numpy() for column in columns.values()]
        objects, names = _Objects(), _Strings()
        for name, column in columns.items():
            objects.send("append_object:", ctypes.c_void_p(column.pointer))
            text = String(name)
            names.send("append_string:", ctypes.c_void_p(text.pointer))
        if not _export(objects.pointer, names.pointer, self.array, self.schema):
            raise ValueError("a table has columns of one length, whose names have no null inside")

    def __del__(self):
        for struct in (self.array, self.schema):
            if struct.release:
                struct.release(struct)


class Received(Object):
    """A table or an array that another library made, which is released with the object and what it showed. The
    structs are taken over."""

    class_name = "ZEB_Arrow_Array"

    def __init__(self, array, schema):
        made = send(class_named(self.class_name), "alloc", returns=ctypes.c_void_p)
        self.pointer = send(made, "init_with_arrow_array:schema:", ctypes.pointer(array), ctypes.pointer(schema),
                            returns=ctypes.c_void_p)
        if not self.pointer:
            raise ValueError("the structs hold no array")

    def __len__(self):
        return self.send("count", returns=ctypes.c_uint64)

    @property
    def name(self):
        return self.send("name", returns=ctypes.c_char_p).decode()

    def columns(self):
        """Returns the columns of a table by their names."""
        columns = {}
        with Pool():
            for index in range(self.send("column_count", returns=ctypes.c_uint32)):
                found = self.send("column_at_index:", ctypes.c_uint32(index), returns=ctypes.c_void_p)
                if not found:
                    raise ValueError(f"column {index} cannot be read")
                column = Received.__new__(Received)
                column.pointer = send(found, "retain", returns=ctypes.c_void_p)
                columns[column.name] = column
        return columns

    def numpy(self):
        """Returns a view of the elements, not to be written; a copy if some have no value and so are NaN."""
        family = _FORMATS.get(self.send("format", returns=ctypes.c_char_p).decode())
        if family is None:
            raise TypeError("the elements are no numbers of a type that arrays have")
        with Pool():
            link = self.send(f"link_to_{family.word}s", returns=ctypes.c_void_p)
            data = send(link, f"{family.word}_data", returns=ctypes.c_void_p) if link else None
        if not link:
            return self._copy(family)
        if len(self) == 0:
            return numpy.empty(0, family.dtype)
        storage = (family.element * len(self)).from_address(data)
        storage.keeper = self
        view = numpy.frombuffer(storage, family.dtype)
        view.flags.writeable = False
        return view

    def _copy(self, family):
        copied = family()
        if not self.send(f"get_{family.word}s:", ctypes.c_void_p(copied.pointer), returns=ctypes.c_uint8):
            raise ValueError("integers without a value, or no memory")
        return copied.numpy()
