#import <Korvane_ZEB/ZEB_Byte_Extremes.h>

#import <Korvane_ZEB/ZEB_Byte_Algorithms.h>

@implementation ZEB_Byte_Vector (Extremes)

- (uint32_t)minimum_and_maximum
{
    uint8_t minimum;
    uint8_t maximum;
    [self get_minimum_byte:&minimum maximum:&maximum];
    return maximum * 256u + minimum;
}

@end
