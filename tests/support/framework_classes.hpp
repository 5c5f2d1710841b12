/// The framework's classes, as the runtime knows them.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#import <objc/runtime.h>

#include <algorithm>
#include <string>
#include <vector>

namespace support
{

/// Every class with the framework's prefix, below its root, by name.
inline std::vector<id> framework_classes()
{
    // g++ knows no size of what a Class points to.
    std::vector<id> all(static_cast<size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(reinterpret_cast<Class *>(all.data()), static_cast<int>(all.size()));
    const auto name = [](id named) { return std::string(class_getName(static_cast<Class>(named))); };
    // A message would initialise the class, and with it what the platform keeps.
    const auto is_framework_object = [](Class any) {
        while (any != Nil && any != [ZEB_Object class])
            any = class_getSuperclass(any);
        return any != Nil;
    };
    std::erase_if(all, [=](id named) {
        return name(named).rfind("ZEB_", 0) != 0 || !is_framework_object(static_cast<Class>(named));
    });
    std::ranges::sort(all, {}, name);
    return all;
}

} // namespace support
