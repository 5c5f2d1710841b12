# The table of element families: one row makes a collection, a vector and an array class.
#
#   ZEB_T_                what the family's class names begin with
#   TT_word               the family's word in operation names
#   TT_PHRASE             what the elements are called
#   ZEB_T_Element         their C type
#   ZEB_T_Array           the class name of the array
#   TT_KIND               the engine's kind of element
#   TT_KIND_STATE         what the kind reads from a vector
#   TT_VALUE              the C type in headers, which say that pointers may be null
#   TT_SLOT               the same of an element in a block, which nobody retains for the array
#   TT_STORING            what storing an element means, for the header
#   TT_WRITE_ELEMENT      how one `element` goes onto a `stream`
#   TT_SUM                the C type of a sum of elements, of families of numbers
#   TT_FORWARD_CLASSES    classes that the headers name
#   TT_COLLECTION_FIELDS, TT_VECTOR_FIELDS  fields of its own; ZEB_Family_Settings_Private.h sets them
#
# Columns that a row leaves out have the defaults of `zeb_family`.

set(zeb_storing_of_held "Storing an element copies its contents into an object that the array makes for the slot
 * and keeps: the element given stays the caller's. Slots are reused, so an object that was read from one is
 * overwritten by what is stored there next, also after its removal; copy it to keep it.")

zeb_family(ZEB_T_ ZEB_Byte_ TT_word byte TT_PHRASE "unsigned bytes" ZEB_T_Element "uint8_t"
           TT_SUM "uint64_t" TT_WRITE_ELEMENT "[stream write_unsigned:element]")

zeb_family(ZEB_T_ ZEB_Double_ TT_word double TT_PHRASE "double-precision numbers" ZEB_T_Element "double"
           TT_SUM "double" TT_WRITE_ELEMENT "[stream write_double:element]")

zeb_family(ZEB_T_ ZEB_Float_ TT_word float TT_PHRASE "single-precision numbers" ZEB_T_Element "float"
           TT_SUM "double" TT_WRITE_ELEMENT "[stream write_float:element]")

zeb_family(ZEB_T_ ZEB_Int_ TT_word int TT_PHRASE "signed 32-bit integers" ZEB_T_Element "int32_t"
           TT_SUM "int64_t" TT_WRITE_ELEMENT "[stream write_int:element]")

zeb_family(ZEB_T_ ZEB_UInt_ TT_word uint TT_PHRASE "unsigned 32-bit integers" ZEB_T_Element "uint32_t"
           TT_SUM "uint64_t" TT_WRITE_ELEMENT "[stream write_unsigned:element]")

zeb_family(ZEB_T_ ZEB_Int64_ TT_word int64 TT_PHRASE "signed 64-bit integers" ZEB_T_Element "int64_t"
           TT_SUM "int64_t")

zeb_family(ZEB_T_ ZEB_Pointer_ TT_word pointer TT_PHRASE "untyped pointers" ZEB_T_Element "void *"
           TT_WRITE_ELEMENT "[stream write_unsigned_long:reinterpret_cast<uint64_t>(element)]")

zeb_family(ZEB_T_ ZEB_Object_ TT_word object TT_PHRASE "object references" ZEB_T_Element "id"
           TT_KIND "Counted_References<Object_Policy>" TT_KIND_STATE "vector->ownership_mode"
           TT_COLLECTION_FIELDS "uint32_t ownership_mode;"
           TT_STORING "Storing an object retains and releases by the ownership mode (ZEB_Ownership.h). A link onto a
 * raw block has mode 0: what is stored through it into an array that retains is neither retained nor is the
 * object that was there released. A link by range takes the mode of the vector that it views."
           TT_WRITE_ELEMENT "[stream write_object:element]")

zeb_family(ZEB_T_ ZEB_Char_ TT_word char TT_PHRASE "8-bit characters" ZEB_T_Element "char"
           ZEB_T_Array ZEB_String
           TT_STORING "A character is a signed byte on every processor: in order, as a number, and where it is widened."
           TT_COLLECTION_FIELDS "int32_t pool_index;"
           TT_WRITE_ELEMENT "[stream write_char:static_cast<signed char>(element)]")

zeb_family(ZEB_T_ ZEB_Wide_Char_ TT_word wide_char TT_PHRASE "32-bit characters" ZEB_T_Element "uint32_t"
           ZEB_T_Array ZEB_Wide_String
           TT_COLLECTION_FIELDS "int32_t pool_index;"
           TT_WRITE_ELEMENT "[stream write_character_code:element]")

zeb_family(ZEB_T_ ZEB_String_ TT_word string TT_PHRASE "8-bit strings" ZEB_T_Element "ZEB_String *"
           TT_KIND "Held_Objects<String_Policy>" TT_KIND_STATE "vector->held_count"
           TT_VECTOR_FIELDS "uint32_t held_count;" TT_FORWARD_CLASSES "@class ZEB_Stream, ZEB_String;"
           TT_STORING "${zeb_storing_of_held}"
           TT_WRITE_ELEMENT "[stream write_string:element]")

zeb_family(ZEB_T_ ZEB_Wide_String_ TT_word wide_string TT_PHRASE "32-bit strings"
           ZEB_T_Element "ZEB_Wide_String *"
           TT_KIND "Held_Objects<Wide_String_Policy>" TT_KIND_STATE "vector->held_count"
           TT_VECTOR_FIELDS "uint32_t held_count;" TT_FORWARD_CLASSES "@class ZEB_Stream, ZEB_Wide_String;"
           TT_STORING "${zeb_storing_of_held}"
           TT_WRITE_ELEMENT "engine::print_element(stream, element)")

zeb_family(ZEB_T_ ZEB_Byte_Array_ TT_word byte_array TT_PHRASE "byte arrays" ZEB_T_Element "ZEB_Byte_Array *"
           TT_KIND "Held_Objects<Byte_Array_Policy>" TT_KIND_STATE "vector->held_count"
           TT_VECTOR_FIELDS "uint32_t held_count;" TT_FORWARD_CLASSES "@class ZEB_Stream, ZEB_Byte_Array;"
           TT_STORING "${zeb_storing_of_held}"
           TT_WRITE_ELEMENT "[stream write_object:element]")
