#include "encoding/engine/arrow_export.hpp"

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace zeb::engine
{
namespace
{

/// What the private data of an exported array owns.
struct Array_Parts {
    const void *buffers[2] = {nullptr, nullptr}; // no element is null, so there is no bit for each
    void *keeper = nullptr;
    void (*give_back)(void *keeper) = nullptr;
    std::vector<ArrowArray> columns;
    std::vector<ArrowArray *> children;
};

/// The same of a schema.
struct Schema_Parts {
    std::string name;
    std::vector<ArrowSchema> columns;
    std::vector<ArrowSchema *> children;
};

/// Releases the children that nobody has moved away, then the parts, and marks the struct as released.
template <class Struct, class Parts>
void release_parts(Struct *released) noexcept
{
    const std::unique_ptr<Parts> parts(static_cast<Parts *>(released->private_data));
    for (Struct *const child : parts->children)
        if (child->release != nullptr)
            child->release(child);
    released->release = nullptr;
}

void release_schema(ArrowSchema *schema) noexcept { release_parts<ArrowSchema, Schema_Parts>(schema); }

void release_array(ArrowArray *array) noexcept
{
    const Array_Parts &parts = *static_cast<Array_Parts *>(array->private_data);
    void *const keeper = parts.keeper;
    void (*const give_back)(void *) = parts.give_back;
    release_parts<ArrowArray, Array_Parts>(array);
    if (give_back != nullptr)
        give_back(keeper);
}

template <class Struct>
std::vector<Struct *> pointers_to(std::vector<Struct> &structs)
{
    std::vector<Struct *> pointers;
    for (Struct &each : structs)
        pointers.push_back(&each);
    return pointers;
}

void set_schema(ArrowSchema &schema, const char *format, std::unique_ptr<Schema_Parts> parts) noexcept
{
    schema = {format,
              parts->name.c_str(),
              nullptr,
              0,
              static_cast<std::int64_t>(parts->children.size()),
              parts->children.data(),
              nullptr,
              release_schema,
              parts.get()};
    static_cast<void>(parts.release()); // now the schema's
}

void set_array(ArrowArray &array, std::uint32_t count, std::int64_t buffers,
               std::unique_ptr<Array_Parts> parts) noexcept
{
    array = {count,
             0,
             0,
             buffers,
             static_cast<std::int64_t>(parts->children.size()),
             parts->buffers,
             parts->children.data(),
             nullptr,
             release_array,
             parts.get()};
    static_cast<void>(parts.release()); // now the array's
}

std::unique_ptr<Array_Parts> parts_of(const Arrow_Column &column)
{
    auto parts = std::make_unique<Array_Parts>();
    parts->buffers[1] = column.elements;
    parts->keeper = column.keeper;
    parts->give_back = column.release;
    return parts;
}

std::unique_ptr<Schema_Parts> named_parts(Arrow_Name name)
{
    auto parts = std::make_unique<Schema_Parts>();
    parts->name.assign(name.chars, name.length);
    return parts;
}

void try_to_export_column(const Arrow_Column &column, ArrowArray &array, ArrowSchema &schema)
{
    auto array_parts = parts_of(column);
    set_schema(schema, column.format, std::make_unique<Schema_Parts>());
    set_array(array, column.count, 2, std::move(array_parts));
}

void try_to_export_table(std::span<const Arrow_Column> columns, std::span<const Arrow_Name> names,
                         std::uint32_t count, ArrowArray &array, ArrowSchema &schema)
{
    // Everything that can fail comes before the first struct is set.
    auto table = std::make_unique<Array_Parts>();
    auto description = std::make_unique<Schema_Parts>();
    table->columns.resize(columns.size());
    table->children = pointers_to(table->columns);
    description->columns.resize(columns.size());
    description->children = pointers_to(description->columns);
    std::vector<std::unique_ptr<Array_Parts>> array_parts;
    std::vector<std::unique_ptr<Schema_Parts>> schema_parts;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        array_parts.push_back(parts_of(columns[i]));
        schema_parts.push_back(named_parts(names[i]));
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        set_array(table->columns[i], count, 2, std::move(array_parts[i]));
        set_schema(description->columns[i], columns[i].format, std::move(schema_parts[i]));
    }
    set_array(array, count, 1, std::move(table));
    set_schema(schema, "+s", std::move(description));
}

template <class Export>
bool succeeds(Export try_to_export) noexcept
{
    try {
        try_to_export();
        return true;
    } catch (...) { // no memory
        return false;
    }
}

} // namespace

bool export_column(const Arrow_Column &column, ArrowArray &array, ArrowSchema &schema) noexcept
{
    return succeeds([&] { try_to_export_column(column, array, schema); });
}

bool export_table(std::span<const Arrow_Column> columns, std::span<const Arrow_Name> names,
                  std::uint32_t count, ArrowArray &array, ArrowSchema &schema) noexcept
{
    return succeeds([&] { try_to_export_table(columns, names, count, array, schema); });
}

} // namespace zeb::engine
