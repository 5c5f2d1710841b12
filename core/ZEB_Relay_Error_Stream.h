/*
 * An error stream that passes its text on to a listener.
 */
#import <Korvane_ZEB/ZEB_Error_Stream.h>

@class ZEB_Message_Text, ZEB_Wide_String;
@class ZEB_Relay_Error_Stream;

ZEB_ASSUME_NONNULL_BEGIN

/** What a listener implements. */
@protocol ZEB_Message_Listener

/** Called after each text that the stream captured; it is in the stream's `captured_text` until the next one.
    What the listener writes onto the stream meanwhile is echoed, and not captured. */
- (void)message_written:(ZEB_Relay_Error_Stream *)stream;

@end

/**
 * Captures each text that is written onto it and tells a listener, so that an application can show it; also
 * writes everything to standard error, unless that is switched off.
 *
 * One write is one message: a delimited list, for one, gives a message for each delimiter, element and
 * separator. A number that its format prints as nothing gives none. A stream of this class does not replace
 * the shared error stream.
 *
 * For one thread: it writes to standard error as the shared error stream does.
 */
ZEB_EXPORT
@interface ZEB_Relay_Error_Stream : ZEB_Error_Stream {
    ZEB_PROTECTED
    ZEB_UNRETAINED id<ZEB_Message_Listener> ZEB_NULLABLE listener;
    ZEB_UNRETAINED ZEB_Message_Text *ZEB_NULLABLE captured_text;
    ZEB_UNRETAINED ZEB_Wide_String *ZEB_NULLABLE wide_text;
    uint8_t echoes;               /* 1 at first */
    uint8_t captures_diagnostics; /* 0 at first */
    uint8_t is_relaying;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a stream without a listener. */
- (instancetype)init;

/** The object that is told of each captured text; not retained, nil at first. Without one nothing is
    captured. */
- (id<ZEB_Message_Listener> ZEB_NULLABLE)listener;
- (void)set_listener:(id<ZEB_Message_Listener> ZEB_NULLABLE)object;

/** The holder of the last captured text; the stream retains it. */
- (ZEB_Message_Text *ZEB_NULLABLE)captured_text;
- (void)set_captured_text:(ZEB_Message_Text *ZEB_NULLABLE)holder;

/** Whether texts are also written to standard error: 1 for yes. Diagnostics are written there whatever this
    says. */
- (uint8_t)echoes;
- (void)set_echoes:(uint8_t)value;

/** Whether a printed diagnostic is also captured, its whole line as one message: 1 for yes. Others never
    are. */
- (uint8_t)captures_diagnostics;
- (void)set_captures_diagnostics:(uint8_t)value;

@end

ZEB_ASSUME_NONNULL_END
