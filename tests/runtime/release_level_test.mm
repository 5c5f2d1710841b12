#import <Korvane_ZEB/Korvane_ZEB.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string released;

} // namespace

/** Tells its release, with the object that it then asks the current level to keep. */
@interface Witness : NSObject {
@public
    char name;
    id heir;
}
@end

@implementation Witness
- (void)dealloc
{
    released += name;
    [ZEB_Release_Level keep:heir];
    [heir release];
    [super dealloc];
}
@end

namespace
{

Witness *witness(char name, id heir = nil)
{
    Witness *const made = [[Witness alloc] init];
    made->name = name;
    made->heir = heir;
    return made;
}

void keep(char name, id heir = nil)
{
    Witness *const made = witness(name, heir);
    [ZEB_Release_Level keep:made];
    [made release];
}

class Release_Level : public testing::Test
{
protected:
    void SetUp() override { released.clear(); }
    void TearDown() override { EXPECT_EQ([ZEB_Release_Level current], nil); }
};

} // namespace

TEST_F(Release_Level, nothing_is_popped_or_kept_without_one)
{
    [ZEB_Release_Level pop];
    Witness *const made = witness('a');
    [ZEB_Release_Level keep:made];
    EXPECT_EQ([made retainCount], 1u);
    [made release];
}

TEST_F(Release_Level, pops_release_what_their_level_keeps_then_its_pool)
{
    [ZEB_Release_Level push];
    EXPECT_EQ([ZEB_Release_Level is_started], 1);
    ZEB_Release_Level *const outer = [ZEB_Release_Level current];
    [witness('z') autorelease];
    keep('a');
    keep('b');
    [ZEB_Release_Level keep:nil];
    EXPECT_EQ([[outer kept_objects] count], 2u);
    [ZEB_Release_Level push];
    EXPECT_EQ([[ZEB_Release_Level current] parent], outer);
    EXPECT_EQ([outer child], [ZEB_Release_Level current]);
    [witness('y') autorelease];
    keep('c');
    EXPECT_EQ(released, "");
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "cy");
    EXPECT_EQ([ZEB_Release_Level current], outer);
    EXPECT_EQ([outer child], nil);
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "cyabz");
}

TEST_F(Release_Level, a_level_that_is_released_takes_those_inside_it_along)
{
    ZEB_Release_Level *levels[4];
    for (char i = 0; i < 4; ++i) {
        [ZEB_Release_Level push];
        levels[int(i)] = [ZEB_Release_Level current];
        keep(static_cast<char>('a' + i));
    }
    [levels[1] release];
    EXPECT_EQ(released, "dcb");
    EXPECT_EQ([ZEB_Release_Level current], levels[0]);
    EXPECT_EQ([levels[0] child], nil);
    [levels[0] release]; // the current one, without a pop
    EXPECT_EQ(released, "dcba");
}

TEST_F(Release_Level, what_is_kept_while_a_level_goes_belongs_to_the_one_around_it)
{
    [ZEB_Release_Level push];
    ZEB_Release_Level *const outer = [ZEB_Release_Level current];
    [ZEB_Release_Level push];
    keep('a', witness('b'));
    [witness('c', witness('d')) autorelease];
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "ac");
    EXPECT_EQ([[outer kept_objects] count], 2u);
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "acbd");
}

TEST_F(Release_Level, are_made_and_set_by_hand)
{
    ZEB_Release_Level *const root = [[ZEB_Release_Level alloc] init];
    ZEB_Release_Level *const inner = [[ZEB_Release_Level alloc] init_with_parent:root];
    EXPECT_EQ([root parent], nil);
    EXPECT_EQ([inner parent], root);
    EXPECT_EQ([root child], nil);
    EXPECT_EQ([ZEB_Release_Level current], nil);
    [ZEB_Release_Level set_current:inner];
    ZEB_Object_Array *const objects = [[ZEB_Object_Array alloc] init_with_capacity:0];
    [inner set_kept_objects:objects];
    [inner set_kept_objects:objects];
    EXPECT_EQ([objects retainCount], 2u);
    [objects release];
    keep('a');
    EXPECT_EQ([objects count], 1u);
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "a");
    EXPECT_EQ([ZEB_Release_Level current], root);
    [ZEB_Release_Level pop];
}
