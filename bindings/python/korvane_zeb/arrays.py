"""Arrays of numbers, seen by numpy without a copy."""

import ctypes
import weakref

import numpy

from .runtime import Object


class Number_Array(Object):
    """A growable array of one type of numbers. `numpy()` is a view of its storage; while such a view is alive
    the array does not grow, because its storage would move."""

    word = element = dtype = None

    def __init__(self, values=()):
        super().__init__()
        self._views, self._source = [], None
        self.extend(values)

    @classmethod
    def link(cls, values):
        """Returns an array that is a link onto the memory of a numpy array, which it keeps alive: both see
        what either stores. The values must be contiguous, writable, and of the array's type."""
        values = numpy.asarray(values)
        if values.dtype != cls.dtype or not values.flags.c_contiguous or not values.flags.writeable:
            raise TypeError(f"a contiguous, writable array of {numpy.dtype(cls.dtype)} is needed")
        made = cls.__new__(cls)
        Object.__init__(made, f"init_as_link_to_{cls.word}s:count:", ctypes.c_void_p(values.ctypes.data),
                        ctypes.c_uint32(_count_of(values)))
        made._views, made._source = [], values
        return made

    def numpy(self):
        """Returns a view of the elements. It keeps the array alive."""
        count, data = len(self), self.send(f"{self.word}_data", returns=ctypes.c_void_p)
        if count == 0:
            return numpy.empty(0, self.dtype)
        storage = (self.element * count).from_address(data)
        storage.array = self
        self._views = [view for view in self._views if view() is not None] + [weakref.ref(storage)]
        return numpy.frombuffer(storage, self.dtype)

    def __len__(self):
        return self.send("count", returns=ctypes.c_uint32)

    def __getitem__(self, index):
        return self.numpy()[index]

    def __setitem__(self, index, value):
        self.numpy()[index] = value

    def append(self, value):
        self.extend([value])

    def extend(self, values):
        """Appends numbers, which must fit: nothing is cut or rounded in silence."""
        given = numpy.asarray(values)
        numbers = numpy.ascontiguousarray(given, self.dtype)
        if numbers.ndim != 1 or not (numbers == given).all() and not numpy.issubdtype(self.dtype, numpy.floating):
            raise ValueError(f"numbers of {numpy.dtype(self.dtype)} in one dimension are needed")
        if numbers.size == 0:
            return
        if any(view() is not None for view in self._views):
            raise BufferError("an array that numpy views cannot grow")
        before = len(self)
        self.send(f"append_{self.word}s:count:", ctypes.c_void_p(numbers.ctypes.data),
                  ctypes.c_uint32(_count_of(numbers)))
        if len(self) != before + numbers.size:
            raise BufferError("a link cannot grow") if self._source is not None else MemoryError()

    def sort(self):
        """Sorts in ascending order."""
        self.send("sort")


def _count_of(values):
    if values.size >= 2**32 - 1:
        raise OverflowError("an array has less than 2**32 - 1 elements")
    return values.size


def _family(name, word, element):
    return type(f"{name}_Array", (Number_Array,),
                {"__doc__": f"A growable array of {element.__name__[2:]}.", "class_name": f"ZEB_{name}_Array",
                 "word": word, "element": element, "dtype": numpy.dtype(element)})


Byte_Array = _family("Byte", "byte", ctypes.c_uint8)
Double_Array = _family("Double", "double", ctypes.c_double)
Float_Array = _family("Float", "float", ctypes.c_float)
Int_Array = _family("Int", "int", ctypes.c_int32)
UInt_Array = _family("UInt", "uint", ctypes.c_uint32)
Int64_Array = _family("Int64", "int64", ctypes.c_int64)
