/*
 * Documents: a table of 32-bit strings in a file of the external binary format.
 */
#import <Korvane_ZEB/ZEB_File.h>

@class ZEB_Wide_String_Array;

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/**
 * Saves a table as the whole contents of the entry's file: the header, then the table's record. Returns 1 if
 * all of it was written; 0 after `write_contents:length:` reported a failure, with nothing written if there
 * is no memory for the document, and for a nil file. A nil table counts as empty. `write_contents:length:`
 * says what a failure leaves of the file's former contents.
 */
ZEB_EXPORT uint32_t ZC_save_document(ZEB_Wide_String_Array *ZEB_NULLABLE table, ZEB_File *ZEB_NULLABLE file);

/**
 * Refreshes the entry's status and replaces a table's contents with those of the document in its file, of
 * either byte order and with or without a check sum, which is not looked at. Sets the pool index of each
 * string to its position. A header with another text does not stop it: the record is then read in this
 * machine's byte order. Returns 1; or 0, with the table unchanged, after one line: of `read_contents:`,
 * "Error, too short for a document: " and the path (up to the header's 64 bytes), or the refusal of
 * `ZEB_decode_binary_contents:`. A file above the entry's `greatest_contents_size` is refused: set that
 * before you load foreign files.
 */
ZEB_EXPORT uint32_t ZC_load_document(ZEB_Wide_String_Array *ZEB_NULLABLE table, ZEB_File *ZEB_NULLABLE file);

/** Saves a document in the same way, with the CRC-32 of all its bytes after the record, and "CRC1" in place
    of the last four characters of the header. */
ZEB_EXPORT uint32_t ZC_save_checked_document(ZEB_Wide_String_Array *ZEB_NULLABLE table,
                                             ZEB_File *ZEB_NULLABLE file);

/** Loads a document in the same way if its check sum agrees or it is a plain one; if not, reports "Error,
    check sum differs in document: " and the path, and returns 0. A change of any byte, and any cut, is found.
 */
ZEB_EXPORT uint32_t ZC_load_checked_document(ZEB_Wide_String_Array *ZEB_NULLABLE table,
                                             ZEB_File *ZEB_NULLABLE file);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
