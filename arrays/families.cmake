# The table of element families: one row makes a collection, a vector and an array class.
#
#   NAME        the family's word in class names          WORD    the family's word in operation names
#   PHRASE      what the elements are called              ELEMENT their C type
#   ARRAY       the class name of the array               KIND    the engine's kind of element
#   KIND_STATE  what the kind reads from a vector         WRITE   how one `element` goes onto a `stream`
#   FORWARD     classes that the headers name             COLLECTION_FIELDS, VECTOR_FIELDS  fields of its own
#   FIELD_AT_FIRST, FIELD_OF_FOREIGN   a field's value after init, and with elements of a raw block
#   TAKE_MODE   how a copy (`made`) takes the mode of its model (`other`)
#   STORING     what storing an element means, for the header
#
# A field that a row leaves out has the default of `zeb_family`.

set(zeb_storing_of_held "Storing an element copies its contents into an object that the array makes for the slot
 * and keeps: the element given stays the caller's. Slots are reused, so an object that was read from one is
 * overwritten by what is stored there next, also after its removal; copy it to keep it.")

zeb_family(NAME Byte WORD byte PHRASE "unsigned bytes" ELEMENT "uint8_t"
           WRITE "[stream write_unsigned:element]")

zeb_family(NAME Double WORD double PHRASE "double-precision numbers" ELEMENT "double"
           WRITE "[stream write_double:element]")

zeb_family(NAME Float WORD float PHRASE "single-precision numbers" ELEMENT "float"
           WRITE "[stream write_float:element]")

zeb_family(NAME Int WORD int PHRASE "signed 32-bit integers" ELEMENT "int32_t"
           WRITE "[stream write_int:element]")

zeb_family(NAME UInt WORD uint PHRASE "unsigned 32-bit integers" ELEMENT "uint32_t"
           WRITE "[stream write_unsigned:element]")

zeb_family(NAME Pointer WORD pointer PHRASE "untyped pointers" ELEMENT "void *"
           WRITE "[stream write_unsigned_long:reinterpret_cast<uint64_t>(element)]")

zeb_family(NAME Object WORD object PHRASE "object references" ELEMENT "id"
           KIND "Counted_References<Object_Policy>" KIND_STATE "vector->ownership_mode"
           COLLECTION_FIELDS "uint32_t ownership_mode;"
           FIELD_AT_FIRST "ownership_mode = engine::retains" FIELD_OF_FOREIGN "ownership_mode = engine::borrows"
           TAKE_MODE "made->ownership_mode = other->ownership_mode"
           STORING "Storing an object retains and releases by the ownership mode (ZEB_Ownership.h). A link onto a
 * raw block has mode 0: what is stored through it into an array that retains is neither retained nor is the
 * object that was there released. A link by range takes the mode of the vector that it views."
           WRITE "[stream write_object:element]")

zeb_family(NAME Char WORD char PHRASE "8-bit characters" ELEMENT "char" ARRAY ZEB_String
           STORING "A character is a signed byte on every processor: in order, as a number, and where it is widened."
           COLLECTION_FIELDS "int32_t pool_index;" FIELD_AT_FIRST "pool_index = -1"
           WRITE "[stream write_char:static_cast<signed char>(element)]")

zeb_family(NAME Wide_Char WORD wide_char PHRASE "32-bit characters" ELEMENT "uint32_t" ARRAY ZEB_Wide_String
           COLLECTION_FIELDS "int32_t pool_index;" FIELD_AT_FIRST "pool_index = -1"
           WRITE "[stream write_character_code:element]")

zeb_family(NAME String WORD string PHRASE "8-bit strings" ELEMENT "ZEB_String *"
           KIND "Held_Objects<String_Policy>" KIND_STATE "vector->held_count"
           VECTOR_FIELDS "uint32_t held_count;" FORWARD "@class ZEB_Stream, ZEB_String;"
           STORING "${zeb_storing_of_held}"
           WRITE "[stream write_string:element]")

zeb_family(NAME Wide_String WORD wide_string PHRASE "32-bit strings" ELEMENT "ZEB_Wide_String *"
           KIND "Held_Objects<Wide_String_Policy>" KIND_STATE "vector->held_count"
           VECTOR_FIELDS "uint32_t held_count;" FORWARD "@class ZEB_Stream, ZEB_Wide_String;"
           STORING "${zeb_storing_of_held}"
           WRITE "engine::print_element(stream, element)")

zeb_family(NAME Byte_Array WORD byte_array PHRASE "byte arrays" ELEMENT "ZEB_Byte_Array *"
           KIND "Held_Objects<Byte_Array_Policy>" KIND_STATE "vector->held_count"
           VECTOR_FIELDS "uint32_t held_count;" FORWARD "@class ZEB_Stream, ZEB_Byte_Array;"
           STORING "${zeb_storing_of_held}"
           WRITE "[stream write_object:element]")
