"""Arrays that go through the Arrow C data interface: there and back, and to a database engine that speaks it."""

import ctypes
import gc
import os
import pathlib
import subprocess
import sys
import unittest

import numpy

root, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
sys.path.insert(0, str(root / "bindings/python"))
import korvane_zeb as zeb  # noqa: E402
from korvane_zeb.arrow import Array_Struct, Received, Schema_Struct, Table  # noqa: E402

FAMILIES = (zeb.Byte_Array, zeb.Double_Array, zeb.Float_Array, zeb.Int_Array, zeb.UInt_Array, zeb.Int64_Array)


def references(array):
    return array.send("retainCount", returns=ctypes.c_ulong)


class There_And_Back(unittest.TestCase):
    def test_columns_are_shown_in_place_and_let_go(self):
        arrays = {family.word: family([3, 1, 2]) for family in FAMILIES}
        received = Received(*structs(Table(**arrays, again=arrays["double"])))
        self.assertEqual(references(arrays["double"]), 3)
        columns = received.columns()
        self.assertEqual(list(columns), [*arrays, "again"])
        for word, array in arrays.items():
            view = columns[word].numpy()
            self.assertEqual((view.dtype, view.tolist()), (array.dtype, [3, 1, 2]))
            self.assertEqual(view.ctypes.data, array.numpy().ctypes.data)
        del received, columns
        gc.collect()
        self.assertEqual(view.tolist(), [3, 1, 2])  # which keeps the table
        del view
        self.assertEqual({references(array) for array in arrays.values()}, {1})

    def test_what_is_refused(self):
        two, three = zeb.Int_Array([1, 2]), zeb.Int_Array([1, 2, 3])
        for columns in ({}, {"a": two, "b": three}, {"a\0": two}, {"a": zeb.File("x")}):
            with self.assertRaises((ValueError, AttributeError)):
                Table(**columns)
        self.assertEqual((references(two), references(three)), (1, 1))
        with self.assertRaises(ValueError):
            Received(Array_Struct(), Schema_Struct())

    def test_nulls_offsets_and_foreign_types(self):
        for family, nulls in ((zeb.Double_Array, True), (zeb.Double_Array, False), (zeb.Int_Array, True)):
            values = family(range(20))
            table = Table(value=values)
            column = table.array.children[0].contents
            bits = (ctypes.c_uint8 * 3)(0xFF, 0b11111101, 0xFF)
            column.buffers[0] = ctypes.addressof(bits) if nulls else None
            column.null_count, column.offset, column.length = -1, 4, 16
            table.array.length, table.array.offset = 10, 2
            shown = Received(*structs(table)).columns()["value"]
            self.assertEqual(shown.send("null_count", returns=ctypes.c_uint64), int(nulls))
            if family is zeb.Int_Array:
                self.assertRaises(ValueError, shown.numpy)
            else:
                expected = [numpy.nan if nulls and i == 9 else float(i) for i in range(6, 16)]
                numpy.testing.assert_array_equal(shown.numpy(), expected)
        table = Table(value=values)
        table.schema.children[0].contents.format = b"u"
        self.assertRaises(TypeError, Received(*structs(table)).columns()["value"].numpy)
        table = Table(value=values)
        table.array.length = 21
        self.assertRaises(ValueError, Received(*structs(table)).columns)


def structs(table):
    """The table's structs, which the caller takes over."""
    taken = Array_Struct.from_buffer_copy(table.array), Schema_Struct.from_buffer_copy(table.schema)
    for struct in (table.array, table.schema):
        struct.release = type(struct.release)()
    return taken


def database_library():
    """The engine's library, fetched once into the build folder; none where that is not possible."""
    path = folder / "package/libduckdb.so"
    if not path.exists() and sys.platform == "linux" and os.uname().machine == "x86_64":
        folder.mkdir(parents=True, exist_ok=True)
        try:
            subprocess.run(["npm", "pack", "@duckdb/node-bindings-linux-x64"], cwd=folder, check=True, timeout=300,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            subprocess.run(["tar", "xzf", *map(str, folder.glob("*.tgz"))], cwd=folder, check=True)
        except (OSError, subprocess.SubprocessError):
            return None
    return ctypes.CDLL(str(path)) if path.exists() else None


class Database(unittest.TestCase):
    def setUp(self):
        self.engine = database_library()
        if self.engine is None:
            self.skipTest("the database engine could not be fetched")
        self.database, self.connection = ctypes.c_void_p(), ctypes.c_void_p()
        self.assertEqual(self.engine.duckdb_open(None, ctypes.byref(self.database)), 0)
        self.assertEqual(self.engine.duckdb_connect(self.database, ctypes.byref(self.connection)), 0)

    def tearDown(self):
        if self.engine is not None:
            self.engine.duckdb_disconnect(ctypes.byref(self.connection))
            self.engine.duckdb_close(ctypes.byref(self.database))

    def scan(self, name, table):
        stream = ctypes.c_void_p()
        self.assertEqual(self.engine.duckdb_arrow_array_scan(
            self.connection, name.encode(), ctypes.byref(table.schema), ctypes.byref(table.array),
            ctypes.byref(stream)), 0)
        return stream

    def query(self, text):
        """Returns the first chunk of the answer."""
        answer, array, schema = ctypes.c_void_p(), Array_Struct(), Schema_Struct()
        self.assertEqual(self.engine.duckdb_query_arrow(self.connection, text.encode(), ctypes.byref(answer)), 0)
        for read, struct in ((self.engine.duckdb_query_arrow_schema, schema),
                             (self.engine.duckdb_query_arrow_array, array)):
            self.assertEqual(read(answer, ctypes.byref(ctypes.c_void_p(ctypes.addressof(struct)))), 0)
        self.engine.duckdb_destroy_arrow(ctypes.byref(answer))
        return {name: column.numpy() for name, column in Received(array, schema).columns().items()}

    def test_queries_over_arrays_that_were_not_copied(self):
        count = 100_000
        values = numpy.random.default_rng(5).normal(size=count)
        arrays = {"i": zeb.Int_Array(numpy.arange(count)), "x": zeb.Double_Array(values)}
        table = Table(**arrays)
        stream = self.scan("series", table)
        arrays["x"].numpy()[7] = values[7] = 1e9  # seen, since nothing was copied
        answer = self.query("select max(x) as top, arg_max(i, x) as place, count(*) filter (x > 0) as positive,"
                            " avg(x) as mean, cast(null as double) as nothing from series")
        self.assertEqual((answer["top"][0], answer["place"][0]), (1e9, 7))
        self.assertEqual(answer["positive"][0], numpy.count_nonzero(values > 0))
        self.assertAlmostEqual(answer["mean"][0], values.mean())
        self.assertTrue(numpy.isnan(answer["nothing"][0]))
        self.engine.duckdb_destroy_arrow_stream(ctypes.byref(stream))
        del table
        self.assertEqual({references(array) for array in arrays.values()}, {1})


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0]])
