#include "core/engine/namespace.hpp"
#include "filesystem/engine/file_status.hpp"

#include <gtest/gtest.h>

TEST(Effective_Rights, add_up_and_strangers_keep_what_was)
{
    using Rights = engine::Access_Rights;
    engine::File_Status status{};
    status.owner.read = status.group.write = status.other.execute = true;
    const auto sum = [&](bool owner, bool group, Rights before) {
        const Rights rights = engine::effective_rights(status, owner, group, before);
        return 4 * rights.read + 2 * rights.write + rights.execute;
    };
    const Rights none{}, all{true, true, true};
    EXPECT_EQ(sum(true, true, none), 7);
    EXPECT_EQ(sum(true, false, all), 5);
    EXPECT_EQ(sum(false, true, none), 3);
    EXPECT_EQ(sum(false, false, none), 1);
    EXPECT_EQ(sum(false, false, all), 7);
}
