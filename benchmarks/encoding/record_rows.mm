/// Records of arrays, documents of strings, and hexadecimal text.
#include "benchmarks/encoding/encoding_rows.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>

#if ZEB_HAS_QT
#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QString>
#endif

#include <cstring>
#include <vector>

namespace zeb_bench
{
namespace
{

constexpr uint32_t value_count = 8000000;
constexpr std::size_t value_bytes = value_count * sizeof(double);

ZEB_Double_Array *values()
{
    static ZEB_Double_Array *const made = [] {
        ZEB_Double_Array *const array = [[ZEB_Double_Array alloc] init_with_length:value_count];
        for (uint32_t i = 0; i < value_count; ++i)
            [array double_data][i] = i * 0.37 - 12345;
        return array;
    }();
    return made;
}

ZEB_String *record()
{
    static ZEB_String *const made = [] {
        ZEB_String *const buffer = [[ZEB_String alloc] init_with_capacity:value_bytes + 64];
        [values() ZEB_encode_binary_contents:buffer];
        return buffer;
    }();
    return made;
}

NSData *archive()
{
    static NSData *const made =
        [[NSKeyedArchiver archivedDataWithRootObject:[NSData dataWithBytesNoCopy:[values() double_data]
                                                                          length:value_bytes
                                                                    freeWhenDone:NO]] retain];
    return made;
}

template <class Work>
auto in_pool(Work work)
{
    return [=] {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        work();
        [pool drain];
    };
}

#if ZEB_HAS_QT
template <class List>
void add_qt_peer(Row &encode, std::initializer_list<Row *> decodes, const List &source, double goal)
{
    static const List list = source;
    static QByteArray stored;
    const auto write_list = [] {
        stored.clear();
        QDataStream stream(&stored, QIODevice::WriteOnly);
        stream << list;
    };
    write_list();
    encode.goal_over("QDataStream", goal).peer("QDataStream", write_list);
    for (Row *const decode : decodes)
        decode->goal_over("QDataStream", goal).peer("QDataStream", [] {
            QDataStream stream(stored);
            List read;
            stream >> read;
        });
}
#endif

void add_value_rows()
{
    ZEB_String *const buffer = [[ZEB_String alloc] init_with_capacity:value_bytes + 64];
    ZEB_Double_Array *const target = [[ZEB_Double_Array alloc] init_with_capacity:value_count];
    static std::vector<char> room(value_bytes);
    const auto copy_all = [] { std::memcpy(room.data(), [values() double_data], value_bytes); };
    Row encode("encode 8 million doubles", Measure::Bytes, value_bytes);
    encode.limit_goal(0.9)
        .goal_over("NSKeyedArchiver", 20)
        .framework([=] {
            [buffer clear];
            [values() ZEB_encode_binary_contents:buffer];
        })
        .limit("memcpy", copy_all)
        .peer("NSKeyedArchiver", in_pool([] {
                  NSData *const data = [NSData dataWithBytesNoCopy:[values() double_data]
                                                            length:value_bytes
                                                      freeWhenDone:NO];
                  [NSKeyedArchiver archivedDataWithRootObject:data];
              }));
    Row decode("decode 8 million doubles", Measure::Bytes, value_bytes);
    decode.limit_goal(0.85)
        .goal_over("NSKeyedUnarchiver", 20)
        .framework([=] { [target ZEB_decode_binary_contents:record() needs_swap:0]; })
        .limit("memcpy", copy_all)
        .peer("NSKeyedUnarchiver", in_pool([] { [NSKeyedUnarchiver unarchiveObjectWithData:archive()]; }));
    // Swapped, the count reads as it does unswapped only if its bytes are a palindrome.
    constexpr uint32_t even_count = 0x00777700;
    static ZEB_Double_Array *const even =
        [[ZEB_Double_Array alloc] init_as_copy_of_doubles:[values() double_data] count:even_count];
    static ZEB_String *const even_record = [[ZEB_String alloc] init];
    [even ZEB_encode_binary_contents:even_record];
    Row("decode doubles of the other byte order", Measure::Bytes, even_count * 8.0)
        .limit_goal(0.85)
        .framework([=] { [target ZEB_decode_binary_contents:even_record needs_swap:1]; })
        .limit("memcpy", [] {
            std::memcpy(
                room.data(), [even double_data], std::size_t { even_count } * 8);
        });
#if ZEB_HAS_QT
    add_qt_peer<QList<double>>(encode, {&decode},
                               {[values() double_data], [values() double_data] + value_count}, 30);
#endif
}

void add_string_rows()
{
    constexpr uint32_t string_count = 1000000;
    static ZEB_Wide_String_Array *const table = [[ZEB_Wide_String_Array alloc] init];
    for (uint32_t i = 0; i < string_count; ++i) {
        char text[16];
        const int length = snprintf(text, sizeof text, "row %u", i);
        ZEB_Wide_String *const string = [[ZEB_Wide_String alloc] init];
        [string append_c_string:text length:static_cast<uint32_t>(length)];
        [table append_wide_string:string];
        [string release];
    }
    static ZEB_String *const buffer = [[ZEB_String alloc] init];
    [table ZEB_encode_binary_contents:buffer];
    Row encode("encode a million short strings", Measure::Items, string_count);
    encode.framework([] {
        [buffer clear];
        [table ZEB_encode_binary_contents:buffer];
    });
    Row decode("decode a million short strings", Measure::Items, string_count);
    decode.framework([] {
        ZEB_Wide_String_Array *const read = [[ZEB_Wide_String_Array alloc] init];
        [read ZEB_decode_binary_contents:buffer needs_swap:0];
        [read release];
    });
    // An array keeps its strings for reuse.
    static ZEB_Wide_String_Array *const used = [[ZEB_Wide_String_Array alloc] init];
    Row again("decode a million short strings again", Measure::Items, string_count);
    again.framework([] { [used ZEB_decode_binary_contents:buffer needs_swap:0]; });
#if ZEB_HAS_QT
    QList<QString> list;
    for (uint32_t i = 0; i < string_count; ++i)
        list.append(QStringLiteral("row %1").arg(i));
    add_qt_peer(encode, {&decode, &again}, list, 5);
#endif
}

void add_hexadecimal_row()
{
    constexpr uint32_t byte_count = 1 << 20;
    static ZEB_Byte_Array *const bytes = [[ZEB_Byte_Array alloc] init_with_length:byte_count];
    for (uint32_t i = 0; i < byte_count; ++i)
        [bytes byte_data][i] = static_cast<uint8_t>(i * 2654435761U >> 24);
    static ZEB_String *const text = [[ZEB_String alloc] init_with_capacity:6 * byte_count];
    Row row("hexadecimal text, 1 MiB", Measure::Bytes, byte_count);
    row.framework([] {
        [text clear];
        [bytes ZEB_append_hex_contents:text];
    });
#if ZEB_HAS_QT
    static const QByteArray same(reinterpret_cast<const char *>([bytes byte_data]), byte_count);
    row.goal_over("QByteArray::toHex", 2).peer("QByteArray::toHex", [] { return same.toHex(','); });
#endif
}

} // namespace

void add_record_rows()
{
    add_value_rows();
    add_string_rows();
    add_hexadecimal_row();
}

} // namespace zeb_bench
