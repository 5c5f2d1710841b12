/// An operation that is held against its plain form.
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace support
{

/// What a side does answers, as bits; 0 where the operation has no answer.
template <bool has_answer, class Does, class Side>
uint64_t answer_of(Side &side)
{
    uint64_t bits = 0;
    if constexpr (has_answer) {
        const auto answer = Does()(side);
        std::memcpy(&bits, &answer, sizeof answer);
    } else {
        Does()(side);
    }
    return bits;
}

/// Both are functions without a state; each works on a side of its own.
template <class Ours, class Plain>
struct Operation {
    template <class Ours_Does, class Plain_Does,
              bool has_answer = !std::is_void_v<std::invoke_result_t<Ours_Does, Ours &>>>
    Operation(const char *text, Ours_Does, Plain_Does)
        : text(text), ours(answer_of<has_answer, Ours_Does, Ours>),
          plain(answer_of<has_answer, Plain_Does, Plain>)
    {
    }

    const char *text;
    uint64_t (*ours)(Ours &);
    uint64_t (*plain)(Plain &);
};

} // namespace support
