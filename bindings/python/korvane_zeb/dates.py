"""Dates of the Gregorian calendar. Instants are seconds since 1970-01-01 00:00; no time zone is applied."""

import ctypes

import numpy

from .runtime import function


class _Date(ctypes.Structure):
    _fields_ = [("year", ctypes.c_int32), ("month", ctypes.c_int32), ("day", ctypes.c_int32)]


_to_day = function("ZC_map_civil_date_to_julian_day", ctypes.c_int64, _Date)
_to_date = function("ZC_map_julian_day_to_civil_date", _Date, ctypes.c_int64)
_add_months = function("ZC_add_months_clamped", _Date, _Date, ctypes.c_int32)
_write_iso = function("ZC_format_iso8601_from_seconds", ctypes.c_void_p, ctypes.c_char_p, ctypes.c_double)
_write_pretty = function("ZC_pretty_format_gregorian_date_from_seconds", ctypes.c_void_p, ctypes.c_char_p,
                         ctypes.c_double)
_read_iso = function("ZC_assign_seconds_from_iso8601_char_c_array", ctypes.c_uint32, ctypes.c_char_p,
                     ctypes.c_uint32, ctypes.POINTER(ctypes.c_double))
_read_pretty = function("ZC_assign_seconds_from_gregorian_date_char_c_array", ctypes.c_uint32, ctypes.c_char_p,
                        ctypes.c_uint32, ctypes.POINTER(ctypes.c_double))


def julian_day(year, month, day):
    """Returns the Julian day number of a date; 0 is a year like any other, and days outside the month count
    on."""
    return _to_day(_Date(year, month, day))


def date_of_julian_day(day_number):
    """Returns year, month and day."""
    date = _to_date(day_number)
    return date.year, date.month, date.day


def add_months(year, month, day, months):
    """Returns the date so many months later; a day that its month does not have becomes its last."""
    date = _add_months(_Date(year, month, day), months)
    return date.year, date.month, date.day


def _written(writer, instant):
    buffer = ctypes.create_string_buffer(64)
    writer(buffer, instant)
    if not buffer.value:
        raise ValueError(f"{instant} is no date")
    return buffer.value.decode()


def _read(reader, text):
    characters, instant = text.encode(), ctypes.c_double()
    if not characters or reader(characters, len(characters), ctypes.byref(instant)) != len(characters):
        raise ValueError(f"{text!r} is no date")
    return instant.value


def iso_text(instant):
    """Returns "2021-03-04T10:20:30.5"."""
    return _written(_write_iso, instant)


def instant_of_iso_text(text):
    return _read(_read_iso, text)


def text(instant):
    """Returns "3/4/2021 10:20:30.5"."""
    return _written(_write_pretty, instant)


def instant_of_text(text):
    return _read(_read_pretty, text)


def datetimes(instants):
    """Returns instants as numpy's dates, to the microsecond."""
    return numpy.round(numpy.asarray(instants, float) * 1e6).astype("datetime64[us]")
