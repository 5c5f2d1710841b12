/// Where the loops of zlib put what they make.
#pragma once

#include "core/engine/namespace.hpp"
#include "encoding/engine/zlib_loops.hpp"

#include <string>

namespace support
{

/// Contents, and the room behind them that is offered for more.
struct Sink {
    std::string contents = {};
    std::string room = {};

    engine::Zlib_Output output()
    {
        return {this,
                [](void *sink, const char *bytes, std::uint32_t length) {
                    static_cast<Sink *>(sink)->contents.append(bytes, length);
                    return true;
                },
                [](void *sink) {
                    std::string &room = static_cast<Sink *>(sink)->room;
                    return engine::Output_Room{room.data(), static_cast<std::uint32_t>(room.size())};
                },
                [](void *sink, std::uint32_t length) {
                    Sink &all = *static_cast<Sink *>(sink);
                    all.contents.append(all.room, 0, length);
                }};
    }

    std::int32_t compress(const std::string &source)
    {
        return engine::compress(source.data(), static_cast<std::uint32_t>(source.size()), output());
    }

    std::int32_t decompress(const std::string &source, std::uint64_t bound = engine::unbounded)
    {
        return engine::decompress(source.data(), static_cast<std::uint32_t>(source.size()), output(), bound);
    }
};

} // namespace support
