"""Strings of the framework."""

import ctypes

from .runtime import Object, send


class String(Object):
    """Bytes, or the UTF-8 of a text."""

    class_name = "ZEB_String"

    def __init__(self, text=b""):
        super().__init__()
        data = text.encode() if isinstance(text, str) else bytes(text)
        self.send("set_chars:count:", ctypes.c_char_p(data), ctypes.c_uint32(len(data)))
        if len(bytes(self)) != len(data):
            raise MemoryError()

    @classmethod
    def link(cls, values):
        """Returns a string that is a link onto the bytes of a numpy array, which it keeps alive."""
        made = cls.__new__(cls)
        Object.__init__(made, "init_as_link_to_chars:count:", ctypes.c_void_p(values.ctypes.data),
                        ctypes.c_uint32(values.size))
        made._source = values
        return made

    def __bytes__(self):
        count = self.send("count", returns=ctypes.c_uint32)
        return ctypes.string_at(self.send("char_data", returns=ctypes.c_void_p), count) if count else b""

    def __str__(self):
        return bytes(self).decode(errors="replace")


def text_of_wide(pointer):
    """Returns the text of a 32-bit string, whose units are UTF-16 or code points."""
    count = send(pointer, "count", returns=ctypes.c_uint32)
    data = send(pointer, "wide_char_data", returns=ctypes.c_void_p)
    units = (ctypes.c_uint32 * count).from_address(data) if count else ()
    text = "".join(chr(unit) if unit < 0x110000 else "\ufffd" for unit in units)
    return text.encode("utf-16", "surrogatepass").decode("utf-16", "replace")
