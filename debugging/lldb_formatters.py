"""Shows the framework's arrays and strings in LLDB: how many elements they hold and have room for, whether they are
owners or links, and the first elements.

    (lldb) command script import debugging/lldb_formatters.py
    (lldb) frame variable values
    (ZEB_Double_Array *) values = 0x000000000004c8f30 100 of 128, owner = {0, 0.5, 1, ...}

`settings set target.max-children-count N` sets how many elements are shown."""

import struct

import lldb

_FIRST_LINK_MARKER = 10000


def _superclasses(name):
    """Yields the classes from which an array, vector or string inherits its fields."""
    family = {"ZEB_String": "ZEB_Char", "ZEB_Wide_String": "ZEB_Wide_Char"}.get(name)
    family = family or name.removesuffix("_Array").removesuffix("_Vector")
    yield from (f"{family}_Vector", f"{family}_Collection", "ZEB_Collection")


def _field(value, name):
    """Returns a field of an object. LLDB does not see those that a class built by gcc inherits: these are found by
    their offsets."""
    found = value.GetChildMemberWithName(name)
    if found.IsValid():
        return found
    for superclass in _superclasses(value.GetTypeName()):
        kind = value.GetTarget().FindFirstType(superclass)
        for field in (kind.GetFieldAtIndex(i) for i in range(kind.GetNumberOfFields())):
            if field.GetName() == name:
                return value.CreateValueFromAddress(name, value.GetLoadAddress() + field.GetOffsetInBytes(),
                                                    field.GetType())
    return found


def _number(value, name):
    return _field(value, name).GetValueAsUnsigned()


def _elements(data, count):
    """Returns the first elements as text."""
    kind = data.GetType().GetPointeeType()
    shown = (data.GetChildAtIndex(i, lldb.eNoDynamicValues, True) for i in range(count))
    if kind.IsPointerType():
        return [element.GetSummary() or f"{element.GetValueAsUnsigned():#x}" for element in shown]
    if kind.GetByteSize() == 1:
        return [str(element.GetValueAsUnsigned()) for element in shown]
    return [element.GetValue() for element in shown]


def _text(data, count):
    size = data.GetType().GetPointeeType().GetByteSize()
    contents = data.GetProcess().ReadMemory(data.GetValueAsUnsigned(), size * count, lldb.SBError()) if count else b""
    if size == 1:
        return contents.decode(errors="backslashreplace")
    units = struct.unpack(f"={count}I", contents)
    return "".join(chr(unit) if unit < 0x110000 else f"\\x{{{unit:x}}}" for unit in units)


def summary(value, _):
    """Returns the text for a reference to an array, vector or string."""
    if value.GetType().IsPointerType() and value.GetValueAsUnsigned() == 0:
        return "nil"
    fields = value.Dereference() if value.GetType().IsPointerType() else value
    count, data = _number(fields, "count"), _field(fields, "data")
    capacity = _field(fields, "capacity")
    room = f" of {capacity.GetValueAsUnsigned()}" if capacity.IsValid() else ""
    owner = "owner" if _number(fields, "link_marker") < _FIRST_LINK_MARKER else "link"
    limit = min(count, value.GetTarget().GetMaximumNumberOfChildrenToDisplay())
    name = fields.GetTypeName()
    if name.endswith("String") or "_Char_" in name:
        shown = f'"{_text(data, limit)}"' + "..." * (count > limit)
    else:
        shown = "{" + ", ".join(_elements(data, limit) + ["..."] * (count > limit)) + "}"
    return f"{count}{room}, {owner} = {shown}"


def __lldb_init_module(debugger, _):
    debugger.HandleCommand(f"type summary add -x '^ZEB_.*(Array|Vector|String)( \\*)?$' -F {__name__}.summary "
                           "-w Korvane_ZEB")
    debugger.HandleCommand("type category enable Korvane_ZEB")
