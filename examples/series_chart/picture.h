/*
 * Pictures as SVG text.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** Where a text stands beside its position. */
typedef enum { TEXT_STARTS, TEXT_IS_CENTERED, TEXT_ENDS } Text_Anchor;

/**
 * An SVG picture in the making. Shapes are painted in the order in which they are added; positions are pixels
 * from the top left corner.
 */
@interface Picture : ZEB_Object {
    ZEB_String *text;
    ZEB_String_Stream *stream;
}

/** Initialises a white picture. The title is what programs show that do not show the picture. */
- (id)init_with_title:(ZEB_Wide_Char_Vector *)title width:(double)width height:(double)height;

/** Begin a group with a name and further attributes of SVG, or one of texts in a color and a font size.
    Every group has to be ended. */
- (void)begin_group:(const char *)name attributes:(const char *)attributes;
- (void)begin_texts:(const char *)name color:(const char *)color font_size:(double)size;
- (void)end_group;

/** Adds a straight line. */
- (void)add_line_from:(double)x y:(double)y to:(double)other_x y:(double)other_y;

/** Adds the frame of a rectangle. */
- (void)add_frame:(double)x y:(double)y width:(double)width height:(double)height;

/** Adds a dot. */
- (void)add_dot:(double)x y:(double)y radius:(double)radius;

/** Begin a path, move its pen without and with a line, and end it. */
- (void)begin_path;
- (void)move_to:(double)x y:(double)y;
- (void)draw_to:(double)x y:(double)y;
- (void)end_path;

/** Adds a line of text. What is no character is shown as U+FFFD. */
- (void)add_text:(ZEB_Wide_Char_Vector *)line x:(double)x y:(double)y anchor:(Text_Anchor)anchor;

/** The same, with the characters from an index on raised, as exponents are. */
- (void)add_text:(ZEB_Wide_Char_Vector *)line
     raised_from:(uint32_t)index
               x:(double)x
               y:(double)y
          anchor:(Text_Anchor)anchor;

/** Adds a centered line of text that is read from below. */
- (void)add_upright_text:(ZEB_Wide_Char_Vector *)line x:(double)x y:(double)y;

/** Ends the picture and returns its text; nil if there was no memory for all of it. */
- (ZEB_String *)finished_text;

@end
