"""Korvane_ZEB for Python: arrays that numpy sees without a copy, files, dates and units.

The library is found by KORVANE_ZEB_LIBRARY, the path of the file, or where the system looks for libraries."""

from . import arrow, dates, units
from .arrays import (Byte_Array, Double_Array, Float_Array, Int64_Array, Int_Array, Number_Array,
                     UInt_Array)
from .files import File, Records, load_document, save_document, write_records

__all__ = ["Byte_Array", "Double_Array", "File", "Float_Array", "Int64_Array", "Int_Array", "Number_Array", "Records",
           "UInt_Array", "arrow", "dates", "load_document", "save_document", "units", "write_records"]
