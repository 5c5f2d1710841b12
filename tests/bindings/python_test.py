"""The Python package over the library that was built."""

import ctypes
import gc
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

import numpy

root, store_program = pathlib.Path(sys.argv[1]), sys.argv[2]
sys.path.insert(0, str(root / "bindings/python"))
import korvane_zeb as zeb  # noqa: E402
from korvane_zeb.runtime import class_named, send  # noqa: E402

FAMILIES = (zeb.Byte_Array, zeb.Double_Array, zeb.Float_Array, zeb.Int_Array, zeb.UInt_Array, zeb.Int64_Array)


def in_folder(test):
    def run(self):
        with tempfile.TemporaryDirectory() as folder:
            test(self, pathlib.Path(folder))
    return run


class Arrays(unittest.TestCase):
    def test_views_share_the_storage(self):
        for family in FAMILIES:
            array = family([3, 1, 2])
            view = array.numpy()
            self.assertEqual(view.dtype, family.dtype)
            array.sort()
            self.assertEqual(view.tolist(), [1, 2, 3])
            view[0] = 7
            self.assertEqual(array[0], 7)
            with self.assertRaises(BufferError):
                array.append(4)
            del view
            array.extend(range(100))
            self.assertEqual((len(array), array[-1]), (103, 99))
            self.assertEqual(family().numpy().size, 0)

    def test_a_view_keeps_its_array_alive(self):
        view = zeb.Double_Array(numpy.arange(100000.0)).numpy()[5:]
        gc.collect()
        self.assertEqual((view == numpy.arange(5, 100000)).all(), True)

    def test_links_see_numpys_memory(self):
        values = numpy.array([3.0, 1, 2])
        link = zeb.Double_Array.link(values)
        link.sort()
        self.assertEqual(values.tolist(), [1, 2, 3])
        with self.assertRaises(BufferError):
            link.append(1)
        for unfit in (values[::2], numpy.zeros(3, numpy.float32), b"12345678", numpy.broadcast_to(1.0, 3)):
            with self.assertRaises(TypeError):
                zeb.Double_Array.link(unfit)

    def test_numbers_that_do_not_fit_are_refused(self):
        for family, values in ((zeb.Byte_Array, [256]), (zeb.Int_Array, [1.5]), (zeb.Int_Array, [[1], [2]]),
                               (zeb.UInt_Array, [-1])):
            array = family([1])
            with self.assertRaises((ValueError, OverflowError)):
                array.extend(values)
            self.assertEqual(len(array), 1)

    def test_objects_are_released(self):
        array = zeb.Int_Array([1])
        send(array.pointer, "retain", returns=ctypes.c_void_p)
        pointer = array.pointer
        del array
        self.assertEqual(send(pointer, "retainCount", returns=ctypes.c_ulong), 1)
        send(pointer, "release")


class Files(unittest.TestCase):
    @in_folder
    def test_a_store_is_read_as_its_csv(self, folder):
        csv = root / "examples/data/sunspots-monthly.csv"
        subprocess.run([store_program, csv, folder / "store"], check=True, capture_output=True)
        records = zeb.Records(folder / "store")
        instants, values = records.read(zeb.Double_Array), records.read(zeb.Double_Array)
        rows = [line.split(",") for line in csv.read_text().splitlines()[1:]]
        self.assertEqual(values.numpy().tolist(), [float(value) for _, value in rows])
        self.assertEqual([zeb.dates.text(instant) for instant in instants], [date for date, _ in rows])
        with self.assertRaises(EOFError):
            records.read(zeb.Double_Array)

    @in_folder
    def test_records_come_back(self, folder):
        arrays = [family([1, 2, 3]) for family in FAMILIES]
        zeb.write_records(folder / "records", *arrays)
        records = zeb.Records(folder / "records")
        for array in arrays:
            self.assertEqual(records.read(type(array)).numpy().tolist(), array.numpy().tolist())
        plain = zeb.File(folder / "records", compressed=True).read().numpy().tobytes()
        (folder / "cut").write_bytes(plain[:-1])
        records = zeb.Records(folder / "cut", compressed=False)
        with self.assertRaises(ValueError):
            for array in arrays:
                records.read(type(array))
        (folder / "other").write_bytes(b"x" * 99)
        with self.assertRaises(ValueError):
            zeb.Records(folder / "other", compressed=False)
        for path, size in ((folder / "none", 0), (folder, 0), (folder / "cut", 10)):
            with self.assertRaises(OSError):
                zeb.Records(path, compressed=False, greatest_size=size)

    @in_folder
    def test_documents_come_back_or_are_refused(self, folder):
        texts, path = ["", "a", "\u20ac \U0001f600", "\0"], folder / os.fsdecode(b"name \xff")
        zeb.save_document(path, texts)
        self.assertEqual(zeb.load_document(path), texts)
        contents = bytearray(path.read_bytes())
        contents[70] ^= 1
        path.write_bytes(contents)
        with self.assertRaises(OSError):
            zeb.load_document(path)
        with self.assertRaises(OSError):
            zeb.save_document(folder / "none/document", texts)


class Dates_And_Units(unittest.TestCase):
    def test_dates(self):
        self.assertEqual(zeb.dates.julian_day(1970, 1, 1), 2440588)
        self.assertEqual(zeb.dates.date_of_julian_day(-1), (-4713, 11, 23))
        self.assertEqual(zeb.dates.add_months(2024, 1, 31, 1), (2024, 2, 29))
        instant = zeb.dates.instant_of_iso_text("2021-03-04T10:20:30.5")
        self.assertEqual(zeb.dates.instant_of_text(zeb.dates.text(instant)), instant)
        self.assertEqual(str(zeb.dates.datetimes([instant])[0])[:21], zeb.dates.iso_text(instant))
        for read in (zeb.dates.instant_of_iso_text, zeb.dates.instant_of_text):
            for text in ("", "x", "2021-03-04x", "3/4/2021x"):
                self.assertRaises(ValueError, read, text)
        self.assertRaises(ValueError, zeb.dates.iso_text, float("nan"))

    def test_units(self):
        inch, meter, second = (zeb.units.find_unit(name) for name in ("inches", "m", "second"))
        self.assertEqual((inch.name, inch.plural_name, inch.abbreviation, inch.symbol),
                         ("inch", "inches", "in", "\u2033"))
        values = numpy.array([[1.0, 100], [0, -1]])
        self.assertIs(zeb.units.convert(values, inch, meter), values)
        self.assertEqual(values.tolist(), [[0.0254, 2.54], [0, -0.0254]])
        self.assertEqual(zeb.units.convert(2, inch, meter), 0.0508)
        self.assertEqual(zeb.units.convert([1, 2], inch, meter).tolist(), [0.0254, 0.0508])
        self.assertRaises(ValueError, zeb.units.convert, 1, inch, second)
        self.assertRaises(LookupError, zeb.units.find_unit, "furlong")
        self.assertRaises(LookupError, zeb.units.Unit, "length", 999)
        self.assertRaises(LookupError, class_named, "ZEB_None")


unittest.main(argv=sys.argv[:1] + sys.argv[3:])
