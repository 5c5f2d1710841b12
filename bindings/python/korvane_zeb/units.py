"""Units of measure: their names, and values of one unit in another."""

import ctypes

import numpy

from .arrays import Double_Array
from .runtime import Object, class_named, send
from .strings import text_of_wide

DIMENSIONS = {"length": 1, "weight": 2, "temperature": 3, "time": 4, "electrical potential": 31, "currency": 101,
              "angle": 201, "uno": 1001, "byte": 1002, "histogram": 9002, "categorical": 9003, "page layout": 10001}
_END_OF_CODES = 1000


class _Catalog(Object):
    class_name = "ZEB_Unit_Catalog"


class _Text(Object):
    class_name = "ZEB_Wide_String"


_catalog = _Catalog()


class Unit:
    """A unit of a dimension, by its code there."""

    def __init__(self, dimension, code):
        dimension = DIMENSIONS.get(dimension, dimension)
        self.identity = ctypes.c_uint64(code << 32 | dimension)
        if self._position() == 0xFFFFFFFF:
            raise LookupError(f"dimension {dimension} has no unit {code}")

    def _position(self):
        return send(class_named("ZEB_Unit_Catalog"), "position_of_unit:", self.identity, returns=ctypes.c_uint32)

    def _text(self, selector):
        found = _catalog.send(selector, self.identity, returns=ctypes.c_void_p)
        return text_of_wide(found) if found else None

    @property
    def name(self):
        return self._text("unit_singular_name:")

    @property
    def plural_name(self):
        return self._text("unit_plural_name:")

    @property
    def abbreviation(self):
        return self._text("unit_abbreviation:")

    @property
    def symbol(self):
        """The symbol; empty for a unit without one."""
        text = _Text()
        group = send(class_named("ZEB_Unit_Catalog"), "group_of_dimension:",
                     ctypes.c_uint32(self.identity.value & 0xFFFFFFFF), returns=ctypes.c_uint32)
        _catalog.send("append_unit_symbol:group:position:", ctypes.c_void_p(text.pointer), ctypes.c_uint32(group),
                      ctypes.c_uint32(self._position()), returns=ctypes.c_uint8)
        return text_of_wide(text.pointer)

    def __repr__(self):
        return f"<Unit {self.name}>"


def find_unit(name):
    """Returns the first unit with this name, plural or abbreviation."""
    for dimension in DIMENSIONS:
        for code in range(_END_OF_CODES):
            try:
                unit = Unit(dimension, code)
            except LookupError:
                continue
            if name in (unit.name, unit.plural_name, unit.abbreviation):
                return unit
    raise LookupError(f"there is no unit {name!r}")


def convert(values, source, target):
    """Returns a number, or the numbers of an array, in another unit; a contiguous numpy array of float64 is
    converted in place. Raises ValueError for units that do not convert."""
    numbers = numpy.asarray(values, float)
    in_place = numbers is values and numbers.flags.c_contiguous and numbers.flags.writeable
    numbers = numbers if in_place else numpy.array(numbers, order="C")
    link = Double_Array.link(numbers.reshape(-1))
    done = send(class_named("ZEB_Unit_Catalog"), "convert_values:from:to:", ctypes.c_void_p(link.pointer),
                source.identity, target.identity, returns=ctypes.c_uint8)
    if not done:
        raise ValueError(f"{source!r} does not convert to {target!r}")
    return float(numbers) if numbers.ndim == 0 else numbers
