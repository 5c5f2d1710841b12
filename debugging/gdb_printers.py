"""Shows the framework's arrays and strings in gdb: how many elements they hold and have room for, whether they are
owners or links, and the first elements.

    (gdb) source debugging/gdb_printers.py
    (gdb) print values
    $1 = ZEB_Double_Array at 0x4c8f30, 100 of 128, owner = {0, 0.5, 1, ...}

A variable of another type, such as `id`, is shown by the class of its object. `set print elements N` sets how many
elements are shown."""

import re

import gdb
import gdb.printing

_SHOWN_CLASS = re.compile(r"^ZEB_\w*(Array|Vector|String)$")
_FIRST_LINK_MARKER = 10000
_DEEPEST = 2


def _class_of(pointer):
    """Returns the name of an object's class; None where there is no object."""
    try:
        isa = int(pointer.cast(gdb.lookup_type("unsigned long").pointer()).dereference())
        symbol = gdb.execute(f"info symbol {isa:#x}", to_string=True)
    except gdb.MemoryError:
        return None
    found = re.match(r"_OBJC_C(?:lass|LASS)_(?:\$_)?(\w+)", symbol)
    return found.group(1) if found else None


def _shown(element, depth):
    kind = element.type.strip_typedefs()
    if kind.code != gdb.TYPE_CODE_PTR or kind.target().strip_typedefs().code == gdb.TYPE_CODE_VOID:
        return str(int(element)) if kind.sizeof == 1 else element.format_string(raw=True)
    return _described(element, depth + 1)


def _text(data, count, limit):
    """Returns characters as a string, 32-bit ones by their code points."""
    units = [int(data[i]) for i in range(min(count, limit))]
    characters = bytes(unit & 0xFF for unit in units).decode(errors="backslashreplace") \
        if data.type.target().sizeof == 1 else "".join(chr(u) if u < 0x110000 else f"\\x{{{u:x}}}" for u in units)
    return f'"{characters}"' + ("..." if count > limit else "")


def _described(pointer, depth=0):
    """Returns the text of a reference to an object."""
    if int(pointer) == 0:
        return "nil"
    name = _class_of(pointer)
    if name is None or not _SHOWN_CLASS.match(name) or depth > _DEEPEST:
        return f"{name or 'object'} at {int(pointer):#x}"
    try:
        fields = pointer.cast(gdb.lookup_type(f"struct {name}").pointer()).dereference()
    except gdb.error:
        return f"{name} at {int(pointer):#x}"
    names = {field for base in _bases(fields.type) for field in base}
    data, count = fields["data"], int(fields["count"])
    room = f" of {int(fields['capacity'])}" if "capacity" in names else ""
    marker = int(fields["link_marker"])
    owner = "owner" if marker < _FIRST_LINK_MARKER else "link"
    limit = gdb.parameter("print elements") or count
    if name.endswith("String") or "_Char_" in name:
        elements = _text(data, count, limit)
    else:
        shown = [_shown(data[i], depth) for i in range(min(count, limit))]
        elements = "{" + ", ".join(shown + ["..."] * (count > limit)) + "}"
    return f"{name} at {int(pointer):#x}, {count}{room}, {owner} = {elements}"


def _bases(kind):
    """Yields the names of a class's own fields and, one after the other, of those that it inherits."""
    yield [field.name for field in kind.fields() if not field.is_base_class]
    for field in kind.fields():
        if field.is_base_class:
            yield from _bases(field.type)


class _Printer:
    def __init__(self, pointer):
        self.pointer = pointer

    def to_string(self):
        return _described(self.pointer)


class _Printers(gdb.printing.PrettyPrinter):
    def __init__(self):
        super().__init__("Korvane_ZEB")

    def __call__(self, value):
        kind = value.type.strip_typedefs()
        if kind.code == gdb.TYPE_CODE_STRUCT and value.address is not None and _SHOWN_CLASS.match(kind.name or ""):
            return _Printer(value.address)
        if kind.code != gdb.TYPE_CODE_PTR:
            return None
        target = kind.target().strip_typedefs().name or ""
        if _SHOWN_CLASS.match(target):
            return _Printer(value)
        is_object = target == "objc_object" and int(value) != 0
        return _Printer(value) if is_object and _SHOWN_CLASS.match(_class_of(value) or "") else None


gdb.printing.register_pretty_printer(None, _Printers(), replace=True)
