"""The framework's library, messages to its objects, and what owns them."""

import ctypes
import ctypes.util
import os
import sys

_path = (os.environ.get("KORVANE_ZEB_LIBRARY") or ctypes.util.find_library("Korvane_ZEB")
         or "libKorvane_ZEB.so")
library = ctypes.CDLL(_path)

_runtime = ctypes.CDLL(ctypes.util.find_library("objc")) if sys.platform == "darwin" else library
_runtime.objc_getClass.restype = _runtime.sel_registerName.restype = ctypes.c_void_p
_selectors, _classes, _prototypes = {}, {}, {}

if sys.platform == "darwin":
    def _method(receiver, selector):
        return ctypes.cast(_runtime.objc_msgSend, ctypes.c_void_p).value
else:
    _runtime.objc_msg_lookup.restype = ctypes.c_void_p
    _runtime.objc_msg_lookup.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
    _method = _runtime.objc_msg_lookup


def class_named(name):
    """Returns a class of the framework or the platform."""
    if name not in _classes:
        _classes[name] = _runtime.objc_getClass(name.encode())
        if not _classes[name]:
            raise LookupError(f"{_path} has no class {name}")
    return _classes[name]


def send(receiver, selector, *arguments, returns=None):
    """Sends a message. Arguments are ctypes values, whose types the method must have; the result has the ctypes
    type `returns`."""
    if not receiver:
        raise ValueError(f"{selector} is sent to nil")
    if selector not in _selectors:
        _selectors[selector] = _runtime.sel_registerName(selector.encode())
    types = (returns, ctypes.c_void_p, ctypes.c_void_p, *map(type, arguments))
    if types not in _prototypes:
        _prototypes[types] = ctypes.CFUNCTYPE(*types)
    name = _selectors[selector]
    return _prototypes[types](_method(receiver, name))(receiver, name, *arguments)


def function(name, returns, *arguments):
    """Returns an exported C function."""
    found = getattr(library, name)
    found.restype, found.argtypes = returns, arguments
    return found


class Pool:
    """A level of temporary objects, for `with`: those that were made inside are released at its end."""

    def __enter__(self):
        made = send(class_named("NSAutoreleasePool"), "alloc", returns=ctypes.c_void_p)
        self.pointer = send(made, "init", returns=ctypes.c_void_p)
        return self

    def __exit__(self, *failure):
        send(self.pointer, "drain")


class Object:
    """Owns one object of a class of the framework, and releases it."""

    class_name = "ZEB_Object"

    def __init__(self, initialiser="init", *arguments):
        made = send(class_named(self.class_name), "alloc", returns=ctypes.c_void_p)
        self.pointer = send(made, initialiser, *arguments, returns=ctypes.c_void_p)
        if not self.pointer:
            raise MemoryError(self.class_name)

    def __del__(self):
        if getattr(self, "pointer", None):
            send(self.pointer, "release")

    def send(self, selector, *arguments, returns=None):
        return send(self.pointer, selector, *arguments, returns=returns)


# What is made outside of any other level lives as long as the process.
_outermost_pool = Pool().__enter__()
