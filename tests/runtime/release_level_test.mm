#include "tests/support/class_test.hpp"
#include <string>

static std::string released;

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

/// Lets the current level keep a new witness, and nobody else.
void keep(char name, id heir = nil)
{
    Witness *const made = witness(name, heir);
    [ZEB_Release_Level keep:made];
    [made release];
}

ZEB_Release_Level *pushed()
{
    [ZEB_Release_Level push];
    return [ZEB_Release_Level current];
}

class Release_Level : public testing::Test
{
protected:
    void SetUp() override { released.clear(); }
    void TearDown() override { EXPECT_EQ([ZEB_Release_Level current], nil); }
};

} // namespace

TEST_F(Release_Level, pops_release_what_their_level_keeps_then_its_pool)
{
    [ZEB_Release_Level pop]; // there is none yet, and what is kept is not
    keep('n');
    EXPECT_EQ(released, "n");
    ZEB_Release_Level *const outer = pushed();
    EXPECT_EQ([ZEB_Release_Level is_started], 1);
    [witness('z') autorelease];
    keep('a');
    keep('b');
    [ZEB_Release_Level keep:nil];
    ZEB_Release_Level *const inner = pushed();
    EXPECT_EQ([inner parent], outer);
    EXPECT_EQ([outer child], inner);
    [witness('y') autorelease];
    keep('c');
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "ncy");
    EXPECT_EQ([ZEB_Release_Level current], outer);
    EXPECT_EQ([outer child], nil);
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "ncyabz");
}

TEST_F(Release_Level, a_level_that_is_released_takes_those_inside_it_along)
{
    ZEB_Release_Level *levels[4];
    for (int i = 0; i < 4; ++i) {
        levels[i] = pushed();
        keep("abcd"[i]);
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
    ZEB_Release_Level *const outer = pushed();
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
    EXPECT_EQ([ZEB_Release_Level current], nil);
    [ZEB_Release_Level set_current:inner];
    ZEB_Object_Array *const objects = [[ZEB_Object_Array alloc] init_with_capacity:0];
    [inner set_kept_objects:objects];
    [inner set_kept_objects:objects]; // released by none before it is kept again
    [objects release];
    keep('a');
    EXPECT_EQ([objects count], 1u);
    [ZEB_Release_Level pop];
    EXPECT_EQ(released, "a");
    EXPECT_EQ([ZEB_Release_Level current], root);
    [ZEB_Release_Level pop];
}
